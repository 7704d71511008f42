#include "builders/links/LinkTag.h"

#include "dialogs/TagRows.h"

namespace {

Row Link(LinkFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return Shown(LinkTag(fields, tagCase)); }, asWritten, lowered};
}

TEST(LinkTag, JoinsItsPartsUnchecked) {
    Check({
        Link({}, u"<A HREF=\"\">|</A>", u"<a href=\"\">|</a>"),
        Link({.url = T(u"x.htm"), .anchor = T(u"top"), .target = T(u"main")},
             u"<A HREF=\"x.htm#top\" TARGET=\"main\">|</A>", u"<a href=\"x.htm#top\" target=\"main\">|</a>"),
        Link({.protocol = T(u"http://"), .url = T(u"Dir/X.htm")}, u"<A HREF=\"http://Dir/X.htm\">|</A>",
             u"<a href=\"http://Dir/X.htm\">|</a>"),
        Link({.protocol = T(u"mailto:"), .anchor = T(u"a\"b")}, u"<A HREF=\"mailto:#a\"b\">|</A>",
             u"<a href=\"mailto:#a\"b\">|</a>"),
    });
}

} // namespace
