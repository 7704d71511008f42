#include "builders/page/FontTag.h"

#include "dialogs/TagRows.h"

namespace {

Row Font(FontFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return Shown(FontTag(fields, tagCase)); }, asWritten, lowered};
}

TEST(FontTag, QuotesTheFaceAlone) {
    Check({
        Font({}, u"<FONT>|</FONT>", u"<font>|</font>"),
        Font({.size = T(u"3"), .color = T(u"#FF0000"), .face = T(u"Arial, Verdana")},
             u"<FONT SIZE=3 COLOR=#FF0000 FACE=\"Arial, Verdana\">|</FONT>",
             u"<font size=3 color=#FF0000 face=\"Arial, Verdana\">|</font>"),
        Font({.size = T(u"+1")}, u"<FONT SIZE=+1>|</FONT>", u"<font size=+1>|</font>"),
    });
}

TEST(WithFace, JoinsNamesByACommaAndABlank) {
    EXPECT_EQ(WithFace(QString(), T(u"Arial")), T(u"Arial"));
    EXPECT_EQ(WithFace(T(u"Arial"), T(u"Verdana")), T(u"Arial, Verdana"));
    EXPECT_EQ(WithFace(T(u" "), T(u"Verdana")), T(u" , Verdana"));
}

} // namespace
