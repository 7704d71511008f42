// Picking a file into a field of a tag dialog: filters, a form's file dialog, the picture browse.
#pragma once

#include "platform/Prompts.h"

#include <initializer_list>
#include <optional>
#include <QSize>
#include <QString>

class Frame;
class QCheckBox;
class QLineEdit;
class QWidget;

namespace FileFilter {

inline const QString Picture =
    QStringLiteral("Image Files (*.jpg);(*.gif);(*.png);(*.bmp)|*.jpg;*.gif;*.png;*.bmp|All files (*.*)|*.*");
/// Index 2 is selected with this one and with LinkTarget.
inline const QString Document =
    QStringLiteral("All Files (*.*)|*.*|HTML Files (*.htm);(*.html);(*.shtml)|*.htm;*.html;*.shtml|"
                   "MS Files (*.htx);(*.asp);(*.idc)|*.htx;*.asp;*.idc|"
                   "Server Files (*.cgi);(*.pl)|*.cgi;*.pl|Text Files (*.txt)|*.txt|");
inline const QString LinkTarget = QStringLiteral(
    "All Files (*.*)|*.*|HTML Files (*.htm);(*.html)|*.htm;*.html|"
    "Graphic Files (*.jpg);(*.gif);(*.bmp)|*.jpg;*.jpeg;*.gif;*.bmp|Text Files (*.txt)|*.txt|");
inline const QString AnyFile = QStringLiteral("All Files (*.*)|*.*|");

} // namespace FileFilter

/// A form's file dialog, cdrFileDialog. It opens in LastDir, which tag dialogs never change, and keeps the
/// filter it was given last for a browse that sets none; it has none at first.
class FileDialog {
  public:
    explicit FileDialog(Frame& frame) : frame_(frame) {}

    /// The filter and its 1-based index, for the next showing and those after it.
    void SetFilter(const QString& filter, int index = 1);
    /// The full path of the file picked; nothing on Cancel.
    std::optional<QString> ShowOpen(QWidget* owner);
    /// The same with a preview panel beside the file list; selectionChanged is told the path of each file
    /// selected.
    std::optional<QString> ShowOpen(QWidget* owner, QWidget* panel,
                                    std::function<void(const QString&)> selectionChanged);

  private:
    Frame& frame_;
    QString filter_;
    int filterIndex_ = 1;
};

/// One browse for a picture: loads frmImage, shows a file dialog with its panel, unloads frmImage at the
/// end of its own life. Between a pick and that end the picture's size can be read.
class PictureBrowse {
  public:
    explicit PictureBrowse(Frame& frame);
    ~PictureBrowse();
    PictureBrowse(const PictureBrowse&) = delete;
    PictureBrowse& operator=(const PictureBrowse&) = delete;

    /// The full path of the picture picked; nothing on Cancel. The dialog comes with the filter that it has.
    std::optional<QString> Show(FileDialog& dialog, QWidget* owner);
    /// Width and height in pixels of the picture; 0 by 0 for a file that is none.
    QSize PictureSize() const;

  private:
    Frame& frame_;
};

/// What a field receives for a picked file: its full path if absolute, else the path relative to the active
/// document; then with forwardSlash every \ becomes /. Nothing (the field stays as it was) where a relative
/// path has no document to start from.
std::optional<QString> FieldPath(Frame& frame, const QString& fullPath, bool absolute, bool forwardSlash);
/// The same straight into a field.
void PickIntoField(Frame& frame, QLineEdit& field, const QString& fullPath, bool absolute, bool forwardSlash);

/// The whole text of a field with every \ as /, or with every / as \.
void ConvertSlashes(QLineEdit& field, bool forward);
/// From now on a click on chkForwardSlash converts the fields.
void ConvertSlashesOnClick(QCheckBox& chkForwardSlash, std::initializer_list<QLineEdit*> fields);
