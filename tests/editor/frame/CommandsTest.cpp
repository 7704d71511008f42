// Commands by name, and names that stand for others.
#include "editor/frame/Commands.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

TEST(Commands, AnUnknownNameDoesNothing) {
    const CommandSet commands;
    EXPECT_FALSE(commands.Has(QStringLiteral("mnuBold")));
    commands.Run(QStringLiteral("mnuBold"));
    EXPECT_TRUE(commands.Names().isEmpty());
}

TEST(Commands, TheLastHandlerOfANameCounts) {
    CommandSet commands;
    QString ran;
    commands.Set(QStringLiteral("mnuBold"), [&ran] { ran += u'a'; });
    commands.Set(QStringLiteral("mnuBold"), [&ran] { ran += u'b'; });
    commands.Run(QStringLiteral("mnuBold"));
    EXPECT_EQ(ran, QStringLiteral("b"));
    // Names count to the letter.
    EXPECT_FALSE(commands.Has(QStringLiteral("mnubold")));
}

TEST(Commands, AForwardedNameComesWithTheCommandItStandsFor) {
    CommandSet commands;
    int ran = 0;
    commands.Forward(QStringLiteral("tb_print"), QStringLiteral("mnuPrint"));
    EXPECT_FALSE(commands.Has(QStringLiteral("tb_print")));
    commands.Run(QStringLiteral("tb_print"));
    commands.Set(QStringLiteral("mnuPrint"), [&ran] { ++ran; });
    EXPECT_TRUE(commands.Has(QStringLiteral("tb_print")));
    commands.Run(QStringLiteral("tb_print"));
    EXPECT_EQ(ran, 1);
    EXPECT_EQ(commands.Names(), QStringList{QStringLiteral("mnuPrint")});
}

} // namespace
