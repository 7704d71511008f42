// A notice in the status bar that outlasts the window's coming up.
#pragma once

#include <QObject>
#include <QString>

class QWidget;
class StatusBar;

/// Writes panel 3 and writes it again where a text that gets the focus has put its line there: the page of
/// the command line gets it only when the frame is on the screen. Ends with the first key or click, and when
/// something else is told in the panel. A child of the status bar; it deletes itself.
class StandingNotice final : public QObject {
    Q_OBJECT

  public:
    StandingNotice(StatusBar& bar, const QString& text);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void TellAgain(const QWidget* focus);
    void End();

    StatusBar& bar_;
    QString text_;
};
