#include "editor/color/TagCase.h"

#include "platform/store/Settings.h"
#include "support/FreshUser.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

TEST(TagCase, OnlyExactlyOneLowers) {
    FreshUser();
    Settings store;
    EXPECT_EQ(TagCaseOf(store), TagCase::AsWritten) << "before anything is set";
    const std::pair<const char*, TagCase> rows[] = {
        {"1", TagCase::Lower},      {"2", TagCase::AsWritten}, {"0", TagCase::AsWritten},
        {"-1", TagCase::AsWritten}, {"", TagCase::AsWritten},  {"True", TagCase::AsWritten},
        {"1.0", TagCase::Lower},
    };
    for (const auto& [value, tagCase] : rows) {
        store.Write(Keys::LowerCaseTags, QString::fromLatin1(value));
        EXPECT_EQ(TagCaseOf(store), tagCase) << value;
    }
}

TEST(TagCase, WholeTextsAreLowered) {
    const QString words = QStringLiteral("<IMG SRC=\"A.GIF\">");
    EXPECT_EQ(InCase(words, TagCase::AsWritten), words);
    EXPECT_EQ(InCase(words, TagCase::Lower), QStringLiteral("<img src=\"a.gif\">"));
}

} // namespace
