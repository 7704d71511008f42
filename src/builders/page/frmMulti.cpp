#include "builders/page/frmMulti.h"

#include "builders/page/ColumnTags.h"
#include "dialogs/FormFields.h"
#include "editor/frame/Frame.h"
#include "ui_frmMulti.h"

frmMulti::frmMulti(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmMulti>()) {
    ui_->setupUi(this);
    Wire(*ui_->Command1, *ui_->Command2);
}

frmMulti::~frmMulti() = default;

void frmMulti::cmdOK_Click() {
    const auto [open, close] = MultiColumnTag({.cols = FieldText(ui_->txtCols),
                                               .gutter = FieldText(ui_->txtGutter),
                                               .width = FieldText(ui_->txtWidth)},
                                              TagCaseOf(frame_.Store()));
    Insert(open, close);
    Unload();
}
