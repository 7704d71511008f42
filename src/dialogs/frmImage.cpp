#include "dialogs/frmImage.h"

#include "dialogs/ImagePreview.h"
#include "dialogs/ListKeys.h"
#include "dialogs/PictureFile.h"
#include "dialogs/PictureFolder.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "ui_frmImage.h"

#include <QDir>
#include <QPixmap>

namespace {

/// What an item of the list stands for.
constexpr int IsFolderRole = Qt::UserRole;

bool IsFolder(const QListWidgetItem& item) {
    return item.data(IsFolderRole).toBool();
}

} // namespace

frmImage::frmImage(Frame& frame, QWidget* owner)
    : QDialog(owner ? owner : frame.Window()), ui_(std::make_unique<Ui::frmImage>()) {
    ui_->setupUi(this);
    connect(ui_->lstFiles, &QListWidget::currentItemChanged, this, &frmImage::lstFiles_Change);
    connect(ui_->lstFiles, &QListWidget::itemDoubleClicked, this, &frmImage::lstFiles_DblClick);
    OnListKeys(ui_->lstFiles, {Qt::Key_Return, Qt::Key_Enter}, [this] { lstFiles_DblClick(); });
    connect(ui_->cmdOK, &QPushButton::clicked, this, &frmImage::cmdOK_Click);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmImage::reject);
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

void frmImage::LookIn(const QString& folder) {
    const QDir dir(folder);
    folder_ = folder.isEmpty() || !dir.exists() ? QDir::homePath() : dir.absolutePath();
    ui_->txtFolder->setText(QDir::toNativeSeparators(folder_));
    ui_->lstFiles->clear();
    for (const PictureEntry& entry : PicturesOf(folder_)) {
        const auto picture = entry.isFolder ? QStyle::SP_DirIcon : QStyle::SP_FileIcon;
        auto* item = new QListWidgetItem(style()->standardIcon(picture, nullptr, this), entry.name);
        item->setData(IsFolderRole, entry.isFolder);
        ui_->lstFiles->addItem(item);
    }
    ui_->lstFiles->setCurrentRow(0);
}

void frmImage::lstFiles_Change() {
    const QListWidgetItem* item = ui_->lstFiles->currentItem();
    const bool isFile = item && !IsFolder(*item);
    ui_->cmdOK->setEnabled(isFile);
    if (isFile)
        ShowPicture(QDir(folder_).filePath(item->text()));
}

void frmImage::lstFiles_DblClick() {
    const QListWidgetItem* item = ui_->lstFiles->currentItem();
    if (!item)
        return;
    if (IsFolder(*item))
        EnterFolder(*item);
    else
        cmdOK_Click();
}

void frmImage::EnterFolder(const QListWidgetItem& item) {
    const QString left = QDir(folder_).dirName();
    const bool up = item.text() == QStringLiteral("..");
    LookIn(QDir::cleanPath(QDir(folder_).filePath(item.text())));
    if (!up)
        return;
    // The way up leads to where the person came from.
    for (QListWidgetItem* entry : ui_->lstFiles->findItems(left, Qt::MatchExactly | Qt::MatchCaseSensitive))
        if (IsFolder(*entry))
            ui_->lstFiles->setCurrentItem(entry);
}

void frmImage::cmdOK_Click() {
    if (const QListWidgetItem* item = ui_->lstFiles->currentItem(); item && !IsFolder(*item))
        Tag = QDir::toNativeSeparators(QDir(folder_).filePath(item->text()));
    accept();
}

void ShowImagePreview(Frame& frame, const QString& path) {
    frame.LoadedForms().Load<frmImage>(frame).ShowPicture(path);
}
