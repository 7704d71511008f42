
#include "builders/AppletTags.h"
#include "builders/BodyTag.h"
#include "builders/ColumnTags.h"
#include "builders/EmbedTag.h"
#include "builders/FontTag.h"
#include "builders/ImageTag.h"
#include "builders/LinkTag.h"
#include "builders/ListText.h"
#include "builders/RuleTag.h"
#include "support/TestFrame.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

/// One row: what a dialog's function gives with LowerCaseTags off and on. A pair is shown as open, "|",
/// close.
struct Row {
    std::function<QString(Frame&)> tag;
    const char16_t* asWritten;
    const char16_t* lowered;
};

void Check(const std::vector<Row>& rows) {
    TestFrame frame;
    for (const Row& row : rows) {
        frame.Store().WriteFlag(Keys::LowerCaseTags, false);
        EXPECT_EQ(row.tag(frame), QString::fromUtf16(row.asWritten));
        frame.Store().WriteFlag(Keys::LowerCaseTags, true);
        EXPECT_EQ(row.tag(frame), QString::fromUtf16(row.lowered));
    }
}

QString Shown(const TagPair& pair) {
    return pair.open + u'|' + pair.close;
}

QString T(const char16_t* text) {
    return QString::fromUtf16(text);
}

Row Body(BodyFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](Frame& frame) { return BodyTag(frame, fields); }, asWritten, lowered};
}

TEST(BodyTag, WritesItsAttributesInOrder) {
    Check({
        Body({}, u"<BODY>", u"<body>"),
        Body({T(u"#FFFFFF"), T(u"#000000"), T(u"#0000FF"), T(u"#800080"), T(u"#FF0000"), T(u"img/back.gif")},
             u"<BODY BGCOLOR=\"#FFFFFF\" TEXT=\"#000000\" LINK=\"#0000FF\" VLINK=\"#800080\" "
             u"ALINK=\"#FF0000\" "
             u"BACKGROUND=\"img/back.gif\">",
             u"<body bgcolor=\"#FFFFFF\" text=\"#000000\" link=\"#0000FF\" vlink=\"#800080\" "
             u"alink=\"#FF0000\" "
             u"background=\"img/back.gif\">"),
        Body({.text = T(u"Black")}, u"<BODY TEXT=\"Black\">", u"<body text=\"Black\">"),
        Body({.bg = T(u"a\"b")}, u"<BODY BGCOLOR=\"a\"b\">", u"<body bgcolor=\"a\"b\">"),
        Body({.vlink = T(u" ")}, u"<BODY VLINK=\" \">", u"<body vlink=\" \">"),
    });
}

struct ColorsRow {
    const char16_t* document;
    BodyFields colors;
};

TEST(BodyColorsOf, TakesTheNextHashBehindTheFirstPlaceOfEachWord) {
    const ColorsRow rows[] = {
        {u"", {}},
        {u"<body BGColor=\"#123456\">", {.bg = T(u"#123456")}},
        {u"<BODY BGCOLOR=\"#111111\" TEXT=\"#222222\" LINK=\"#333333\" VLINK=\"#444444\" ALINK=\"#555555\" "
         u"BACKGROUND=\"a#b.gif\">",
         {T(u"#111111"), T(u"#222222"), T(u"#333333"), T(u"#444444"), T(u"#555555"), QString()}},
        // The word text in a META line: the colour is that of BGCOLOR.
        {u"<META CONTENT=\"text/html\"><BODY BGCOLOR=\"#ABCDEF\" TEXT=\"#222222\">",
         {.bg = T(u"#ABCDEF"), .text = T(u"#ABCDEF")}},
        // A named colour is not read: the next "#" belongs to another attribute.
        {u"<BODY BGCOLOR=red TEXT=\"#222222\">", {.bg = T(u"#222222"), .text = T(u"#222222")}},
        {u"<BODY BGCOLOR=red>", {}},
        // " LINK" wants its blank: VLINK is not LINK, and a line end is no blank.
        {u"<BODY VLINK=#444444>", {.vlink = T(u"#444444")}},
        {u"<BODY\r\nLINK=#333333>", {}},
        {u"#999999 <BODY alink=\"#5", {.alink = T(u"#5")}},
    };
    for (const ColorsRow& row : rows)
        EXPECT_EQ(BodyColorsOf(T(row.document)), row.colors) << T(row.document).toStdString();
}

Row Image(ImageFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](Frame& frame) { return ImageTag(frame, fields); }, asWritten, lowered};
}

