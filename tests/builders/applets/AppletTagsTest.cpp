#include "builders/applets/AppletTags.h"

#include "dialogs/TagRows.h"

namespace {

Row Applet(AppletFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return Shown(AppletTag(fields, tagCase)); }, asWritten, lowered};
}

TEST(AppletTag, QuotesNothing) {
    Check({
        Applet({}, u"<APPLET>|\r\n</APPLET>", u"<applet>|\r\n</applet>"),
        Applet({.codeBase = T(u"Base"),
                .code = T(u"A.class"),
                .width = T(u"1"),
                .height = T(u"2"),
                .alt = T(u"two words"),
                .name = T(u"n"),
                .vSpace = T(u"3"),
                .hSpace = T(u"4"),
                .align = T(u"LEFT")},
               u"<APPLET CODEBASE=Base CODE=A.class WIDTH=1 HEIGHT=2 ALT=two words NAME=n VSPACE=3 HSPACE=4 "
               u"ALIGN=LEFT>|\r\n</APPLET>",
               u"<applet codebase=Base code=A.class width=1 height=2 alt=two words name=n vspace=3 hspace=4 "
               u"align=LEFT>|\r\n</applet>"),
    });
}

Row Param(const char16_t* name, const char16_t* value, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return ParamTag({.name = T(name), .value = T(value)}, tagCase); },
            asWritten, lowered};
}

TEST(ParamTag, QuotesNothing) {
    Check({
        Param(u"", u"", u"<PARAM>", u"<param>"),
        Param(u"Speed", u"very fast", u"<PARAM NAME=Speed VALUE=very fast>",
              u"<param name=Speed value=very fast>"),
        Param(u"", u"1", u"<PARAM VALUE=1>", u"<param value=1>"),
    });
}

} // namespace
