// Picking a file in a tag dialog: the filters, the file dialog, the picture browse.
#pragma once

#include "platform/desktop/FileRequest.h"

#include <optional>
#include <QSize>
#include <QString>

class Frame;
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

/// Asks for a file to open, in LastDir, which tag dialogs never change. The full path of the file picked;
/// nothing on Cancel.
std::optional<QString> PickFile(Frame& frame, QWidget* owner, FileRequest request);

/// Asks for a file to save as, in LastDir, and whether one that is there may be overwritten; a No shows the
/// file dialog anew. Cancelled where the user wants none. The size that decides is a signed 16-bit number: a
/// file of under 2 bytes, or of more than such a number can hold, is not asked about.
FileAnswer PickFileToSave(Frame& frame, QWidget* owner, FileRequest request);

/// One browse for a picture: loads frmImage, shows a file dialog with its panel, unloads frmImage at the
/// end of its own life. Between a pick and that end the picture's size can be read.
class PictureBrowse {
  public:
    explicit PictureBrowse(Frame& frame);
    ~PictureBrowse();
    PictureBrowse(const PictureBrowse&) = delete;
    PictureBrowse& operator=(const PictureBrowse&) = delete;

    /// The same as PickFile, with the preview beside the file list.
    std::optional<QString> Show(QWidget* owner, FileRequest request);
    /// Width and height in pixels of the picture; 0 by 0 for a file that is none.
    QSize PictureSize() const;

  private:
    Frame& frame_;
};
