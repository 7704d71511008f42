#include "styles/sheet/Rule.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

TEST(Rule, KeepsASemicolonBehindTheLastDeclarationAndTwoBlanksBeforeTheBrace) {
    const struct {
        const char* element;
        QStringList declarations;
        const char* rule;
    } rows[] = {
        {"H1", {"color: red", "font-size: large"}, "H1 { color: red; font-size: large;  }"},
        {"H1", {"color: red"}, "H1 { color: red;  }"},
        {"H1", {}, "H1 {  }"},
        {"", {}, " {  }"},
        {"", {"Color: red"}, " { Color: red;  }"},
        {".x", {"a: b", "a: b", "a: c"}, ".x { a: b; a: b; a: c;  }"},
        {"P", {"x: \"'{};<&\r\n"}, "P { x: \"'{};<&\r\n;  }"},
        {"A:link", {"", ""}, "A:link { ; ;  }"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Rule(QString::fromLatin1(row.element), row.declarations), QString::fromLatin1(row.rule));
}

TEST(Rule, ADeclarationTakesTheRowAsItStands) {
    EXPECT_EQ(Declaration(QStringLiteral("Color"), QStringLiteral("red")), QStringLiteral("Color: red"));
    EXPECT_EQ(Declaration(QStringLiteral("height "), QStringLiteral("10px")),
              QStringLiteral("height : 10px"));
    EXPECT_EQ(Declaration(QStringLiteral("--BOX--"), QString()), QStringLiteral("--BOX--: "));
}

} // namespace
