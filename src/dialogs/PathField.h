// A field that holds the path of a file: what a picked file becomes in it, and its slashes.
#pragma once

#include <initializer_list>
#include <optional>
#include <QString>

class Frame;
class QCheckBox;
class QLineEdit;

/// What a field receives for a picked file: its full path if absolute, else the path relative to the active
/// document; then with forwardSlash every \ becomes /. A path without a root to start from or to go to shows
/// the box that asks to save the document first, and gives what could be computed. Nothing (the field stays
/// as it was) where a relative path has no document to start from.
std::optional<QString> FieldPath(Frame& frame, const QString& fullPath, bool absolute, bool forwardSlash);
/// The same straight into a field.
void PickIntoField(Frame& frame, QLineEdit& field, const QString& fullPath, bool absolute, bool forwardSlash);

/// The whole text of a field with every \ as /, or with every / as \.
void ConvertSlashes(QLineEdit& field, bool forward);
/// From now on a click on chkForwardSlash converts the fields.
void ConvertSlashesOnClick(QCheckBox& chkForwardSlash, std::initializer_list<QLineEdit*> fields);
