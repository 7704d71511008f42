#include "builders/ImageTag.h"

#include "builders/TagRows.h"

namespace {

Row Image(ImageFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return ImageTag(fields, tagCase); }, asWritten, lowered};
}

TEST(ImageTag, WritesItsAttributesInOrderAndAlwaysTheMap) {
    Check({
        Image({}, u"<IMG USEMAP=\"#\">", u"<img usemap=\"#\">"),
        Image({.url = T(u"a.gif"), .alt = T(u"x"), .width = T(u"10"), .height = T(u"20")},
              u"<IMG ALT=\"x\" WIDTH=10 HEIGHT=20 SRC=\"a.gif\" USEMAP=\"#\">",
              u"<img alt=\"x\" width=10 height=20 src=\"a.gif\" usemap=\"#\">"),
        Image({.url = T(u"A.gif"),
               .lowSrc = T(u"L.gif"),
               .alt = T(u"Alt"),
               .width = T(u"1"),
               .height = T(u"2"),
               .hSpace = T(u"3"),
               .vSpace = T(u"4"),
               .border = T(u"5"),
               .useMap = T(u"Map"),
               .isMap = true},
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

} // namespace
