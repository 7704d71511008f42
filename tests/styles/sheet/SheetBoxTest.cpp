#include "styles/sheet/SheetBox.h"

#include "dialogs/TagRows.h"

#include <gtest/gtest.h>

namespace {

TEST(SheetBox, EndsItsLinesWithCarriageReturnAndLineFeed) {
    SheetBox box;
    EXPECT_EQ(box.Text(), QString());
    box.AppendLine(QStringLiteral("H1 {  }"));
    box.AppendLine(QStringLiteral("P {  }"));
    EXPECT_EQ(box.Text(), QStringLiteral("H1 {  }\r\nP {  }\r\n"));
    box.setPlainText(QStringLiteral("typed\nwithout an end"));
    box.AppendLine(QStringLiteral("I {  }"));
    EXPECT_EQ(box.Text(), QStringLiteral("typed\r\nwithout an endI {  }\r\n"));
}

TEST(SheetBox, KeepsEveryOtherCharacter) {
    SheetBox box;
    const QString text = T(u"\u00A0a\t \"'\\{}<&>\u20AC\u2603  ");
    box.AppendLine(text);
    EXPECT_EQ(box.Text(), text + QStringLiteral("\r\n"));
    SheetBox ends;
    ends.AppendLine(T(u"a\r\nb\nc\rd\u2028e\u2029f"));
    EXPECT_EQ(ends.Text(), QStringLiteral("a\r\nb\r\nc\r\nd\r\ne\r\nf\r\n"));
}

TEST(SheetBox, KeepsWhatCanBeUndone) {
    SheetBox box;
    box.AppendLine(QStringLiteral("H1 {  }"));
    box.undo();
    EXPECT_EQ(box.Text(), QString());
}

} // namespace
