// The text of a settings file: every value comes back, and files of other writers are understood.
#include "platform/store/IniText.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

QString Value(const QByteArray& line) {
    return IniText::Read("[a]\nk=" + line + "\n").value(QStringLiteral("a")).value(QStringLiteral("k"));
}

TEST(IniText, EveryCharacterComesBackInKeysAndValues) {
    IniValues values;
    for (int code = 0; code <= 0xFFFF; ++code) {
        const QString text = QChar(code);
        if (text[0].isSurrogate())
            continue;
        values[QStringLiteral("s") + text][text + QStringLiteral("k") + text] = text + u'7' + text;
    }
    values[QString()][QStringLiteral("k")] = QStringLiteral("in no section");
    values[QStringLiteral("General")][QStringLiteral("k")] = QStringLiteral("in one of that name");
    EXPECT_EQ(IniText::Read(IniText::Write(values)), values);
}

TEST(IniText, IsWrittenAsItAlwaysWas) {
    const IniValues values = {{QStringLiteral("User Tools"),
                               {{QStringLiteral("ButCap(3)"), QStringLiteral("<B>, \"x\"\r\n\\")},
                                {QStringLiteral("a.b-c_\u20ac"), QStringLiteral("@ \u20ac\x01"
                                                                                "7")},
                                {QStringLiteral("z"), QString()}}}};
    EXPECT_EQ(IniText::Write(values), "[User%20Tools]\nButCap%283%29=\"<B>, \\\"x\\\"\\r\\n\\\\\"\n"
                                      "a.b-c_%U20AC=@@ \xE2\x82\xAC\\x1\\x37\nz=\n");
}

TEST(IniText, ValuesAsOthersWriteThem) {
    const struct {
        const char* line;
        QString value;
    } rows[] = {
        {"plain", QStringLiteral("plain")},
        {"  blanks around  ", QStringLiteral("blanks around")},
        {"\"  kept  \"", QStringLiteral("  kept  ")},
        {"a, b", QStringLiteral("a, b")},
        {"text ; a remark", QStringLiteral("text")},
        {"\"text ; none\"", QStringLiteral("text ; none")},
        {"\\x20ac\\x41", QStringLiteral("\u20acA")},
        {"\\x", QString()},
        {"a\\", QStringLiteral("a\\")},
        {"\"open", QStringLiteral("open")},
        {"a=b", QStringLiteral("a=b")},
        {"@ByteArray(abc)", QStringLiteral("abc")},
        {"@@x", QStringLiteral("@x")},
        {"\xE2\x82\xAC", QStringLiteral("\u20ac")},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Value(row.line), row.value) << row.line;
}

TEST(IniText, LinesThatSayNothingArePassedOver) {
    const IniValues values =
        IniText::Read("k=1\r\n;x=2\r\n\r\nwords\r\n=3\r\n[open\r\n[ b ]\r\n y = 4 \r\nn=@Invalid()\r\ncut");
    const IniValues expected = {{QString(), {{QStringLiteral("k"), QStringLiteral("1")}}},
                                {QStringLiteral("b"), {{QStringLiteral("y"), QStringLiteral("4")}}}};
    EXPECT_EQ(values, expected);
}

} // namespace
