#include "builders/page/BodyTag.h"

#include "dialogs/TagRows.h"

namespace {

Row Body(BodyFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return BodyTag(fields, tagCase); }, asWritten, lowered};
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

} // namespace
