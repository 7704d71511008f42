// Lists of which at most one line is selected, and none at first.
#pragma once

#include <QStringList>

class QListWidget;

/// The selected line, from 0; -1 where none is.
int SelectedRow(const QListWidget& list);
/// Takes a line away and selects what then stands in its place, or else the last line. No other line is
/// selected meanwhile.
void RemoveRow(QListWidget& list, int row);
/// The texts of all lines.
QStringList Lines(const QListWidget& list);
/// With no line selected the arrows select the first: a list that gets the keys has it marked already, and
/// would go on to the second.
void SelectFirstByKeys(QListWidget& list);
/// Shows lines without the blanks at their ends, which stay part of their texts.
void HidePadding(QListWidget& list);
