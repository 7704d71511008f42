// The Horizontal Rule dialog.
#include "builders/frmHRInput.h"

#include "builders/FormFields.h"
#include "builders/RuleTag.h"
#include "ui_frmHRInput.h"

frmHRInput::frmHRInput(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmHRInput>()) {
    ui_->setupUi(this);
    Wire();
    ui_->cboThickInput->addItem(QString());
    for (int pixels = 1; pixels <= 99; ++pixels)
        ui_->cboThickInput->addItem(QString::number(pixels));
    PrepareComboBoxes(*this);
}

frmHRInput::~frmHRInput() = default;

void frmHRInput::cmdOK_Click() {
    const QString tag = RuleTag(frame_, {FieldText(ui_->txtWidthInput), ui_->optPercent->isChecked(),
                                         FieldText(ui_->cboThickInput), FieldText(ui_->cboAlign),
                                         ui_->chkNoShade->isChecked()});
    // Alone among the dialogs this one is gone before its tag comes.
    Unload();
    Insert(tag);
}
