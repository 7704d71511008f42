#include "builders/page/RuleTag.h"

#include "dialogs/TagRows.h"

namespace {

Row Rule(RuleFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return RuleTag(fields, tagCase); }, asWritten, lowered};
}

TEST(RuleTag, WritesThePercentEvenWithoutAWidth) {
    Check({
        Rule({}, u"<HR>", u"<hr>"),
        Rule({.width = T(u"50"),
              .percent = true,
              .thickness = T(u"2"),
              .align = T(u"CENTER"),
              .noShade = true},
             u"<HR WIDTH=50% SIZE=2 ALIGN=CENTER NOSHADE>", u"<hr width=50% size=2 align=CENTER noshade>"),
        Rule({.width = T(u"50")}, u"<HR WIDTH=50>", u"<hr width=50>"),
        Rule({.percent = true}, u"<HR%>", u"<hr%>"),
        Rule({.percent = true, .thickness = T(u"3"), .noShade = true}, u"<HR% SIZE=3 NOSHADE>",
             u"<hr% size=3 noshade>"),
    });
}

} // namespace
