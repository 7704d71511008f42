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

TEST(TellFailedSave, IsSilentWithTheSettingOff) {
    TestFrame frame;
    frame.Store().WriteFlag(Keys::TellFailedSaves, false);
    TellFailedSave(frame, QStringLiteral("/site/a.htm"), QStringLiteral("why"));
    EXPECT_TRUE(frame.statuses.isEmpty());
}

} // namespace
