#include "styles/sheet/ElementList.h"

#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "styles/sheet/Catalogue.h"
#include "styles/sheet/ListView.h"

#include <algorithm>

ElementList::ElementList(Frame& frame, ListView& lstObject)
    : QObject(&lstObject), frame_(frame), lstObject_(lstObject) {
    lstObject_.AddRows(StyleElements());
    lstObject_.setCurrentItem(lstObject_.topLevelItem(0));
    connect(&lstObject_, &ListView::Click, this, &ElementList::Changed);
    connect(&lstObject_, &ListView::KeyUp, this, &ElementList::Changed);
    connect(&lstObject_, &ListView::LetterUp, this, &ElementList::Changed);
}

// The box has one title for both of its uses.
QString ElementList::Ask() {
    return frame_.Ask().InputBox(
        lstObject_.window(),
        QStringLiteral("(Note: class names should begin with a period & IDs should begin with '#')"),
        QStringLiteral("Add Element"));
}

void ElementList::Add() {
    const QString element = Ask();
    if (element.isEmpty())
        return;
    lstObject_.AddRow(element);
    QTreeWidgetItem* row = lstObject_.topLevelItem(lstObject_.topLevelItemCount() - 1);
    lstObject_.scrollToItem(row);
    if (lstObject_.SelectedRow())
        return;
    lstObject_.setCurrentItem(row);
    Q_EMIT Changed();
}

void ElementList::Rename() {
    QTreeWidgetItem* row = lstObject_.SelectedRow();
    const QString element = row ? Ask() : QString();
    if (element.isEmpty())
        return;
    row->setText(0, element);
    Q_EMIT Changed();
}

// Selected is then the row that comes up in its place, or the last one.
void ElementList::Remove() {
    QTreeWidgetItem* row = lstObject_.SelectedRow();
    if (!row)
        return;
    const int place = lstObject_.indexOfTopLevelItem(row);
    delete lstObject_.takeTopLevelItem(place);
    if (const int count = lstObject_.topLevelItemCount(); count > 0)
        lstObject_.setCurrentItem(lstObject_.topLevelItem(std::min(place, count - 1)));
    Q_EMIT Changed();
}
