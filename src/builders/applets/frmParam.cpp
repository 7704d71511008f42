#include "builders/applets/frmParam.h"

#include "builders/applets/AppletTags.h"
#include "dialogs/FormFields.h"
#include "editor/frame/Frame.h"
#include "ui_frmParam.h"

frmParam::frmParam(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmParam>()) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
}

frmParam::~frmParam() = default;

void frmParam::cmdOK_Click() {
    Insert(ParamTag({.name = FieldText(ui_->txtName), .value = FieldText(ui_->txtValue)},
                    TagCaseOf(frame_.Store())));
    ui_->txtName->clear();
    ui_->txtValue->clear();
    // Ready for the next name, for those who go by keys.
    ui_->txtName->setFocus();
}
