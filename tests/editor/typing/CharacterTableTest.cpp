// The typed letters that become entities: every row, and every code that has none.
#include "editor/typing/CharacterTable.h"

#include "platform/values/Cp1252.h"
#include "support/Text.h"
#include "support/TypingFrame.h"

#include <gtest/gtest.h>
#include <map>

namespace {

const std::map<int, const char*> entities{
    {192, "&Agrave;"}, {193, "&Aacute;"}, {194, "&Acirc;"},  {195, "&Atilde;"}, {196, "&Auml;"},
    {197, "&Aring;"},  {198, "&AElig;"},  {199, "&Ccedil;"}, {200, "&Egrave;"}, {201, "&Eacute;"},
    {202, "&Ecirc;"},  {203, "&Euml;"},   {204, "&Igrave;"}, {205, "&Iacute;"}, {206, "&Icirc;"},
    {207, "&Iuml;"},   {209, "&Ntilde;"}, {210, "&Ograve;"}, {211, "&Oacute;"}, {212, "&Ocirc;"},
    {213, "&Otilde;"}, {214, "&Ouml;"},   {216, "&Oslash;"}, {217, "&Ugrave;"}, {218, "&Uacute;"},
    {219, "&Ucirc;"},  {220, "&Uuml;"},   {221, "&Yacute;"}, {223, "&szlig;"},  {224, "&agrave;"},
    {225, "&aacute;"}, {226, "&acirc;"},  {227, "&atilde;"}, {228, "&auml;"},   {229, "&aring;"},
    {230, "&aelig;"},  {231, "&ccedil;"}, {232, "&egrave;"}, {233, "&eacute;"}, {234, "&ecirc;"},
    {235, "&euml;"},   {236, "&igrave;"}, {237, "&iacute;"}, {238, "&icirc;"},  {239, "&iuml;"},
    {241, "&ntilde;"}, {242, "&ograve;"}, {243, "&oacute;"}, {244, "&ocirc;"},  {245, "&otilde;"},
    {246, "&ouml;"},   {248, "&oslash;"}, {249, "&ugrave;"}, {250, "&uacute;"}, {251, "&ucirc;"},
    {252, "&uuml;"},   {253, "&yacute;"}, {255, "&yuml;"},
};

TEST(CharacterTable, EveryCode) {
    ASSERT_EQ(entities.size(), 58U);
    for (int code = 0; code < 256; ++code) {
        const auto row = entities.find(code);
        const QString expected = row == entities.end() ? QString() : QString::fromLatin1(row->second);
        EXPECT_EQ(QString(EntityOf(code)), expected) << code;
    }
}

TEST(CharacterTable, SharpSComesLast) {
    EXPECT_EQ(CharacterTable().front().Code, 192);
    EXPECT_EQ(CharacterTable().back().Code, 223);
}

/// Types every printable character of the code page into the real control.
TEST(CharacterTable, TypedCharacters) {
    for (const bool convert : {true, false}) {
        TypingFrame frame;
        frame.Store().WriteFlag(Keys::ConvertChar, convert);
        for (int code = 160; code < 256; ++code) {
            frame.SetText(QString());
            frame.Type(QString(Cp1252::FromCode(code)));
            const auto row = entities.find(code);
            const QString expected = convert && row != entities.end() ? QString::fromLatin1(row->second)
                                                                      : QString(Cp1252::FromCode(code));
            EXPECT_EQ(frame.Box().Text(), expected) << code << (convert ? " converting" : "");
        }
    }
}

TEST(CharacterTable, OnlyAStoredOneConverts) {
    TypingFrame frame;
    frame.Store().Write(Keys::ConvertChar, QStringLiteral("2"));
    frame.Type(QString(QChar(233)));
    EXPECT_EQ(frame.Box().Text(), QString(QChar(233)));
}

TEST(CharacterTable, TheSettingIsReadAtEachKey) {
    TypingFrame frame;
    const QString e(QChar(233));
    frame.Type(e);
    frame.Store().WriteFlag(Keys::ConvertChar, false);
    frame.Type(e);
    frame.Store().WriteFlag(Keys::ConvertChar, true);
    frame.Type(e);
    EXPECT_EQ(frame.Marked(), QStringLiteral("&eacute;") + e + QStringLiteral("&eacute;|"));
}

TEST(CharacterTable, ConvertsInTagsAndOverSelections) {
    TypingFrame frame;
    frame.SetMarked("<IMG ALT=\"|\">");
    frame.Type(QString(QChar(252)));
    EXPECT_EQ(frame.Marked(), QStringLiteral("<IMG ALT=\"&uuml;|\">"));
    frame.SetMarked("a[bc]d");
    frame.Type(QString(QChar(220)));
    EXPECT_EQ(frame.Marked(), QStringLiteral("a&Uuml;|d"));
}

} // namespace
