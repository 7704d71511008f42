// The Frames dialog: a frameset, split and described on a picture of the page.
#pragma once

#include "builders/frames/FrameSplit.h"
#include "dialogs/TagDialog.h"

#include <array>
#include <memory>
#include <optional>
#include <QTimer>
#include <vector>

class FrameButton;
class QLineEdit;

namespace Ui {
class VisFrame;
}

class VisFrame final : public TagDialog {
    Q_OBJECT

  public:
    explicit VisFrame(Frame& frame);
    ~VisFrame() override;

  private:
    void cmdAcross_Click();
    void cmdUpDown_Click();
    void cmdFrame_Click(int index);
    /// The hint below the picture blinks.
    void Timer1_Timer();
    void cmdOK_Click() override;

    void Split(FrameDirection direction);
    /// Asks until the count is taken; nothing where the form went meanwhile.
    std::optional<int> AskCount(FrameDirection direction);
    void ShowFrames(int count);
    void ShowSizes(int count);
    /// The button of a frame, made where there is none yet. Those of an earlier, larger split stay.
    FrameButton& cmdFrame(int index);
    void AddFrame(FrameButton* button);
    void TakeResult(int index);

    std::unique_ptr<Ui::VisFrame> ui_;
    FrameDirection direction_ = FrameDirection::None;
    std::vector<FrameButton*> cmdFrame_;
    std::array<QLineEdit*, 6> txtSizes_;
    QTimer Timer1_;
};
