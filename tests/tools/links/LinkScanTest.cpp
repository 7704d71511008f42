// The scan for links: values, bases, schemes, keys.
#include "tools/links/LinkScan.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

QString T(const char16_t* text) {
    return QString::fromUtf16(text);
}

/// "text -> key (picture)", one a line.
QString Shown(const std::vector<PageLink>& links) {
    QString shown;
    for (const PageLink& link : links)
        shown += QStringLiteral("%1 -> %2 (%3)\n").arg(link.text, link.key).arg(int(link.image));
    return shown;
}

struct ValueRow {
    const char16_t* text;
    int from;
    bool found;
    int position;
    int end;
    const char16_t* value;
};

const ValueRow valueRows[] = {
    {u"<a href=\"x.htm\">", 1, true, 10, 14, u"x.htm"},
    {u"", 1, false, 0, 0, u""},
    {u"no word", 1, false, 0, 0, u""},
    {u"href=\"a.htm\"", 2, false, 0, 0, u""},
    {u"href=x.htm", 1, false, 1, 0, u""},
    {u"href=\"x.htm", 1, false, 7, -1, u""},
    {u"href=\"\"", 1, true, 7, 6, u"/"},
    // Capitals are another word: the caller has lowered the text.
    {u"HREF=\"x.htm\"", 1, false, 0, 0, u""},
    // The next two quotes, whatever they belong to.
    {u"href=x.htm><p id=\"one\">", 1, true, 19, 21, u"one/"},
    {u"href='x.htm'>\"said\"", 1, true, 15, 18, u"said/"},
    {u"plain href \"a.b.c\" text", 1, true, 13, 17, u"a.b.c"},
    // What ends like a file name gets no slash.
    {u"href=\"a.js\"", 1, true, 7, 10, u"a.js/"},
    {u"href=\"a.htm\"", 1, true, 7, 11, u"a.htm"},
    {u"href=\"a.html\"", 1, true, 7, 12, u"a.html"},
    {u"href=\"a.shtml\"", 1, true, 7, 13, u"a.shtml/"},
    {u"href=\"pages/intro\"", 1, true, 7, 17, u"pages/intro/"},
    {u"href=\"pages/intro/\"", 1, true, 7, 18, u"pages/intro/"},
    {u"href=\".\"", 1, true, 7, 7, u"./"},
    {u"href=\".htm\"", 1, true, 7, 10, u".htm"},
    {u"href=\".ab\"", 1, true, 7, 9, u".ab/"},
    {u"href=\"a.htm#top\"", 1, true, 7, 15, u"a.htm#top/"},
};

TEST(FindAttributeValue, Rows) {
    for (const ValueRow& row : valueRows) {
        SCOPED_TRACE(T(row.text).toStdString());
        const AttributeValue value = FindAttributeValue(u"href", row.text, row.from);
        EXPECT_EQ(value.found, row.found);
        EXPECT_EQ(value.position, row.position);
        EXPECT_EQ(value.end, row.end);
        EXPECT_EQ(value.value, T(row.value));
    }
}

struct BaseRow {
    const char16_t* page;
    const char16_t* base;
    const char16_t* root;
};

const BaseRow baseRows[] = {
    {u"http://Host/Dir/page.htm", u"http://host/dir/", u"http://host"},
    {u"http://host/dir/page.html", u"http://host/dir/", u"http://host"},
    {u"http://host/dir/", u"http://host/dir/", u"http://host"},
    // No file's name by its end: it is left whole.
    {u"http://host/dir/page.shtml", u"http://host/dir/page.shtml", u"http://host"},
    {u"http://host", u"http://host", u"http://host"},
    {u"C:\\Site\\a.htm", u"", u""},
    {u"C:\\Site\\a.shtml", u"c:\\site\\a.shtml", u"c:\\site\\a.shtml"},
    // A local path: the first slash behind the seventh place ends the root.
    {u"/home/u/site/a.htm", u"/home/u/site/", u"/home/u"},
    {u"/a.htm", u"/", u"/"},
    {u"", u"", u""},
};

TEST(LinkBase, Rows) {
    for (const BaseRow& row : baseRows) {
        const LinkBase base(T(row.page));
        EXPECT_EQ(base.base, T(row.base)) << T(row.page).toStdString();
        EXPECT_EQ(base.root, T(row.root)) << T(row.page).toStdString();
    }
}

struct LinkRow {
    const char16_t* page;
    const char16_t* text;
    const char16_t* links;
};

const char16_t* const site = u"/home/u/site/A.htm";

const LinkRow linkRows[] = {
    {site, u"<P>no links</P>", u""},
    {site, u"<A HREF=\"B.htm\">b</A>", u"b.htm -> /home/u/site/b.htm (2)\n"},
    {site, u"<A HREF=\"/x/C.htm\">", u"/x/c.htm -> /home/u/x/c.htm (2)\n"},
    {site, u"<A HREF=\"HTTP://HOST/A.HTM\">", u"http://host/a.htm -> http://host/a.htm (3)\n"},
    {site, u"<A HREF=\"file:///x.htm\">", u"file:///x.htm -> file:///x.htm (3)\n"},
    {site, u"<A HREF=\"ftp://host/x.zip\">", u"ftp://host/x.zip -> ftp://host/x.zip (5)\n"},
    {site, u"<A HREF=\"mailto:me@host.com\">", u"mailto:me@host.com -> mailto:me@host.com (4)\n"},
    {site, u"<A HREF=\"mailto:me@host.museum\">", u"mailto:me@host.museum/ -> mailto:me@host.museum/ (4)\n"},
    // Other schemes are not shown, and the scan goes on.
    {site, u"href=\"https://h/a.htm\" href=\"javascript:x()\" href=\"c:\\a.htm\" href=\":a\" href=\"b.htm\"",
     u"b.htm -> /home/u/site/b.htm (2)\n"},
    {site, u"href=\"\"", u"/ -> /home/u/ (2)\n"},
    // A repeated link shows once, also in other letters and under another text.
    {site, u"href=\"b.htm\" href=\"B.HTM\" href=\"b.htm\"", u"b.htm -> /home/u/site/b.htm (2)\n"},
    {site, u"href=\"file:///b.htm\" href=\"b.htm\" href=\"/site/b.htm\"",
     u"file:///b.htm -> file:///b.htm (3)\nb.htm -> /home/u/site/b.htm (2)\n"},
    // A page of small letters has no link to itself.
    {u"/home/u/site/a.htm", u"href=\"a.htm\" href=\"b.htm\"", u"b.htm -> /home/u/site/b.htm (2)\n"},
    {site, u"href=\"a.htm\"", u"a.htm -> /home/u/site/a.htm (2)\n"},
    // A page without a name.
    {u"", u"href=\"b.htm\" href=\"/c.htm\"", u"b.htm -> b.htm (2)\n/c.htm -> /c.htm (2)\n"},
    // The next scan starts within the value, and an unclosed one ends it.
    {site, u"href=\"a href b.htm\" href=\"c.htm\"",
     u"a href b.htm -> /home/u/site/a href b.htm (2)\n href=/ -> /home/u/site/ href=/ (2)\n"
     u"c.htm -> /home/u/site/c.htm (2)\n"},
    {site, u"href=\"b.htm\" href=\"c.htm", u"b.htm -> /home/u/site/b.htm (2)\n"},
    {site, u"href=b.htm href=c.htm", u""},
};

TEST(ExtractLinks, Rows) {
    for (const LinkRow& row : linkRows)
        EXPECT_EQ(Shown(ExtractLinks(T(row.page), T(row.text))), T(row.links)) << T(row.text).toStdString();
}

} // namespace
