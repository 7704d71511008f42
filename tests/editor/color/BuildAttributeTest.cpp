#include "editor/color/BuildAttribute.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

struct AttributeRow {
    const char *name, *value;
    Quotes quotes;
    const char* bare;
    TagCase tagCase;
    const char *result, *nameAfter, *valueAfter, *bareAfter;
};

constexpr Quotes none = Quotes::None;
constexpr Quotes quoted = Quotes::Double;
constexpr TagCase asWritten = TagCase::AsWritten;
constexpr TagCase lower = TagCase::Lower;

TEST(BuildAttribute, FourCasesWithTheirEffects) {
    const AttributeRow rows[] = {
        {"WIDTH", "100", quoted, "", asWritten, " WIDTH=\"100\"", "WIDTH", "\"100\"", ""},
        {"WIDTH", "100", quoted, "", lower, " width=\"100\"", "width", "\"100\"", ""},
        {"WIDTH", "\"100\"", quoted, "", asWritten, " WIDTH=\"\"100\"\"", "WIDTH", "\"\"100\"\"", ""},
        {"WIDTH", "A1", none, "", asWritten, " WIDTH=A1", "WIDTH", "A1", ""},
        {"WIDTH", "A1", none, "", lower, " width=A1", "width", "A1", ""},
        {"ALT", "Big CAT", quoted, "", lower, " alt=\"Big CAT\"", "alt", "\"Big CAT\"", ""},
        {"", "x", none, "", asWritten, " =x", "", "x", ""},
        {"WIDTH", "", quoted, "", lower, "", "WIDTH", "", ""},
        {"WIDTH", "", none, "", asWritten, "", "WIDTH", "", ""},
        {"", "", quoted, " NOSHADE", asWritten, " NOSHADE", "", "", " NOSHADE"},
        {"X", "y", quoted, " NOSHADE", lower, " noshade", "X", "y", " noshade"},
        {"X", "y", none, "<HR", asWritten, "<HR", "X", "y", "<HR"},
    };
    for (const AttributeRow& row : rows) {
        const TagPart part{.name = QString::fromLatin1(row.name),
                           .value = QString::fromLatin1(row.value),
                           .quotes = row.quotes,
                           .bare = QString::fromLatin1(row.bare)};
        const auto [text, after] = BuildAttribute(part, row.tagCase);
        EXPECT_EQ(text, QString::fromLatin1(row.result));
        EXPECT_EQ(after.name, QString::fromLatin1(row.nameAfter));
        EXPECT_EQ(after.value, QString::fromLatin1(row.valueAfter));
        EXPECT_EQ(after.bare, QString::fromLatin1(row.bareAfter));
    }
}

TEST(BuildAttribute, WhatComesBackIsQuotedAgain) {
    const TagPart width = TagPart::Quoted(QStringLiteral("WIDTH"), QStringLiteral("100"));
    const TagPart once = BuildAttribute(width, lower).part;
    EXPECT_EQ(BuildAttribute(once, asWritten).text, QStringLiteral(" width=\"\"100\"\""));
}

TEST(TagPart, OnlyAWordThatIsOnIsWritten) {
    const QString word = QStringLiteral(" NOSHADE");
    EXPECT_EQ(BuildAttribute(TagPart::Word(word), asWritten).text, word);
    EXPECT_EQ(BuildAttribute(TagPart::Word(word, false), asWritten).text, QString());
    EXPECT_EQ(BuildAttribute(TagPart::Plain(word, QStringLiteral("x")), asWritten).text,
              QStringLiteral("  NOSHADE=x"));
}

} // namespace
