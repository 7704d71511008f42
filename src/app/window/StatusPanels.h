// The status bar: date, time, and the program's own panel.
#pragma once

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

    /// Writes panel 3; now paints it before returning, for what comes up ahead of a long step.
    void SetPanel3(const QString& text, bool now = false);
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
    QTimer minute_{this};
};
