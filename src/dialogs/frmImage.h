// The picture preview that stands beside the file list while a picture is picked.
#pragma once

#include <memory>
#include <QDialog>
#include <QSize>

class Frame;
class QWidget;

namespace Ui {
class frmImage;
}

/// Loaded by a picture browse and unloaded after it; its panel Frame1 is lent to the file dialog meanwhile.
class frmImage final : public QDialog {
    Q_OBJECT

  public:
    explicit frmImage(Frame& frame);
    ~frmImage() override;

    /// What is lent to the file dialog.
    QWidget* Frame1() const;
    /// Loads a picture into picSel and imgSel. False, and nothing changed, for a file that is no picture.
    bool ShowPicture(const QString& path);
    /// The size in pixels of the picture that picSel holds; 0 by 0 without one.
    QSize PictureSize() const { return pictureSize_; }
    /// The form's Tag, which the cell dialog of tables reads.
    QString Tag;

  private:
    std::unique_ptr<Ui::frmImage> ui_;
    QSize pictureSize_{0, 0};
};

/// Shows a picture in the preview, which is loaded if it is not.
void ShowImagePreview(Frame& frame, const QString& path);
