// The JAVA Applet dialog.
#include "builders/frmJava.h"

#include "builders/AppletTags.h"
#include "builders/FormFields.h"
#include "ui_frmJava.h"

frmJava::frmJava(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmJava>()) {
    ui_->setupUi(this);
    Wire();
    ui_->cboAlign->addItems({QString(), QStringLiteral("LEFT"), QStringLiteral("RIGHT"),
                             QStringLiteral("TOP"), QStringLiteral("TEXTTOP"), QStringLiteral("ABSMIDDLE"),
                             QStringLiteral("BASELINE"), QStringLiteral("BOTTOM"),
                             QStringLiteral("ABSBOTTOM")});
    PrepareComboBoxes(*this);
}

frmJava::~frmJava() = default;

void frmJava::cmdOK_Click() {
    const auto [open, close] =
        AppletTag(frame_, {FieldText(ui_->txtCodeBase), FieldText(ui_->txtCode), FieldText(ui_->txtWidth),
                           FieldText(ui_->txtHeight), FieldText(ui_->txtAlt), FieldText(ui_->txtName),
                           FieldText(ui_->txtVspace), FieldText(ui_->txtHSpace), FieldText(ui_->cboAlign)});
    Insert(open, close);
    Unload();
}
