// The Spacer dialog: white space of a given size.
#include "builders/frmSpacer.h"

#include "builders/ColumnTags.h"
#include "builders/FormFields.h"
#include "ui_frmSpacer.h"

frmSpacer::frmSpacer(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmSpacer>()) {
    ui_->setupUi(this);
    Wire();
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

void frmSpacer::cmdOK_Click() {
    SpacerFields fields;
    if (ui_->optHorz->isChecked())
        fields.kind = SpacerKind::Horizontal;
    else if (ui_->optVert->isChecked())
        fields.kind = SpacerKind::Vertical;
    else if (ui_->optBlock->isChecked())
        fields.kind = SpacerKind::Block;
    fields.size = FieldText(ui_->txtSize);
    fields.width = FieldText(ui_->txtWidth);
    fields.height = FieldText(ui_->txtHeight);
    fields.align = FieldText(ui_->cboAlign);
    Insert(SpacerTag(frame_, fields));
    Unload();
}
