#include "tools/wizard/frmWizard.h"

#include "dialogs/DialogState.h"
#include "dialogs/FormFields.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "ui_frmWizard.h"

frmWizard::frmWizard(Frame& frame)
    : QDialog(frame.Window()), frame_(frame), ui_(std::make_unique<Ui::frmWizard>()) {
    ui_->setupUi(this);
    connect(ui_->cmdNext, &QPushButton::clicked, this, &frmWizard::cmdNext_Click);
    connect(ui_->cmdFinish, &QPushButton::clicked, this, &frmWizard::cmdFinish_Click);
}

frmWizard::~frmWizard() = default;

void frmWizard::cmdNext_Click() {
    paragraphs_.Add(FieldText(ui_->txtAddMe));
    ui_->txtAddMe->clear();
    ui_->txtAddMe->setFocus();
}

void frmWizard::cmdFinish_Click() {
    paragraphs_.Add(FieldText(ui_->txtAddMe));
    frame_.State<DialogState>().LastBuiltTag += paragraphs_.Text();
    Unload();
}

void frmWizard::reject() {
    Unload();
}

void frmWizard::Unload() {
    // Whoever waits for its end goes on.
    QDialog::done(Rejected);
    frame_.LoadedForms().Unload(*this);
}
