// The web timer: counts the time for which documents are open, and logs it when it goes.
#pragma once

#include "tools/timer/TimeCount.h"

#include <memory>
#include <QDialog>

class Frame;
class QTimer;

namespace Ui {
class frmTime;
}

/// Comes up with a document and goes with the next one that closes, whichever; then it writes its line into
/// the log. Esc gives the keys back to the frame, and the timer goes on.
class frmTime final : public QDialog {
    Q_OBJECT

  public:
    explicit frmTime(Frame& frame);
    ~frmTime() override;

    void reject() override;
    /// Shows it in the lower right corner of what the screen has of the frame, once the frame itself is
    /// there: a window that comes up before its owner stays behind it.
    void ComeUp();

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Timer1_Timer();
    void cmdPause_Click();
    void cmdInfo_Click();
    void Form_QueryUnload();

    Frame& frame_;
    std::unique_ptr<Ui::frmTime> ui_;
    QTimer* timer1_;
    TimeCount count_;
};

/// Shows the timer, if it isn't up. The keys stay where they are.
void ShowWebTimer(Frame& frame);
