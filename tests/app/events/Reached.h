// What the events reached: a run that missed a form or a command says nothing about it.
#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>

class CommandSet;
class Frame;

class Reached final : public QObject {
  public:
    Reached();

    /// From now on each command of the frame is noted as it runs.
    void Follow(Frame& frame);
    /// Notes the forms that are loaded now.
    void Look(Frame& frame);

    /// The commands that there are and that never ran yet.
    QStringList MissedCommands() const;
    /// The forms of the program's sources that never came up yet.
    QStringList MissedForms() const;
    bool HasMissed() const { return !MissedCommands().isEmpty() || !MissedForms().isEmpty(); }
    const QSet<QString>& Forms() const { return forms_; }
    qsizetype Commands() const { return commands_.size(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QSet<QString> known_, commands_, forms_;
};