TEST(ImageTag, WritesItsAttributesInOrderAndAlwaysTheMap) {
    Check({
        Image({}, u"<IMG USEMAP=\"#\">", u"<img usemap=\"#\">"),
        Image({.url = T(u"a.gif"), .alt = T(u"x"), .width = T(u"10"), .height = T(u"20")},
              u"<IMG ALT=\"x\" WIDTH=10 HEIGHT=20 SRC=\"a.gif\" USEMAP=\"#\">",
              u"<img alt=\"x\" width=10 height=20 src=\"a.gif\" usemap=\"#\">"),
        Image({T(u"A.gif"), T(u"L.gif"), T(u"Alt"), T(u"1"), T(u"2"), T(u"3"), T(u"4"), T(u"5"), T(u"Map"),
               true, QString()},
              u"<IMG ALT=\"Alt\" WIDTH=1 HEIGHT=2 HSPACE=3 VSPACE=4 BORDER=5 LOWSRC=\"L.gif\" SRC=\"A.gif\" "
              u"USEMAP=\"#Map\" ISMAP>",
              u"<img alt=\"Alt\" width=1 height=2 hspace=3 vspace=4 border=5 lowsrc=\"L.gif\" src=\"A.gif\" "
              u"usemap=\"#Map\" ismap>"),
        Image({.url = T(u"a.gif"), .linkMe = T(u"Big.htm")},
              u" <A HREF==\"Big.htm\"><IMG SRC=\"a.gif\" USEMAP=\"#\"></A>",
              u" <a href==\"Big.htm\"><img src=\"a.gif\" usemap=\"#\"></a>"),
        Image({.alt = T(u"say \"x\"")}, u"<IMG ALT=\"say \"x\"\" USEMAP=\"#\">",
              u"<img alt=\"say \"x\"\" usemap=\"#\">"),
    });
}

Row Link(LinkFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](Frame& frame) { return Shown(LinkTag(frame, fields)); }, asWritten, lowered};
}

TEST(LinkTag, JoinsItsPartsUnchecked) {
    Check({
        Link({}, u"<A HREF=\"\">|</A>", u"<a href=\"\">|</a>"),
        Link({QString(), T(u"x.htm"), T(u"top"), T(u"main")}, u"<A HREF=\"x.htm#top\" TARGET=\"main\">|</A>",
             u"<a href=\"x.htm#top\" target=\"main\">|</a>"),
        Link({T(u"http://"), T(u"Dir/X.htm"), QString(), QString()}, u"<A HREF=\"http://Dir/X.htm\">|</A>",
             u"<a href=\"http://Dir/X.htm\">|</a>"),
        Link({T(u"mailto:"), QString(), T(u"a\"b"), QString()}, u"<A HREF=\"mailto:#a\"b\">|</A>",
             u"<a href=\"mailto:#a\"b\">|</a>"),
    });
}

Row Rule(RuleFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](Frame& frame) { return RuleTag(frame, fields); }, asWritten, lowered};
}

TEST(RuleTag, WritesThePercentEvenWithoutAWidth) {
    Check({
        Rule({}, u"<HR>", u"<hr>"),
        Rule({T(u"50"), true, T(u"2"), T(u"CENTER"), true}, u"<HR WIDTH=50% SIZE=2 ALIGN=CENTER NOSHADE>",
             u"<hr width=50% size=2 align=CENTER noshade>"),
        Rule({T(u"50"), false, QString(), QString(), false}, u"<HR WIDTH=50>", u"<hr width=50>"),
        Rule({QString(), true, QString(), QString(), false}, u"<HR%>", u"<hr%>"),
        Rule({QString(), true, T(u"3"), QString(), true}, u"<HR% SIZE=3 NOSHADE>", u"<hr% size=3 noshade>"),
    });
}

Row Font(FontFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](Frame& frame) { return Shown(FontTag(frame, fields)); }, asWritten, lowered};
}

TEST(FontTag, QuotesTheFaceAlone) {
    Check({
        Font({}, u"<FONT>|</FONT>", u"<font>|</font>"),
        Font({T(u"3"), T(u"#FF0000"), T(u"Arial, Verdana")},
             u"<FONT SIZE=3 COLOR=#FF0000 FACE=\"Arial, Verdana\">|</FONT>",
             u"<font size=3 color=#FF0000 face=\"Arial, Verdana\">|</font>"),
        Font({T(u"+1"), QString(), QString()}, u"<FONT SIZE=+1>|</FONT>", u"<font size=+1>|</font>"),
    });
}

TEST(WithFace, JoinsNamesByACommaAndABlank) {
    EXPECT_EQ(WithFace(QString(), T(u"Arial")), T(u"Arial"));
    EXPECT_EQ(WithFace(T(u"Arial"), T(u"Verdana")), T(u"Arial, Verdana"));
    EXPECT_EQ(WithFace(T(u" "), T(u"Verdana")), T(u" , Verdana"));
}

TEST(FaceNames, AreSortedInAnyCaseEachOnceWithoutAMaker) {
    EXPECT_EQ(FaceNames({T(u"Zapf"), T(u"arial"), T(u"Courier [urw]"), T(u"Courier [adobe]"), T(u"Books"),
                         T(u"A [b] c"), T(u"[x]")}),
              (QStringList{T(u"[x]"), T(u"A [b] c"), T(u"arial"), T(u"Books"), T(u"Courier"), T(u"Zapf")}));
}

Row Applet(AppletFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](Frame& frame) { return Shown(AppletTag(frame, fields)); }, asWritten, lowered};
}

