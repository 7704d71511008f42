#include "builders/page/frmHRInput.h"

#include "builders/page/RuleTag.h"
#include "dialogs/FormFields.h"
#include "editor/frame/Frame.h"
#include "ui_frmHRInput.h"

frmHRInput::frmHRInput(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmHRInput>()) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    ui_->cboThickInput->addItem(QString());
    for (int pixels = 1; pixels <= 99; ++pixels)
        ui_->cboThickInput->addItem(QString::number(pixels));
    PrepareComboBoxes(*this);
}

frmHRInput::~frmHRInput() = default;

void frmHRInput::cmdOK_Click() {
    const QString tag = RuleTag({.width = FieldText(ui_->txtWidthInput),
                                 .percent = ui_->optPercent->isChecked(),
                                 .thickness = FieldText(ui_->cboThickInput),
                                 .align = FieldText(ui_->cboAlign),
                                 .noShade = ui_->chkNoShade->isChecked()},
                                TagCaseOf(frame_.Store()));
    // Alone among the dialogs this one is gone before its tag comes.
    Unload();
    Insert(tag);
}
