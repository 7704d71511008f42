#include "styles/sheet/PrintedLine.h"

#include "dialogs/TagRows.h"

#include <gtest/gtest.h>

namespace {

TEST(PrintedLine, TrimsBlanksAloneAndEndsTheLine) {
    const struct {
        QString text;
        QByteArray bytes;
    } rows[] = {
        {QString(), "\r\n"},
        {QStringLiteral("   "), "\r\n"},
        {QStringLiteral("  a b  "), "a b\r\n"},
        {QStringLiteral(" H1 {  }\r\n"), "H1 {  }\r\n\r\n"},
        {QStringLiteral("\t a \t"), "\t a \t\r\n"},
        {QStringLiteral("\r\n a"), "\r\n a\r\n"},
        {T(u"\u00A0a\u00A0"), "\xA0"
                              "a\xA0\r\n"},
        {T(u"\u20AC\u201C\u00E4\u0081"), "\x80\x93\xE4\x81\r\n"},
        {T(u"f: \u2603x\U0001F600"), "f: \\2603 x\\1f600 \r\n"},
        {QString(QChar(0xD83D)), "\\fffd \r\n"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(PrintedLine(row.text), row.bytes) << row.bytes.constData();
}

TEST(PrintedLine, EscapesNothingThatFits) {
    constexpr auto page = CharacterSet::CodePage1252;
    EXPECT_EQ(WithEscapes(T(u"\u20AC \\ & \u00FF"), page), T(u"\u20AC \\ & \u00FF"));
    EXPECT_EQ(WithEscapes(T(u"\u0100"), page), QStringLiteral("\\100 "));
    EXPECT_EQ(WithEscapes(T(u"\u0100"), CharacterSet::Unicode), T(u"\u0100"));
}

} // namespace
