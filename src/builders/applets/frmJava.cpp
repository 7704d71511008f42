#include "builders/applets/frmJava.h"

#include "builders/applets/AppletTags.h"
#include "dialogs/FormFields.h"
#include "editor/frame/Frame.h"
#include "ui_frmJava.h"

frmJava::frmJava(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmJava>()) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    ui_->cboAlign->addItems({QString(), QStringLiteral("LEFT"), QStringLiteral("RIGHT"),
                             QStringLiteral("TOP"), QStringLiteral("TEXTTOP"), QStringLiteral("ABSMIDDLE"),
                             QStringLiteral("BASELINE"), QStringLiteral("BOTTOM"),
                             QStringLiteral("ABSBOTTOM")});
    PrepareComboBoxes(*this);
}

frmJava::~frmJava() = default;

void frmJava::cmdOK_Click() {
    const auto [open, close] = AppletTag({.codeBase = FieldText(ui_->txtCodeBase),
                                          .code = FieldText(ui_->txtCode),
                                          .width = FieldText(ui_->txtWidth),
                                          .height = FieldText(ui_->txtHeight),
                                          .alt = FieldText(ui_->txtAlt),
                                          .name = FieldText(ui_->txtName),
                                          .vSpace = FieldText(ui_->txtVspace),
                                          .hSpace = FieldText(ui_->txtHSpace),
                                          .align = FieldText(ui_->cboAlign)},
                                         TagCaseOf(frame_.Store()));
    Insert(open, close);
    Unload();
}
