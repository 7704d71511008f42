#include "builders/frames/frmFrame.h"

#include "builders/frames/FrameResult.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/FormFields.h"
#include "dialogs/PathField.h"
#include "editor/color/PickColor.h"
#include "editor/frame/Frame.h"
#include "ui_frmFrame.h"

frmFrame::frmFrame(Frame& frame, QWidget* owner)
    : TagDialog(frame, owner), ui_(std::make_unique<Ui::frmFrame>()), dialog_(frame) {
    constexpr ColorNumber grey = 0xC0C0C0;
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    ui_->Label2->SetBackNumber(grey);
    connect(ui_->Label2, &ColorSample::Click, this, &frmFrame::Label2_Click);
    ShowBrowseIcon(ui_->cmdOpen);
    ConvertSlashesOnClick(*ui_->chkForwardSlash, {ui_->txtSrc});
    connect(ui_->cmdOpen, &QPushButton::clicked, this, &frmFrame::cmdOpen_Click);
}

frmFrame::~frmFrame() = default;

void frmFrame::cmdOpen_Click() {
    dialog_.SetFilter(FileFilter::Document);
    dialog_.SetFilterIndex(2);
    if (dialog_.ShowOpen(this))
        PickIntoField(
            frame_, *ui_->txtSrc, dialog_.SelectedFile(1),
            {.absolute = ui_->chkAbsolute->isChecked(), .forwardSlash = ui_->chkForwardSlash->isChecked()});
}

void frmFrame::Label2_Click() {
    const ColorNumber color = PickColorOrBlack(frame_.Ask(), this);
    ui_->Label2->SetBackNumber(color);
    borderColor_ = ColorHex(color);
}

Scrolling frmFrame::ScrollingChoice() const {
    if (ui_->optYes->isChecked())
        return Scrolling::Yes;
    if (ui_->optNo->isChecked())
        return Scrolling::No;
    return ui_->optAuto->isChecked() ? Scrolling::Auto : Scrolling::None;
}

void frmFrame::cmdOK_Click() {
    const QString name = FieldText(ui_->txtName);
    auto& result = frame_.State<FrameResult>();
    result.FrameTagResult = FrameTag({.src = FieldText(ui_->txtSrc),
                                      .name = name,
                                      .marginWidth = FieldText(ui_->txtMarginWidth),
                                      .marginHeight = FieldText(ui_->txtMarginHeight),
                                      .scrolling = ScrollingChoice(),
                                      .noResize = ui_->chkNoResize->isChecked(),
                                      .noBorder = ui_->chkNoBorder->isChecked(),
                                      .borderColor = borderColor_},
                                     TagCaseOf(frame_.Store()));
    if (!name.isEmpty())
        result.FrameNameResult = name;
    Unload();
}
