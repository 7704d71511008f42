#include "styles/sheet/PropertyLists.h"

#include "dialogs/ListKeys.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/FaceNames.h"
#include "platform/desktop/Prompts.h"
#include "styles/sheet/Catalogue.h"
#include "styles/sheet/ListView.h"

#include <QApplication>
#include <QListWidget>
#include <QTimer>

PropertyLists::PropertyLists(Frame& frame, ListView& lstProperty, ListView& lstValue, QListWidget& lstFont)
    : QObject(&lstProperty), frame_(frame), lstProperty_(lstProperty), lstValue_(lstValue), lstFont_(lstFont),
      search_(new QTimer(this)) {
    for (const PropertyRow& row : PropertyCatalogue())
        lstProperty_.AddRow(QString::fromLatin1(row.name));
    search_->setObjectName(QStringLiteral("search"));
    search_->setSingleShot(true);
    connect(search_, &QTimer::timeout, this, &PropertyLists::SelectProperty);
    connect(&lstProperty_, &ListView::Click, this, &PropertyLists::SelectProperty);
    connect(&lstProperty_, &ListView::KeyUp, this, &PropertyLists::SelectProperty);
    connect(&lstProperty_, &ListView::LetterUp, this, &PropertyLists::lstProperty_LetterUp);
    connect(&lstValue_, &ListView::DblClick, this, &PropertyLists::lstValue_DblClick);
    connect(&lstValue_, &ListView::RightDown, this, &PropertyLists::lstValue_RightDown);
    connect(&lstFont_, &QListWidget::itemClicked, this, &PropertyLists::lstFont_Click);
    OnListKeys(&lstFont_, {Qt::Key_Return, Qt::Key_Enter}, [this] { lstFont_Click(); });
}

void PropertyLists::FocusValues() {
    QWidget& shown = lstFont_.isHidden() ? static_cast<QWidget&>(lstValue_) : lstFont_;
    shown.setFocus(Qt::ShortcutFocusReason);
}

void PropertyLists::ShowNoValues() {
    search_->stop();
    lstFont_.hide();
    lstValue_.show();
    lstValue_.clear();
}

void PropertyLists::SelectProperty() {
    ShowNoValues();
    const PropertyRow* row = FindProperty(lstProperty_.SelectedText());
    if (!row)
        return;
    if (row->families) {
        lstFont_.show();
        lstValue_.hide();
        // Not emptied first: what is selected again is listed again.
        lstFont_.addItems(FaceNames());
        return;
    }
    QStringList values = row->Values();
    if (row->Asks())
        values.prepend(
            frame_.Ask().InputBox(lstProperty_.window(), QString::fromLatin1(row->prompt), row->Title()));
    values.removeAll(QString());
    lstValue_.AddRows(values);
}

void PropertyLists::lstProperty_LetterUp() {
    const PropertyRow* row = FindProperty(lstProperty_.SelectedText());
    if (!row || (!row->Asks() && !row->families)) {
        SelectProperty();
        return;
    }
    // A box now would catch the letters that are still to come.
    ShowNoValues();
    search_->start(QApplication::keyboardInputInterval());
}

void PropertyLists::Pick(const QString& value) {
    if (lstProperty_.SelectedRow())
        Q_EMIT Picked(lstProperty_.SelectedText(), value);
}

void PropertyLists::lstValue_DblClick() {
    if (lstValue_.SelectedRow())
        Pick(lstValue_.SelectedText());
}

void PropertyLists::lstValue_RightDown() {
    // The title is that of one property, whichever is selected.
    const QString value = frame_.Ask().InputBox(lstValue_.window(), QStringLiteral("Add your own value(s):"),
                                                QStringLiteral("FONT"));
    if (!value.isEmpty())
        lstValue_.AddRow(value);
}

void PropertyLists::lstFont_Click() {
    if (const QListWidgetItem* family = lstFont_.currentItem())
        Pick(family->text());
}
