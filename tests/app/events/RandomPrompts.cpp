#include "app/events/RandomPrompts.h"

#include "app/events/EventLog.h"

#include <algorithm>
#include <QFileInfo>
#include <QWidget>

namespace {

std::vector<MsgAnswer> AnswersOf(MsgButtons buttons) {
    switch (buttons) {
    case MsgButtons::OKCancel:
        return {MsgAnswer::OK, MsgAnswer::Cancel};
    case MsgButtons::YesNo:
    case MsgButtons::YesOrNoByDefault:
        return {MsgAnswer::No, MsgAnswer::Yes};
    case MsgButtons::YesNoCancel:
        return {MsgAnswer::No, MsgAnswer::Yes, MsgAnswer::Cancel};
    case MsgButtons::OK:
        break;
    }
    return {MsgAnswer::OK};
}

FileAnswer AnswerOf(const QString& path) {
    return {.folder = QFileInfo(path).path() + u'/', .names = {QFileInfo(path).fileName()}};
}

/// An answer that would lead out of the playground counts as Cancel.
FileAnswer Within(const FileAnswer& answer) {
    return std::ranges::all_of(answer.Paths(), &Playground::Holds) ? answer : FileAnswer();
}

} // namespace

void RandomPrompts::Note(const QString& kind, const QString& text) {
    asked_ << kind + text.left(24);
    log_.Note(QStringLiteral("  asked: ") + kind + text.left(60).simplified());
}

MsgAnswer RandomPrompts::MsgBox(QWidget* owner, const QString& text, MsgButtons buttons, MsgIcon icon,
                                const QString& title) {
    Note(QStringLiteral("message "), text);
    const std::vector<MsgAnswer> answers = AnswersOf(buttons);
    if (refuses_)
        return answers.front();
    return kind_ == Kind::Boxes ? boxes_.MsgBox(owner, text, buttons, icon, title) : dice_.From(answers);
}

QString RandomPrompts::InputBox(QWidget* owner, const QString& prompt, const QString& title,
                                const QString& standard) {
    Note(QStringLiteral("input "), prompt);
    // Some questions take nothing but a number for an answer.
    if (refuses_)
        return QStringLiteral("3");
    if (kind_ == Kind::Boxes)
        return boxes_.InputBox(owner, prompt, title, standard);
    // A field of one line gives no line ends.
    return dice_.Percent(25)   ? QString()
           : dice_.Percent(25) ? standard
                               : AnyText(dice_).remove(u'\r').remove(u'\n');
}

std::optional<ColorNumber> RandomPrompts::ChooseColor(QWidget* owner, QByteArray& customColors) {
    Note(QStringLiteral("colour"), {});
    if (refuses_)
        return std::nullopt;
    if (kind_ == Kind::Boxes)
        return boxes_.ChooseColor(owner, customColors);
    return dice_.OneIn(3) ? std::nullopt : std::optional<ColorNumber>(dice_.Below(0x1000000));
}

FileAnswer RandomPrompts::AnyPath(const FileRequest& request) {
    if (dice_.OneIn(4))
        return {};
    const QString path = ground_.AnyFile(dice_);
    if (request.selectionChanged && dice_.OneIn(2))
        request.selectionChanged(path);
    return path.isEmpty() ? FileAnswer() : AnswerOf(path);
}

FileAnswer RandomPrompts::OpenFile(QWidget* owner, const FileRequest& request) {
    Note(QStringLiteral("open "), request.filter);
    if (refuses_)
        return {};
    return kind_ == Kind::Boxes ? Within(boxes_.OpenFile(owner, request)) : AnyPath(request);
}

FileAnswer RandomPrompts::SaveFile(QWidget* owner, const FileRequest& request) {
    Note(QStringLiteral("save "), request.filter);
    if (refuses_)
        return {};
    return kind_ == Kind::Boxes ? Within(boxes_.SaveFile(owner, request)) : AnyPath(request);
}
