// The names by which the system knows its fonts. The tests' own packages bring a stand-in for the three that
// every page names.
#include "platform/desktop/FaceNames.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <QFontDatabase>
#include <QFontInfo>

using namespace Qt::StringLiterals;

TEST(FaceNames, AreSortedInAnyCaseEachOnceWithoutAMaker) {
    EXPECT_EQ(SortedFaceNames({u"Zapf"_s, u"arial"_s, u"Courier [urw]"_s, u"Courier [adobe]"_s, u"Books"_s,
                               u"A [b] c"_s, u"[x]"_s}),
              (QStringList{u"[x]"_s, u"A [b] c"_s, u"arial"_s, u"Books"_s, u"Courier"_s, u"Zapf"_s}));
}

TEST(FaceNames, HoldEveryInstalledFamilyAndTheNamesThatOneStandsInFor) {
    const QStringList names = FaceNames();
    EXPECT_EQ(names, SortedFaceNames(names));
    for (const QString& family : QFontDatabase::families())
        EXPECT_EQ(names.count(SortedFaceNames({family})[0]), QFontDatabase::isPrivateFamily(family) ? 0 : 1)
            << family.toStdString();
    for (const QString& name : {u"Arial"_s, u"Courier New"_s, u"Times New Roman"_s})
        EXPECT_EQ(names.count(name), 1) << name.toStdString();
}

TEST(FaceNames, HoldANameInUseOnlyWhereOneStandsInForIt) {
    EXPECT_FALSE(FaceNames().contains(u"arial"_s));
    EXPECT_TRUE(FaceNames(u"arial"_s).contains(u"arial"_s));
    for (const QString& name : {u"No Such Font"_s, u""_s, u"Arial Bold Nonsense"_s}) {
        EXPECT_FALSE(HasStandIn(name)) << name.toStdString();
        EXPECT_EQ(FaceNames(name), FaceNames());
    }
}

// A name is offered for what it shows: never the font that stands for anything unknown.
TEST(FaceNames, WhatIsOfferedShowsAsItself) {
    const QString unknown = QFontInfo(QFont(u"No Such Font"_s)).family();
    for (const QString& name : FaceNames()) {
        const bool shows =
            QFontDatabase::families().contains(name) || QFontInfo(QFont(name)).family() != unknown;
        EXPECT_TRUE(shows) << name.toStdString();
    }
}
