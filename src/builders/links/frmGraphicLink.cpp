#include "builders/links/frmGraphicLink.h"

#include "builders/links/ImageTag.h"
#include "dialogs/DialogState.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/FormFields.h"
#include "dialogs/PathField.h"
#include "editor/frame/Frame.h"
#include "platform/values/Path.h"
#include "ui_frmGraphicLink.h"

frmGraphicLink::frmGraphicLink(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmGraphicLink>()) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    PrepareComboBoxes(*this);
    for (QPushButton* button : {ui_->cmdPicOpen, ui_->cmdOpen2, ui_->cmdLinkMe})
        ShowBrowseIcon(button);
    ConvertSlashesOnClick(*ui_->chkForwardSlash, {ui_->txtURL, ui_->txtLowSRC});
    connect(ui_->cmdPicOpen, &QPushButton::clicked, this, &frmGraphicLink::cmdPicOpen_Click);
    connect(ui_->cmdOpen2, &QPushButton::clicked, this, &frmGraphicLink::cmdOpen2_Click);
    connect(ui_->cmdLinkMe, &QPushButton::clicked, this, &frmGraphicLink::cmdLinkMe_Click);
}

frmGraphicLink::~frmGraphicLink() = default;

void frmGraphicLink::Take(const ImageFields& fields) {
    if (fields.isMap)
        ui_->chkISMAP->setChecked(true);
    SetWholeText(ui_->txtURL, fields.url);
    SetWholeText(ui_->txtLowSRC, fields.lowSrc);
    SetWholeText(ui_->txtALT, fields.alt);
    SetWholeText(ui_->txtWidth, fields.width);
    SetWholeText(ui_->txtHeight, fields.height);
    SetWholeText(ui_->txtHSpace, fields.hSpace);
    SetWholeText(ui_->txtVSpace, fields.vSpace);
    SetWholeText(ui_->txtBorder, fields.border);
    SetWholeText(ui_->cboAlign, fields.align);
    SetWholeText(ui_->txtUseMap, fields.useMap);
}

void frmGraphicLink::cmdPicOpen_Click() {
    PictureBrowse browse(frame_);
    cdrFileDialog_ = {.filter = FileFilter::Picture};
    const auto path = browse.Show(this, cdrFileDialog_);
    if (!path)
        return;
    PickIntoField(
        frame_, *ui_->txtURL, *path,
        {.absolute = ui_->chkAbsolute->isChecked(), .forwardSlash = ui_->chkForwardSlash->isChecked()});
    const QSize size = browse.PictureSize();
    ui_->txtWidth->setText(QString::number(size.width()));
    ui_->txtHeight->setText(QString::number(size.height()));
    if (ui_->txtALT->text().isEmpty())
        ui_->txtALT->setText(Path::FileName(*path));
}

void frmGraphicLink::cmdOpen2_Click() {
    PictureBrowse browse(frame_);
    if (const auto path = browse.Show(this, cdrFileDialog_))
        PickIntoField(
            frame_, *ui_->txtLowSRC, *path,
            {.absolute = ui_->chkAbsolute->isChecked(), .forwardSlash = ui_->chkForwardSlash->isChecked()});
}

void frmGraphicLink::cmdLinkMe_Click() {
    ui_->txtLinkMe->clear();
    cdrFileDialog_ = {.filter = FileFilter::LinkTarget, .filterIndex = 2};
    if (const auto path = PickFile(frame_, this, cdrFileDialog_))
        PickIntoField(frame_, *ui_->txtLinkMe, *path, {.forwardSlash = ui_->chkForwardSlash->isChecked()});
}

void frmGraphicLink::cmdOK_Click() {
    const QString tag = ImageTag({.url = FieldText(ui_->txtURL),
                                  .lowSrc = FieldText(ui_->txtLowSRC),
                                  .alt = FieldText(ui_->txtALT),
                                  .width = FieldText(ui_->txtWidth),
                                  .height = FieldText(ui_->txtHeight),
                                  .hSpace = FieldText(ui_->txtHSpace),
                                  .vSpace = FieldText(ui_->txtVSpace),
                                  .border = FieldText(ui_->txtBorder),
                                  .useMap = FieldText(ui_->txtUseMap),
                                  .isMap = ui_->chkISMAP->isChecked(),
                                  .linkMe = FieldText(ui_->txtLinkMe)},
                                 TagCaseOf(frame_.Store()));
    Insert(tag);
    frame_.State<DialogState>().TellBuilt(tag);
    Unload();
}
