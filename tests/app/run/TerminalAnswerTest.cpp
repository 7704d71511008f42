// --help and --version, in full or by their letters, are answered on the terminal; all else is a path.
#include "app/run/TerminalAnswer.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

std::string Answer(std::vector<const char*> words) {
    words.insert(words.begin(), "tarnwick");
    return TerminalAnswer(static_cast<int>(words.size()), words.data());
}

TEST(TerminalAnswer, TellsVersionAndUsage) {
    EXPECT_EQ(Answer({"--version"}), "The Tarnwick 3.0.6\n");
    EXPECT_EQ(Answer({"-v"}), Answer({"--version"}));
    EXPECT_EQ(Answer({"-h"}), Answer({"--help"}));
    EXPECT_EQ(Answer({"--help"}).find("The Tarnwick 3.0.6\nUsage: tarnwick [FILE]\n"), 0U);
}

TEST(TerminalAnswer, EverythingElseIsAPath) {
    EXPECT_EQ(Answer({}), "");
    EXPECT_EQ(Answer({"a.htm"}), "");
    EXPECT_EQ(Answer({"--help", "a.htm"}), "");
    EXPECT_EQ(Answer({"a.htm", "--version"}), "");
    EXPECT_EQ(Answer({"-x"}), "");
    EXPECT_EQ(Answer({"-h", "a.htm"}), "");
    EXPECT_EQ(Answer({""}), "");
}

} // namespace
