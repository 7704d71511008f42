// The words on a save that failed.
#include "editor/frame/TellFailedSave.h"

#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

TEST(TellFailedSave, NamesTheFileAndTheReason) {
    TestFrame frame;
    TellFailedSave(frame, QStringLiteral("/site/100%1.htm"), QStringLiteral("No space left on device"));
    TellFailedSave(frame, QStringLiteral("C:\\site\\a.htm"), QStringLiteral("%1"));
    EXPECT_EQ(frame.statuses,
              (QStringList{QStringLiteral("Could not save 100%1.htm: No space left on device"),
                           QStringLiteral("Could not save a.htm: %1")}));
}

TEST(TellFailedSave, IsOneNoticeForARunOverManyFiles) {
    TestFrame frame;
    FailedSaves failed;
    TellFailedSaves(frame, failed);
    EXPECT_TRUE(frame.statuses.isEmpty());
    failed.Add(QStringLiteral("/site/100%1.htm"), QStringLiteral("why"));
    TellFailedSaves(frame, failed);
    failed.Add(QStringLiteral("/site/b.htm"), QStringLiteral("why else"));
    TellFailedSaves(frame, failed);
    EXPECT_EQ(frame.statuses,
              (QStringList{QStringLiteral("Could not save 100%1.htm: why"),
                           QStringLiteral("Could not save 2 files, the first 100%1.htm: why")}));
}

TEST(TellFailedSave, IsSilentWithTheSettingOff) {
    TestFrame frame;
    frame.Store().WriteFlag(Keys::TellFailedSaves, false);
    TellFailedSave(frame, QStringLiteral("/site/a.htm"), QStringLiteral("why"));
    FailedSaves failed;
    failed.Add(QStringLiteral("/site/a.htm"), QStringLiteral("why"));
    TellFailedSaves(frame, failed);
    EXPECT_TRUE(frame.statuses.isEmpty());
}

} // namespace
