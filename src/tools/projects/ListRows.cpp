#include "tools/projects/ListRows.h"

#include <algorithm>
#include <QKeyEvent>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace {

class FirstByKeys final : public QObject {
  public:
    explicit FirstByKeys(QListWidget& list) : QObject(&list), list_(list) { list.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || list_.count() == 0 || SelectedRow(list_) >= 0)
            return QObject::eventFilter(watched, event);
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Down && key != Qt::Key_Up)
            return QObject::eventFilter(watched, event);
        list_.setCurrentRow(0);
        return true;
    }

  private:
    QListWidget& list_;
};

class Unpadded final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant& value, const QLocale& locale) const override {
        QString text = QStyledItemDelegate::displayText(value, locale);
        while (text.endsWith(u' '))
            text.chop(1);
        return text;
    }
};

} // namespace

int SelectedRow(const QListWidget& list) {
    const QList<QListWidgetItem*> selected = list.selectedItems();
    return selected.isEmpty() ? -1 : list.row(selected.first());
}

void RemoveRow(QListWidget& list, int row) {
    {
        const QSignalBlocker noNeighbour(list);
        delete list.takeItem(row);
        list.setCurrentRow(-1);
    }
    list.setCurrentRow(std::min(row, list.count() - 1));
}

QStringList Lines(const QListWidget& list) {
    QStringList lines;
    for (int row = 0; row < list.count(); ++row)
        lines << list.item(row)->text();
    return lines;
}

void SelectFirstByKeys(QListWidget& list) {
    new FirstByKeys(list);
}

void HidePadding(QListWidget& list) {
    list.setItemDelegate(new Unpadded(&list));
}
