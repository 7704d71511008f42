#include "platform/values/Utf8.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

TEST(Utf8, EveryMarkIsACharacter) {
    for (const QString& text : {u""_s, u"\uFEFF"_s, u"\uFEFF\uFEFFa"_s, u"a\uFEFF"_s, u"\uFEFF\U0001F600"_s})
        EXPECT_EQ(Utf8::ToText(text.toUtf8()), text) << text.size();
}

TEST(Utf8, TellsAsciiFromTheRest) {
    for (const qsizetype size : {0, 1, 4095, 4096, 4097, 10000}) {
        QByteArray bytes(size, 'a');
        EXPECT_TRUE(Utf8::IsAscii(bytes)) << size;
        EXPECT_TRUE(Utf8::IsAscii(QString::fromLatin1(bytes))) << size;
        bytes += '\x80';
        EXPECT_FALSE(Utf8::IsAscii(bytes)) << size;
        EXPECT_FALSE(Utf8::IsAscii(QString::fromLatin1(bytes))) << size;
    }
    EXPECT_TRUE(Utf8::IsAscii(QByteArrayView("\0\x7F", 2)));
    EXPECT_FALSE(Utf8::IsAscii(u"\u2603"));
}

} // namespace
