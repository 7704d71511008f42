// Prompts that follow a script and record what was asked.
#pragma once

#include "platform/desktop/Prompts.h"

#include <deque>
#include <QVector>

/// What one prompt asked, with the texts as shown.
struct Asked {
    enum Kind { Message, Input, Color, Open, Save };
    Kind kind;
    QString text;
    QString title;
    MsgButtons buttons = MsgButtons::OK;
    MsgIcon icon = MsgIcon::None;
    FileRequest request;
    QWidget* owner = nullptr;
    QString standard = {}; ///< what an input box holds at first
};

/// Answers come from queues, in order; a prompt with no answer left fails the test and is answered as Cancel
/// (an OK box needs no answer). Every prompt is recorded in asked.
class ScriptedPrompts final : public Prompts {
  public:
    std::deque<MsgAnswer> messageAnswers;
    std::deque<QString> inputAnswers;
    std::deque<std::optional<ColorNumber>> colorAnswers;
    std::deque<FileAnswer> openAnswers;
    std::deque<FileAnswer> saveAnswers;
    /// Called while a file dialog is up, before it answers: where a person would click about in the list.
    std::function<void(const FileRequest&)> whileOpen;
    /// Called while a message or input box is up, before it answers.
    std::function<void()> whileAsked;
    /// Custom colours that the next colour prompt hands back.
    QByteArray customColorsLeft;
    QByteArray customColorsSeen;

    QVector<Asked> asked;
    int beeps = 0;

    /// The texts of all message boxes so far.
    QStringList Messages() const;
    /// A full path as the answer of a file dialog.
    static FileAnswer Picked(const QString& path);
    static FileAnswer Cancelled() { return {}; }

    MsgAnswer MsgBox(QWidget* owner, const QString& text, MsgButtons buttons, MsgIcon icon,
                     const QString& title) override;
    QString InputBox(QWidget* owner, const QString& prompt, const QString& title,
                     const QString& standard) override;
    std::optional<ColorNumber> ChooseColor(QWidget* owner, QByteArray& customColors) override;
    FileAnswer OpenFile(QWidget* owner, const FileRequest& request) override;
    FileAnswer SaveFile(QWidget* owner, const FileRequest& request) override;
    void Beep() override { ++beeps; }
};
