// The names of projects in the settings: how far each reader looks, and what a writer leaves.
#include "tools/projects/ProjectNames.h"

#include "platform/store/Settings.h"
#include "support/FreshUser.h"
#include "support/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ProjectNamesTest : public testing::Test {
  protected:
    ProjectNamesTest() { FreshUser(); }
    Settings store;
};

TEST_F(ProjectNamesTest, AGapEndsOneReaderAndIsPassedOverByTheOther) {
    EXPECT_THAT(ProjectNames(store), IsEmpty());
    store.Write(Keys::ProjFile(0), u"one"_s);
    store.Write(Keys::ProjFile(1), u"two"_s);
    store.Write(Keys::ProjFile(3), u"four"_s);
    store.Write(Keys::ProjFile(99), u"last"_s);
    store.Write(Keys::ProjFile(100), u"beyond"_s);
    EXPECT_THAT(ProjectNames(store), ElementsAre(u"one"_s, u"two"_s));
    EXPECT_THAT(ProjectNamesPastGaps(store), ElementsAre(u"one"_s, u"two"_s, u"four"_s, u"last"_s));
}

TEST_F(ProjectNamesTest, StoringLeavesNothingOfWhatWasThere) {
    for (int n = 0; n < 100; ++n)
        store.Write(Keys::ProjFile(n), u"old"_s);
    StoreProjectNames(store, {u"a b"_s, u"ü/…"_s});
    EXPECT_THAT(ProjectNamesPastGaps(store), ElementsAre(u"a b"_s, u"ü/…"_s));
}

TEST_F(ProjectNamesTest, ThereIsRoomForAHundred) {
    QStringList names;
    for (int n = 0; n < 101; ++n)
        names << QString::number(n);
    StoreProjectNames(store, names);
    EXPECT_EQ(ProjectNames(store), names.first(100));
    EXPECT_EQ(store.Read(Keys::ProjFile(100)), QString());
}

} // namespace
