#include "builders/applets/frmEmbed.h"

#include "builders/applets/EmbedTag.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/FormFields.h"
#include "dialogs/PathField.h"
#include "editor/frame/Frame.h"
#include "ui_frmEmbed.h"

frmEmbed::frmEmbed(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmEmbed>()) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    PrepareComboBoxes(*this);
    ShowBrowseIcon(ui_->cmdGetFle);
    ConvertSlashesOnClick(*ui_->chkForwardSlash, {ui_->txtURL});
    connect(ui_->txtURL, &QLineEdit::textChanged, this, &frmEmbed::txtURL_Change);
    connect(ui_->cmdGetFle, &QPushButton::clicked, this, &frmEmbed::cmdGetFle_Click);
}

frmEmbed::~frmEmbed() = default;

void frmEmbed::Take(const EmbedFields& fields) {
    SetWholeText(ui_->txtWidth, fields.width);
    SetWholeText(ui_->txtHeight, fields.height);
    SetWholeText(ui_->cboPalette, fields.palette);
    SetWholeText(ui_->txtURL, fields.url);
}

void frmEmbed::txtURL_Change() {
    ui_->cmdOK->setEnabled(!ui_->txtURL->text().isEmpty());
}

void frmEmbed::cmdGetFle_Click() {
    // There is one filter, and the second is asked for: the dialog comes up with the one there is.
    if (const auto path = PickFile(frame_, this, {.filter = FileFilter::AnyFile, .filterIndex = 2}))
        PickIntoField(
            frame_, *ui_->txtURL, *path,
            {.absolute = ui_->chkAbsolute->isChecked(), .forwardSlash = ui_->chkForwardSlash->isChecked()});
}

void frmEmbed::cmdOK_Click() {
    Insert(EmbedTag({.width = FieldText(ui_->txtWidth),
                     .height = FieldText(ui_->txtHeight),
                     .palette = FieldText(ui_->cboPalette),
                     .url = FieldText(ui_->txtURL)},
                    TagCaseOf(frame_.Store())));
    Unload();
}
