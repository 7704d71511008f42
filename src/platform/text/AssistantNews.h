// What a text control tells assistive technology as it changes.
#pragma once

#include <functional>
#include <QString>
#include <vector>

class QAccessibleEvent;
class QObject;

/// Gathers what was inserted and removed until it is told; without assistive technology on the desktop
/// nothing needs to be gathered. Positions are characters from 0.
class AssistantNews {
  public:
    explicit AssistantNews(QObject& control) : control_(control) {}

    /// Whether somebody listens. What comes in and goes out needs to be reported only then.
    bool Wanted() const;
    void Inserted(int position, const QString& text) { changes_.push_back({true, position, text}); }
    void Removed(int position, const QString& text) { changes_.push_back({false, position, text}); }
    /// Tells of all changes since the last time, in their order.
    void TellChanges();
    /// Tells where the selection and the caret are now.
    void TellCaret(int selStart, int selLength, int caret);

    /// Hears the news in place of the desktop, where it is set.
    std::function<void(QAccessibleEvent&)> hears;

  private:
    struct Change {
        bool inserted;
        int position;
        QString text;
    };

    void Tell(QAccessibleEvent& event) const;

    QObject& control_;
    std::vector<Change> changes_;
};
