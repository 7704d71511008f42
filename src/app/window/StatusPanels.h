// The status bar: date, time, and the program's own panel.
#pragma once

#include "app/window/StandingNotice.h"

#include <QStatusBar>
#include <QTimer>

class QDateTime;
class QLabel;

/// Three panels, named Panel1 to Panel3. The first two follow the clock by themselves, in the desktop's short
/// formats.
class StatusBar final : public QStatusBar {
    Q_OBJECT

  public:
    explicit StatusBar(QWidget* parent = nullptr);

    /// Writes panel 3; now paints it before returning, for what comes up ahead of a long step. A notice ends
    /// by it, but such a step only covers it until the panel is emptied.
    void SetPanel3(const QString& text, bool now = false);
    /// Writes what panel 3 says when there is nothing to tell; it stays behind a notice.
    void SetIdle(const QString& text);
    /// Writes panel 3 until the user acts or something else is told; then what was written meanwhile shows.
    void ShowNotice(const QString& text, StandingNotice::Ends ends = StandingNotice::Ends::AtFirstAct);
    QString Panel3() const;

    /// Writes date and time as they are at a moment.
    void ShowMoment(const QDateTime& moment);
    /// Milliseconds from a moment to the next full minute: when the panels change next.
    static int UntilNextMinute(const QDateTime& moment);

  private:
    void Tick();

    QLabel* date_;
    QLabel* time_;
    QLabel* program_;
    StandingNotice notice_{this};
    QString behind_; ///< what panel 3 says without the notice
    QTimer minute_{this};
};
