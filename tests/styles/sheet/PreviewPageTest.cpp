#include "styles/sheet/PreviewPage.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

TEST(PreviewPage, HasASampleOfEachElement) {
    const char* const rows[][2] = {
        {"H1", "<H1>Style H1</H1>"},
        {"H2", "<H2>Style H2</H2>"},
        {"H3", "<H3>Style H3</H3>"},
        {"H4", "<H4>Style H4</H4>"},
        {"H5", "<H5>Style H5</H5>"},
        {"H6", "<H6>Style H6</H6>"},
        {"BODY", "<BODY>Style BODY</BODY>"},
        {"FORM", "<FORM>Style FORM</FORM>"},
        {"UL", "<UL>Style UL</UL>"},
        {"LI", "<LI>Style LI</LI>"},
        {"IMG", "<IMG>Style IMG"},
        {"BR", "<BR>Style BR"},
        {"CENTER", "<CENTER>Style CENTER</CENTER>"},
        {"P", "<P>Style P</P>"},
        {"HR", "<HR>Style HR"},
        {"STRONG", "<STRONG>Style STRONG</STRONG>"},
        {"I", "<I>Style I</I>"},
        {"U", "<U>Style U</U>"},
        {"PRE", "<PRE>Style PRE</PRE>"},
        {"DIV", "<DIV>Style DIV</DIV>"},
        {"A:link", "<A:link>Style A:link</A:link>"},
        {"A:visited", "<A:visited>Style A:visited</A:visited>"},
        {"A:active", "<A:active>Style A:active</A:active>"},
        {".x", ""},
        {"#x", ""},
        {"h1", ""},
        {" H1", ""},
        {"H1 B", ""},
        {"", ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(StyleSample(QString::fromLatin1(row[0])), QString::fromLatin1(row[1])) << row[0];
}

TEST(PreviewPage, IsOneLine) {
    EXPECT_EQ(PreviewPage(QStringLiteral("P"), QStringLiteral("P {  }")),
              QStringLiteral("<HTML><HEAD><STYLE type=text/css><!--P {  }--></STYLE></HEAD><BODY>"
                             "<P>Style P</P></BODY></HTML>"));
    EXPECT_EQ(PreviewPage(QStringLiteral(".x"), QStringLiteral(".x { Color: red;  }")),
              QStringLiteral("<HTML><HEAD><STYLE type=text/css><!--.x { Color: red;  }--></STYLE></HEAD>"
                             "<BODY></BODY></HTML>"));
}

} // namespace
