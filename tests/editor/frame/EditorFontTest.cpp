// The font of the documents' text, from settings good and bad.
#include "editor/frame/EditorFont.h"

#include "platform/store/Settings.h"
#include "support/FreshUser.h"
#include "support/Text.h"

#include <gtest/gtest.h>

TEST(EditorFont, AFreshUserHasTheDefaults) {
    FreshUser();
    const Settings store;
    EXPECT_EQ(StoredEditorFont(store).family(), QStringLiteral("Arial"));
    EXPECT_EQ(StoredEditorFont(store).pointSizeF(), 10);
}

TEST(EditorFont, SizesAreCutToWhatCanBeDrawn) {
    const std::pair<const char*, double> rows[] = {
        {"12pt", 12}, {"9.5", 9.5}, {"1000", 1000},     {"abc", 10},     {"", 10},
        {"0", 10},    {"-4", 10},   {"99999999", 1638}, {"1e300", 1638}, {"0.001", 1},
    };
    for (const auto& [stored, points] : rows) {
        FreshUser();
        Settings store;
        store.Write(Keys::EditorFontSize, QString::fromLatin1(stored));
        EXPECT_EQ(StoredEditorFont(store).pointSizeF(), points) << stored;
    }
}
