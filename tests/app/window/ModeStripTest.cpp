// The strip of the three modes.
#include "app/window/ModeStrip.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QTabBar>
#include <QTest>

namespace {

using namespace Qt::StringLiterals;

TEST(ModeStrip, AClickTellsItsTabTheSelectedOneIncludedAndTheProgramsChoiceDoesNot) {
    TestFrame frame;
    ModeStrip strip(frame);
    strip.resize(400, 40);
    strip.show();
    QStringList clicked;
    QObject::connect(&strip, &ModeStrip::Click, &strip, [&](const QString& caption) { clicked << caption; });
    auto& tabs = *strip.findChild<QTabBar*>(u"TabStrip3"_s);
    const auto click = [&](int index) {
        QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(index).center());
    };
    click(2);
    click(2);
    strip.Select(u"Design"_s);
    EXPECT_EQ(tabs.tabText(tabs.currentIndex()), u"Design"_s);
    click(0);
    EXPECT_EQ(clicked, QStringList({u"View"_s, u"View"_s, u"Edit"_s}));
    strip.Select(u"No such mode"_s);
    EXPECT_EQ(tabs.currentIndex(), 0);
}

} // namespace
