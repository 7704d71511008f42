// What the controls of all tag dialogs have in common.
#pragma once

#include <QString>

class QAbstractButton;
class QComboBox;
class QLineEdit;
class QWidget;

/// What a field holds. What the document can't hold of it becomes references where it is written.
QString FieldText(const QLineEdit* field);
QString FieldText(const QComboBox* field);

/// Gives the field and the list of a combo box the box's own accessible name.
void NamePartsOf(QComboBox& combo);

/// Puts a text into a field whole, even one longer than a person can type there.
void SetWholeText(QLineEdit* field, const QString& text);
void SetWholeText(QComboBox* field, const QString& text);

/// Makes every combo box of a form a plain field with a list beside it: empty at first, and holding just what
/// is typed into it, never a list entry that merely begins the same way.
void PrepareComboBoxes(QWidget& form);

/// The face of a button that picks a file: the desktop's open folder.
void ShowBrowseIcon(QAbstractButton* button);

/// The face of a button that leaves a form: a cross in the colour of its text.
void ShowExitIcon(QAbstractButton* button);

/// The face of a button that picks a colour: a patch of the colour that text names (`#RRGGBB` or a name), or
/// an empty patch where it names none.
void ShowColorIcon(QAbstractButton* button, const QString& text);
