#include "dialogs/TagValue.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

QString T(QStringView text) {
    return text.toString();
}

TEST(TagValue, EndsAtAQuoteOrAtABlank) {
    struct Row {
        QStringView tag;
        QStringView key;
        QStringView quoted, plain;
    };
    const Row rows[] = {
        {u"<a KEY=\"one two\" b>", u"key=\"", u"one two", u"one"},
        {u"<a key=one\" b>", u"key=", u"one", u"one\""},
        {u"<a key=one>", u"key=", u"one", u"one"},
        {u"<a key=one key=two >", u"key=", u"one key=two ", u"one"},
        {u"<a key=>", u"key=", u"", u""},
        {u"key=", u"key=", u"", u""},
        {u"<a>", u"key=", u"", u""},
        {u"", u"key=", u"", u""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(QuotedValue(T(row.tag), row.key), T(row.quoted)) << T(row.tag).toStdString();
        EXPECT_EQ(PlainValue(T(row.tag), row.key), T(row.plain)) << T(row.tag).toStdString();
    }
}

} // namespace
