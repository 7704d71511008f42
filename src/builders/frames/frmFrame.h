// The Frame dialog: describes one frame of the picture in the Frames dialog.
#pragma once

#include "builders/frames/FrameTags.h"
#include "dialogs/CDialog.h"
#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmFrame;
}

/// Modal over its owner. OK writes nothing into a document: it leaves the frame's tag and name in
/// FrameResult. What a frame was described as before is not read back.
class frmFrame final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmFrame(Frame& frame, QWidget* owner = nullptr);
    ~frmFrame() override;

  private:
    void cmdOpen_Click();
    void Label2_Click();
    void cmdOK_Click() override;
    Scrolling ScrollingChoice() const;

    std::unique_ptr<Ui::frmFrame> ui_;
    CDialog dialog_;
    QString borderColor_; ///< what Label2 shows, as RRGGBB; empty before a colour is picked
};
