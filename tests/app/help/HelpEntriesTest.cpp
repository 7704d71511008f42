#include "app/help/HelpEntries.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString Object(const QString& name, const QString& page) {
    return u"<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"%1\"><param name=\"Local\" value=\"%2\"></OBJECT>\n"_s
        .arg(name, page);
}

TEST(HelpEntries, AListBehindAnEntryHoldsItsChildren) {
    const QString sitemap = u"<BODY><UL>\n"_s + Object(u"A"_s, u"a.html"_s) + u"<UL>"_s +
                            Object(u"A 1"_s, u"a1.html"_s) + Object(u"A 2"_s, u"a.html#two"_s) + u"</UL>"_s +
                            Object(u"B"_s, u""_s) + u"</UL></BODY>"_s;
    const std::vector<HelpEntry> expected = {
        {u"A"_s, u"a.html"_s, {{u"A 1"_s, u"a1.html"_s}, {u"A 2"_s, u"a.html#two"_s}}}, {u"B"_s, u""_s}};
    EXPECT_EQ(HelpEntriesOf(sitemap), expected);
}

TEST(HelpEntries, NamesAreReadAsText) {
    EXPECT_EQ(HelpEntriesOf(u"<ul>"_s + Object(u"&lt;A HREF=&quot;x&quot;&gt; &amp;amp;"_s, u"a.html"_s)),
              (std::vector<HelpEntry>{{u"<A HREF=\"x\"> &amp;"_s, u"a.html"_s}}));
}

TEST(HelpEntries, WhatIsNoSitemapGivesWhatItHolds) {
    EXPECT_TRUE(HelpEntriesOf(QString()).empty());
    EXPECT_TRUE(HelpEntriesOf(u"</UL></UL><object>"_s).empty());
    EXPECT_TRUE(HelpEntriesOf(u"<UL><OBJECT></OBJECT></UL>"_s).empty()) << "an object without a name";
    EXPECT_TRUE(HelpEntriesOf(Object(u"A"_s, u"a.html"_s)).empty()) << "an object outside of any list";
    EXPECT_EQ(HelpEntriesOf(u"<UL><UL>"_s + Object(u"A"_s, u"a.html"_s)).size(), 1u);
}

} // namespace
