// A user who does anything, at any time.
#pragma once

#include "app/events/RandomPrompts.h"
#include "app/events/Stage.h"
#include "platform/store/Settings.h"

#include <functional>
#include <memory>
#include <QObject>

class SingleInstance;
class WebControlsFactory;

/// The program runs as main() runs it, on the files of a playground; the events come one in each turn of its
/// loops, those of modal dialogs included. Where it ends before the last of them it is started anew.
class RandomUser final : public QObject {
  public:
    struct Views {
        /// Gives the browser and design views.
        std::function<WebControlsFactory*()> load;
        /// Whether a view lets no key or click through at the moment.
        std::function<bool()> isBusy = [] { return false; };
        /// Whether one is about to show a page.
        std::function<bool()> isLoading = [] { return false; };
    };

    RandomUser(quint64 seed, RandomPrompts::Kind kind, Reached& reached, Views views);
    ~RandomUser() override;

    /// Plays so many events, then takes everything down. The log tells them.
    void Play(int events);

    /// What went wrong, each with the events that led there.
    const QStringList& Wrong() const { return wrong_; }
    /// The dearest event: the time of this thread that it took, in seconds.
    double Dearest() const { return dearest_; }
    const QSet<QString>& Asked() const { return asked_; }

  protected:
    void timerEvent(QTimerEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Run();
    void Step();
    void Leave();
    void LookAtCost();
    void KeepSmall();
    bool InputIsShut() const;
    bool HasToWait();
    bool Happen();
    void Fail(const QString& what);

    Dice dice_;
    EventLog log_;
    Playground ground_;
    RandomPrompts::Kind kind_;
    Reached& reached_;
    Views views_;
    Hand hand_;
    std::unique_ptr<RandomPrompts> prompts_;
    std::unique_ptr<frmTarnwick> frame_;
    QStringList wrong_;
    QSet<QString> asked_;
    /// What the last event waits for, and how often it was asked.
    std::function<bool()> awaited_;
    int asks_ = 0;
    int timer_ = 0;
    int left_ = 0;
    int tries_ = 0;
    bool stopped_ = false;
    double before_ = -1;
    double dearest_ = 0;
};
