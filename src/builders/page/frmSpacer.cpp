#include "builders/page/frmSpacer.h"

#include "dialogs/FormFields.h"
#include "editor/frame/Frame.h"
#include "ui_frmSpacer.h"

frmSpacer::frmSpacer(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmSpacer>()) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    PrepareComboBoxes(*this);
    connect(ui_->optHorz, &QRadioButton::clicked, this, &frmSpacer::optHorz_Click);
    connect(ui_->optVert, &QRadioButton::clicked, this, &frmSpacer::optVert_Click);
    connect(ui_->optBlock, &QRadioButton::clicked, this, &frmSpacer::optBlock_Click);
}

frmSpacer::~frmSpacer() = default;

void frmSpacer::optHorz_Click() {
    EnableFields(false);
}

void frmSpacer::optVert_Click() {
    EnableFields(false);
}

void frmSpacer::optBlock_Click() {
    EnableFields(true);
}

void frmSpacer::EnableFields(bool block) {
    // A label goes grey with its field.
    for (QWidget* one : {static_cast<QWidget*>(ui_->labelOfSize), static_cast<QWidget*>(ui_->txtSize)})
        one->setEnabled(!block);
    for (QWidget* one : {static_cast<QWidget*>(ui_->labelOfWidth), static_cast<QWidget*>(ui_->txtWidth),
                         static_cast<QWidget*>(ui_->labelOfHeight), static_cast<QWidget*>(ui_->txtHeight),
                         static_cast<QWidget*>(ui_->labelOfAlign), static_cast<QWidget*>(ui_->cboAlign)})
        one->setEnabled(block);
}

SpacerKind frmSpacer::Kind() const {
    if (ui_->optHorz->isChecked())
        return SpacerKind::Horizontal;
    if (ui_->optVert->isChecked())
        return SpacerKind::Vertical;
    return ui_->optBlock->isChecked() ? SpacerKind::Block : SpacerKind::None;
}

void frmSpacer::cmdOK_Click() {
    Insert(SpacerTag({.kind = Kind(),
                      .size = FieldText(ui_->txtSize),
                      .width = FieldText(ui_->txtWidth),
                      .height = FieldText(ui_->txtHeight),
                      .align = FieldText(ui_->cboAlign)},
                     TagCaseOf(frame_.Store())));
    Unload();
}
