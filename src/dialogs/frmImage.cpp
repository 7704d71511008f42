#include "dialogs/frmImage.h"

#include "dialogs/ImagePreview.h"
#include "dialogs/PictureFile.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "ui_frmImage.h"

#include <QPixmap>

frmImage::frmImage(Frame& frame) : QDialog(frame.Window()), ui_(std::make_unique<Ui::frmImage>()) {
    ui_->setupUi(this);
}

frmImage::~frmImage() = default;

QWidget* frmImage::Frame1() const {
    return ui_->Frame1;
}

bool frmImage::ShowPicture(const QString& path) {
    const QPixmap picture = ReadPicture(path);
    if (picture.isNull())
        return false;
    pictureSize_ = picture.size();
    ui_->picSel->setPixmap(picture);
    ui_->picSel->resize(pictureSize_);

    const ImagePreview preview = PreviewOf(pictureSize_);
    const QSize pixels(preview.width / PreviewTwipsPerPixel, preview.height / PreviewTwipsPerPixel);
    ui_->imgSel->setScaledContents(preview.stretch);
    ui_->imgSel->setPixmap(picture);
    // One twip from the panel's inner corner is no whole pixel.
    ui_->imgSel->setGeometry(QRect(ui_->Frame1->contentsRect().topLeft(), pixels));
    return true;
}

void ShowImagePreview(Frame& frame, const QString& path) {
    frame.LoadedForms().Load<frmImage>(frame).ShowPicture(path);
}
