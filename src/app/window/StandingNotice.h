// A notice in the status bar that outlasts windows coming up and going.
#pragma once

#include <QObject>
#include <QString>

/// Stands until the user acts: until the first key or click, or the first click behind one that may be
/// spared. A key that only changes others, as Shift, is no act.
class StandingNotice final : public QObject {
    Q_OBJECT

  public:
    /// SparesAClick: the click that brings a window to the front reaches it when the window is there.
    enum class Ends { AtFirstAct, SparesAClick };

    using QObject::QObject;

    /// Takes the place of one that stands.
    void Begin(const QString& text, Ends ends);
    void End();
    bool Stands() const { return stands_; }
    const QString& Text() const { return text_; }

  Q_SIGNALS:
    /// The user acts.
    void Ended();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool IsAct(const QEvent& event);
    bool IsSpared(const QEvent& click);

    QString text_;
    bool stands_ = false;
    bool sparesAClick_ = false;
    quint64 sparedAt_ = 0; ///< the time stamp of the click that was spared
};
