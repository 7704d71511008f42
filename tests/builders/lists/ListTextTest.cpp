#include "builders/lists/ListText.h"

#include "dialogs/TagRows.h"

namespace {

Row List(const char16_t* kind, QStringList items, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return ListText(T(kind), items, tagCase); }, asWritten, lowered};
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
