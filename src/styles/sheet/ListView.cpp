#include "styles/sheet/ListView.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>

namespace {

bool DoesNothingByItself(int key) {
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_Menu:
        return true;
    default:
        return false;
    }
}

bool IsLetter(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().front().isPrint() && event.text() != u" ";
}

} // namespace

ListView::ListView(QWidget* parent) : QTreeWidget(parent) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    // By itself a header keeps its column at a width of its own, and a narrow list scrolls sideways.
    header()->setMinimumSectionSize(1);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::Stretch);
}

void ListView::AddRow(const QString& text) {
    AddRows({text});
}

void ListView::AddRows(const QStringList& texts) {
    QList<QTreeWidgetItem*> rows;
    rows.reserve(texts.size());
    for (const QString& text : texts) {
        auto* row = new QTreeWidgetItem(QStringList(text));
        row->setFlags(row->flags() | Qt::ItemNeverHasChildren);
        rows << row;
    }
    addTopLevelItems(rows);
}

QTreeWidgetItem* ListView::SelectedRow() const {
    const QList<QTreeWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? nullptr : selected.first();
}

QString ListView::SelectedText() const {
    const QTreeWidgetItem* row = SelectedRow();
    return row ? row->text(0) : QString();
}

void ListView::focusOutEvent(QFocusEvent* event) {
    keysDown_.clear();
    QTreeWidget::focusOutEvent(event);
}

void ListView::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (!DoesNothingByItself(key))
        keysDown_.insert(key);
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        // Accepted, whatever comes of it: it is no press of the form's default button.
        if (SelectedRow() && !event->isAutoRepeat())
            Q_EMIT DblClick();
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

void ListView::keyReleaseEvent(QKeyEvent* event) {
    QTreeWidget::keyReleaseEvent(event);
    if (event->isAutoRepeat() || !keysDown_.remove(event->key()))
        return;
    if (IsLetter(*event))
        Q_EMIT LetterUp();
    else
        Q_EMIT KeyUp();
}

void ListView::mousePressEvent(QMouseEvent* event) {
    atPress_ = SelectedRow();
    secondPress_ = false;
    QTreeWidget::mousePressEvent(event);
    if (event->button() == Qt::RightButton)
        Q_EMIT RightDown();
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    // The release of a double click is no click of its own.
    if (event->button() != Qt::LeftButton || std::exchange(secondPress_, false))
        return;
    if (SelectedRow() && (itemAt(event->position().toPoint()) || SelectedRow() != atPress_))
        Q_EMIT Click();
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
    secondPress_ = event->button() == Qt::LeftButton;
    QTreeWidget::mouseDoubleClickEvent(event);
    if (secondPress_ && itemAt(event->position().toPoint()))
        Q_EMIT DblClick();
}

void ListView::contextMenuEvent(QContextMenuEvent* event) {
    // By the mouse it comes behind the press, which was told.
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT RightDown();
    event->accept();
}
