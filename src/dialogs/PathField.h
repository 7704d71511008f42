// A field that holds the path of a file: what a picked file becomes in it, and its slashes.
#pragma once

#include <initializer_list>
#include <optional>
#include <QString>

class Frame;
class QCheckBox;
class QLineEdit;
class QWidget;

/// How a picked file stands in a field, as chkAbsolute and chkForwardSlash tell.
struct PathForm {
    bool absolute = false;    ///< the full path; otherwise the path relative to the active document
    bool forwardSlash = true; ///< every \ becomes /
};

/// What a field receives for a picked file. A path without a root to start from or to go to shows
/// the box that asks to save the document first, and gives what could be computed. Nothing (the field stays
/// as it was) where a relative path has no document to start from. The box belongs to the owner, the frame's
/// window unless another is given.
std::optional<QString> FieldPath(Frame& frame, const QString& fullPath, PathForm form,
                                 QWidget* owner = nullptr);
/// The same straight into a field, which gets the keys.
void PickIntoField(Frame& frame, QLineEdit& field, const QString& fullPath, PathForm form);

/// The whole text of a field with every \ as /, or with every / as \.
void ConvertSlashes(QLineEdit& field, bool forward);
/// From now on a click on chkForwardSlash converts the fields.
void ConvertSlashesOnClick(QCheckBox& chkForwardSlash, std::initializer_list<QLineEdit*> fields);
