// Prompts that follow a script and record what was asked.
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

template <typename T> std::optional<T> Next(std::deque<T>& answers, const char* what, const QString& text) {
    if (answers.empty()) {
        // Whoever asks until an answer suits would ask for ever.
        static int unanswered = 0;
        if (++unanswered > 1000)
            qFatal("asked in vain for a %s: %s", what, qPrintable(text));
        ADD_FAILURE() << "unexpected " << what << ": " << text.toStdString();
        return std::nullopt;
    }
    T answer = answers.front();
    answers.pop_front();
    return answer;
}

} // namespace

QStringList ScriptedPrompts::Messages() const {
    QStringList texts;
    for (const Asked& one : asked) {
        if (one.kind == Asked::Message)
            texts << one.text;
    }
    return texts;
}

FileAnswer ScriptedPrompts::Picked(const QString& path) {
    const QChar separator = path.startsWith(QLatin1Char('/')) ? QLatin1Char('/') : QLatin1Char('\\');
    const qsizetype cut = path.lastIndexOf(separator) + 1;
    return {path.left(cut), {path.mid(cut)}};
}

MsgAnswer ScriptedPrompts::MsgBox(QWidget* owner, const QString& text, MsgButtons buttons, MsgIcon icon,
                                  const QString& title) {
    asked.push_back({Asked::Message, text, title, buttons, icon, {}, owner});
    if (whileAsked)
        whileAsked();
    if (buttons == MsgButtons::OK)
        return MsgAnswer::OK;
    const bool hasNoCancel = buttons == MsgButtons::YesNo || buttons == MsgButtons::YesOrNoByDefault;
    const MsgAnswer refusal = hasNoCancel ? MsgAnswer::No : MsgAnswer::Cancel;
    return Next(messageAnswers, "message box", text).value_or(refusal);
}

QString ScriptedPrompts::InputBox(QWidget* owner, const QString& prompt, const QString& title,
                                  const QString& standard) {
    asked.push_back({Asked::Input, prompt, title, MsgButtons::OKCancel, MsgIcon::None, {}, owner, standard});
    if (whileAsked)
        whileAsked();
    return Next(inputAnswers, "input box", prompt).value_or(QString());
}

std::optional<ColorNumber> ScriptedPrompts::ChooseColor(QWidget* owner, QByteArray& customColors) {
    asked.push_back({Asked::Color, {}, {}, MsgButtons::OKCancel, MsgIcon::None, {}, owner});
    customColorsSeen = customColors;
    if (!customColorsLeft.isEmpty())
        customColors = customColorsLeft;
    return Next(colorAnswers, "colour dialog", QString()).value_or(std::nullopt);
}

FileAnswer ScriptedPrompts::OpenFile(QWidget* owner, const FileRequest& request) {
    asked.push_back({Asked::Open, {}, {}, MsgButtons::OKCancel, MsgIcon::None, request, owner});
    if (whileOpen)
        whileOpen(request);
    return Next(openAnswers, "open dialog", request.filter).value_or(FileAnswer());
}

FileAnswer ScriptedPrompts::SaveFile(QWidget* owner, const FileRequest& request) {
    asked.push_back({Asked::Save, {}, {}, MsgButtons::OKCancel, MsgIcon::None, request, owner});
    if (whileOpen)
        whileOpen(request);
    return Next(saveAnswers, "save dialog", request.filter).value_or(FileAnswer());
}