TEST(AppletTag, QuotesNothing) {
    Check({
        Applet({}, u"<APPLET>|\r\n</APPLET>", u"<applet>|\r\n</applet>"),
        Applet({T(u"Base"), T(u"A.class"), T(u"1"), T(u"2"), T(u"two words"), T(u"n"), T(u"3"), T(u"4"),
                T(u"LEFT")},
               u"<APPLET CODEBASE=Base CODE=A.class WIDTH=1 HEIGHT=2 ALT=two words NAME=n VSPACE=3 HSPACE=4 "
               u"ALIGN=LEFT>|\r\n</APPLET>",
               u"<applet codebase=Base code=A.class width=1 height=2 alt=two words name=n vspace=3 hspace=4 "
               u"align=LEFT>|\r\n</applet>"),
    });
}

Row Param(const char16_t* name, const char16_t* value, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](Frame& frame) { return ParamTag(frame, T(name), T(value)); }, asWritten, lowered};
}

TEST(ParamTag, QuotesNothing) {
    Check({
        Param(u"", u"", u"<PARAM>", u"<param>"),
        Param(u"Speed", u"very fast", u"<PARAM NAME=Speed VALUE=very fast>",
              u"<param name=Speed value=very fast>"),
        Param(u"", u"1", u"<PARAM VALUE=1>", u"<param value=1>"),
    });
}

Row Embed(EmbedFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](Frame& frame) { return EmbedTag(frame, fields); }, asWritten, lowered};
}

TEST(EmbedTag, QuotesTheSourceAlone) {
    Check({
        Embed({}, u"<EMBED>", u"<embed>"),
        Embed({T(u"1"), T(u"2"), T(u"BACKGROUND"), T(u"My x.mid")},
              u"<EMBED WIDTH=1 HEIGHT=2 PALETTE=BACKGROUND SRC=\"My x.mid\">",
              u"<embed width=1 height=2 palette=BACKGROUND src=\"My x.mid\">"),
    });
}

Row Spacer(SpacerKind kind, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](Frame& frame) {
                return SpacerTag(frame, {kind, T(u"5"), T(u"10"), T(u"20"), T(u"LEFT")});
            },
            asWritten, lowered};
}

TEST(SpacerTag, WritesTheFieldsOfItsKindAlone) {
    Check({
        Spacer(SpacerKind::None, u"<SPACER TYPE=>", u"<spacer type=>"),
        Spacer(SpacerKind::Horizontal, u"<SPACER TYPE=HORIZONTAL SIZE=5>",
               u"<spacer type=horizontal size=5>"),
        Spacer(SpacerKind::Vertical, u"<SPACER TYPE=VERTICAL SIZE=5>", u"<spacer type=vertical size=5>"),
        Spacer(SpacerKind::Block, u"<SPACER TYPE=BLOCK WIDTH=10 HEIGHT=20 ALIGN=LEFT>",
               u"<spacer type=block width=10 height=20 align=LEFT>"),
        {[](Frame& frame) {
             return SpacerTag(frame, {SpacerKind::Block, {}, {}, {}, {}});
         },
         u"<SPACER TYPE=BLOCK>", u"<spacer type=block>"},
    });
}

Row Columns(const char16_t* cols, const char16_t* gutter, const char16_t* width, const char16_t* asWritten,
            const char16_t* lowered) {
    return {[=](Frame& frame) { return Shown(MultiColumnTag(frame, T(cols), T(gutter), T(width))); },
            asWritten, lowered};
}

TEST(MultiColumnTag, WritesItsAttributesInOrder) {
    Check({
        Columns(u"", u"", u"", u"<MULTICOL>|</MULTICOL>", u"<multicol>|</multicol>"),
        Columns(u"2", u"8", u"90%", u"<MULTICOL COLS=2 GUTTER=8 WIDTH=90%>|</MULTICOL>",
                u"<multicol cols=2 gutter=8 width=90%>|</multicol>"),
    });
}

Row List(const char16_t* kind, QStringList items, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](Frame& frame) { return ListText(frame, T(kind), items); }, asWritten, lowered};
}

TEST(ListText, WritesALinePerItem) {
    const QStringList two = {T(u"One"), T(u"<B>Two</B>")};
    Check({
        List(u"U", two, u"<UL>\r\n<LI>One\r\n<LI><B>Two</B>\r\n</UL>",
             u"<ul>\r\n<li>One\r\n<li><B>Two</B>\r\n</ul>"),
        List(u"O", two, u"<OL>\r\n<LI>One\r\n<LI><B>Two</B>\r\n</OL>",
             u"<ol>\r\n<li>One\r\n<li><B>Two</B>\r\n</ol>"),
        List(u"D", two, u"<DL>\r\n<DT>One\r\n<DT><B>Two</B>\r\n</DL>",
             u"<dl>\r\n<dt>One\r\n<dt><B>Two</B>\r\n</dl>"),
        List(u"U", {}, u"<UL>\r\n</UL>", u"<ul>\r\n</ul>"),
        List(u"O", {QString()}, u"<OL>\r\n<LI>\r\n</OL>", u"<ol>\r\n<li>\r\n</ol>"),
        List(u"", two, u"", u""),
        List(u"u", two, u"", u""),
    });
}

} // namespace
