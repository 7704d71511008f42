// Prompts that answer by chance, and real ones that reach no file outside of the playground.
#pragma once

#include "app/events/Dice.h"
#include "app/events/Playground.h"
#include "platform/desktop/DesktopPrompts.h"
#include "platform/desktop/Prompts.h"

#include <QSet>

class EventLog;

/// Half of the runs have the desktop's own boxes, which the events have to answer; in the others each prompt
/// is answered at once.
class RandomPrompts final : public Prompts {
  public:
    enum class Kind { Boxes, Answers };

    RandomPrompts(Dice& dice, const Playground& ground, EventLog& log, Kind kind)
        : dice_(dice), ground_(ground), log_(log), kind_(kind) {}

    MsgAnswer MsgBox(QWidget* owner, const QString& text, MsgButtons buttons, MsgIcon icon,
                     const QString& title) override;
    QString InputBox(QWidget* owner, const QString& prompt, const QString& title,
                     const QString& standard) override;
    std::optional<ColorNumber> ChooseColor(QWidget* owner, QByteArray& customColors) override;
    FileAnswer OpenFile(QWidget* owner, const FileRequest& request) override;
    FileAnswer SaveFile(QWidget* owner, const FileRequest& request) override;
    void Beep() override {}

    /// From now on nothing is asked any more: the answer is No, or Cancel where there is no No, or a number.
    void Refuse() { refuses_ = true; }
    /// What was asked so far, each kind of question once.
    const QSet<QString>& Asked() const { return asked_; }

  private:
    FileAnswer AnyPath(const FileRequest& request);
    void Note(const QString& kind, const QString& text);

    Dice& dice_;
    const Playground& ground_;
    EventLog& log_;
    Kind kind_;
    DesktopPrompts boxes_;
    bool refuses_ = false;
    QSet<QString> asked_;
};
