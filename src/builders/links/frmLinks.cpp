#include "builders/links/frmLinks.h"

#include "builders/links/LinkTag.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/FormFields.h"
#include "dialogs/PathField.h"
#include "editor/frame/Frame.h"
#include "ui_frmLinks.h"

frmLinks::frmLinks(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmLinks>()), dialog_(frame) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    ui_->cboChoice->addItems({QStringLiteral("http://"), QStringLiteral("ftp://"), QStringLiteral("mailto:"),
                              QStringLiteral("news:"), QStringLiteral("newsrc:"), QStringLiteral("telnet://"),
                              QStringLiteral("wais://"), QStringLiteral("gopher://")});
    PrepareComboBoxes(*this);
    ShowBrowseIcon(ui_->cmdOpen);
    ConvertSlashesOnClick(*ui_->chkForwardSlash, {ui_->txtURL});
    connect(ui_->cmdOpen, &QPushButton::clicked, this, &frmLinks::cmdOpen_Click);
}

frmLinks::~frmLinks() = default;

void frmLinks::cmdOpen_Click() {
    ui_->txtURL->clear();
    dialog_.SetFilter(FileFilter::Document);
    dialog_.SetFilterIndex(2);
    dialog_.ShowOpen(this);
    // A cancel is not told apart: the way to an empty name is what the field receives then, and the box of a
    // path without a root comes up.
    PickIntoField(
        frame_, *ui_->txtURL, dialog_.SelectedFile(1),
        {.absolute = ui_->chkAbsolute->isChecked(), .forwardSlash = ui_->chkForwardSlash->isChecked()});
}

void frmLinks::cmdOK_Click() {
    const auto [open, close] = LinkTag({.protocol = FieldText(ui_->cboChoice),
                                        .url = FieldText(ui_->txtURL),
                                        .anchor = FieldText(ui_->txtAnchor),
                                        .target = FieldText(ui_->txtTarget)},
                                       TagCaseOf(frame_.Store()));
    Insert(open, close);
    Unload();
}
