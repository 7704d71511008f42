// The picture preview that stands beside the file list while a picture is picked.
#pragma once

#include <memory>
#include <QDialog>
#include <QSize>

class Frame;
class QListWidgetItem;
class QWidget;

namespace Ui {
class frmImage;
}

/// Loaded by a picture browse and unloaded after it; its panel Frame1 is lent to the file dialog meanwhile.
/// The cell dialog of tables shows it as a window of its own, with a list of files to pick from.
class frmImage final : public QDialog {
    Q_OBJECT

  public:
    /// The owner is the frame's window unless another is given.
    explicit frmImage(Frame& frame, QWidget* owner = nullptr);
    ~frmImage() override;

    /// What is lent to the file dialog.
    QWidget* Frame1() const;
    /// Loads a picture into picSel and imgSel. False, and nothing changed, for a file that is no picture.
    bool ShowPicture(const QString& path);
    /// The size in pixels of the picture that picSel holds; 0 by 0 without one.
    QSize PictureSize() const { return pictureSize_; }
    /// Lists a folder's pictures; where there is none of that name, those of the user's own folder.
    void LookIn(const QString& folder);
    /// The form's Tag: the full path of the file picked, empty before OK. The cell dialog reads it.
    QString Tag;

  private:
    void lstFiles_Change();
    /// Enter and a double click: a folder is gone into, a file is picked.
    void lstFiles_DblClick();
    void cmdOK_Click();
    void EnterFolder(const QListWidgetItem& item);

    std::unique_ptr<Ui::frmImage> ui_;
    QSize pictureSize_{0, 0};
    QString folder_;
};

/// Shows a picture in the preview, which is loaded if it is not.
void ShowImagePreview(Frame& frame, const QString& path);
