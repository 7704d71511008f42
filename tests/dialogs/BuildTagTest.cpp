#include "dialogs/BuildTag.h"

#include "support/Text.h"

#include <gtest/gtest.h>

TEST(BuildTag, PartsInOrderEmptyOnesLeftOut) {
    const QVector<TagPart> parts{TagPart::Quoted(QStringLiteral("ALT"), QStringLiteral("A \"b\" C")),
                                 TagPart::Plain(QStringLiteral("WIDTH"), QStringLiteral("10")),
                                 TagPart::Plain(QStringLiteral("HEIGHT"), QString()),
                                 TagPart::Quoted(QStringLiteral("SRC"), QString()),
                                 TagPart::Word(QStringLiteral(" ISMAP")),
                                 TagPart::Word(QStringLiteral(" NOSHADE"), false)};
    EXPECT_EQ(BuildTag(QStringLiteral("<IMG"), parts, TagCase::AsWritten),
              QStringLiteral("<IMG ALT=\"A \"b\" C\" WIDTH=10 ISMAP>"));
    EXPECT_EQ(BuildTag(QStringLiteral("<IMG"), parts, TagCase::Lower),
              QStringLiteral("<img alt=\"A \"b\" C\" width=10 ismap>"));
    EXPECT_EQ(BuildTag(QStringLiteral("<HR"), {}, TagCase::Lower), QStringLiteral("<hr>"));
}

TEST(BuildTag, PartsAloneHaveNeitherStartNorEnd) {
    const QVector<TagPart> parts{TagPart::Quoted(QStringLiteral("NAME"), QStringLiteral("A")),
                                 TagPart::Quoted(QStringLiteral("VALUE"), QString())};
    EXPECT_EQ(BuildAttributes(parts, TagCase::AsWritten), QStringLiteral(" NAME=\"A\""));
    EXPECT_EQ(BuildAttributes(parts, TagCase::Lower), QStringLiteral(" name=\"A\""));
    EXPECT_EQ(BuildAttributes({}, TagCase::Lower), QString());
}
