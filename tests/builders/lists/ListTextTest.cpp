#include "builders/lists/ListText.h"

#include "dialogs/TagRows.h"

namespace {

Row List(ListKind kind, QStringList items, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return ListText(kind, items, tagCase); }, asWritten, lowered};
}

TEST(ListText, WritesALinePerItem) {
    const QStringList two = {T(u"One"), T(u"<B>Two</B>")};
    Check({
        List(ListKind::Bullets, two, u"<UL>\r\n<LI>One\r\n<LI><B>Two</B>\r\n</UL>",
             u"<ul>\r\n<li>One\r\n<li><B>Two</B>\r\n</ul>"),
        List(ListKind::Numbers, two, u"<OL>\r\n<LI>One\r\n<LI><B>Two</B>\r\n</OL>",
             u"<ol>\r\n<li>One\r\n<li><B>Two</B>\r\n</ol>"),
        List(ListKind::Definitions, two, u"<DL>\r\n<DT>One\r\n<DT><B>Two</B>\r\n</DL>",
             u"<dl>\r\n<dt>One\r\n<dt><B>Two</B>\r\n</dl>"),
        List(ListKind::Bullets, {}, u"<UL>\r\n</UL>", u"<ul>\r\n</ul>"),
        List(ListKind::Numbers, {QString()}, u"<OL>\r\n<LI>\r\n</OL>", u"<ol>\r\n<li>\r\n</ol>"),
    });
}

} // namespace
