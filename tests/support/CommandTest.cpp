// Runs the commands that write HTML by their names, on a document whose caret and selection are marks in its
// text.
#include "support/CommandTest.h"

#include "platform/values/Cp1252.h"

namespace {

/// The stretches as the document tells them: none empty, no two neighbours of one colour.
Stretches Joined(const Stretches& parts) {
    Stretches joined;
    for (const auto& [text, color] : parts) {
        if (text.isEmpty())
            continue;
        if (!joined.empty() && joined.back().second == color)
            joined.back().first += text;
        else
            joined.emplace_back(text, color);
    }
    return joined;
}

} // namespace

QString Latin(const char* bytes) {
    return Cp1252::FromBytes(bytes);
}

QString TroublesomeText(int bytes) {
    const QString line = Latin("<P>caf\xE9 {\\b \x80} > and a <A HREF=\"x.htm\">link</A>\t&</P>\r\n");
    return line.repeated(bytes / static_cast<int>(line.size()) + 1);
}

void CommandTest::Use(bool lower, bool colored) {
    colored_ = colored;
    frame.Store().WriteFlag(Keys::LowerCaseTags, lower);
    frame.Store().WriteFlag(Keys::ColoredTags, colored);
}

void CommandTest::UnderAllSettings(const char* command,
                                   const std::function<void(bool lower, bool colored)>& body) {
    for (const bool lower : {false, true})
        for (const bool colored : {false, true}) {
            SCOPED_TRACE(testing::Message()
                         << command << (lower ? " lower" : " upper") << (colored ? " coloured" : " plain"));
            Use(lower, colored);
            body(lower, colored);
        }
}

void CommandTest::ExpectWraps(const char* command, const QString& written, int color) {
    const int expected = colored_ ? color : textColor;
    const auto caret = written.indexOf(u'|');
    const QString open = written.left(caret), close = written.mid(caret + 1);
    for (const QString& selected : {QString(), QStringLiteral("X y")}) {
        frame.SetMarked(selected.isEmpty() ? QStringLiteral("a|b")
                                           : QStringLiteral("a[") + selected + QStringLiteral("]b"));
        Run(command);
        EXPECT_EQ(Marked(), u'a' + open + selected + u'|' + close + u'b');
        EXPECT_EQ(frame.Colors(), Joined({{QStringLiteral("a"), textColor},
                                          {open, expected},
                                          {selected, textColor},
                                          {close, expected},
                                          {QStringLiteral("b"), textColor}}));
    }
}

void CommandTest::ExpectOnLongSelection(const char* command,
                                        const std::function<QString(const QString& selection)>& expected) {
    SCOPED_TRACE(command);
    const QString selection = TroublesomeText(10'000'000);
    frame.SetText(selection);
    frame.Box().SetSelStart(0);
    frame.Box().SetSelLength(frame.Box().TextLength());
    frame.prompts.inputAnswers = {QStringLiteral("x"), QStringLiteral("x")};
    Run(command);
    // Not EXPECT_EQ: a failure would print it all.
    EXPECT_TRUE(frame.Box().Text() == expected(selection));
}
