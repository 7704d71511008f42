// The reader of map files: what each line gives.
#include "tools/transforms/MapAreas.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const char16_t* map;
    const char16_t* areas;
};

const Row rows[] = {
    {u"", u""},
    {u"rect /a.htm 0,0 10,10", u"<AREA SHAPE=\"RECT\" COORDS=\"0,0 10,10\" HREF=\"/a.htm\">\r\n"},
    {u"circle http://x/B.htm 5,5 3\r\npoly c.htm 1,1 2,2 3,3\r\n",
     u"<AREA SHAPE=\"CIRCLE\" COORDS=\"5,5 3\" HREF=\"http://x/B.htm\">\r\n"
     u"<AREA SHAPE=\"POLY\" COORDS=\"1,1 2,2 3,3\" HREF=\"c.htm\">\r\n"},
    // Each line end ends one line.
    {u"r a 1\nr b 2\rr c 3\r\n", u"<AREA SHAPE=\"R\" COORDS=\"1\" HREF=\"a\">\r\n"
                                 u"<AREA SHAPE=\"R\" COORDS=\"2\" HREF=\"b\">\r\n"
                                 u"<AREA SHAPE=\"R\" COORDS=\"3\" HREF=\"c\">\r\n"},
    // Skipped, wherever the mark stands; in this case alone.
    {u"# comment", u""},
    {u"rect /a.htm 0,0 1,1 # the first", u""},
    {u"rect /a.htm#top 0,0 1,1", u""},
    {u"default /x.htm", u""},
    {u"rect /default .htm 0,0", u""},
    {u"DEFAULT /x.htm 1", u"<AREA SHAPE=\"DEFAULT\" COORDS=\"1\" HREF=\"/x.htm\">\r\n"},
    {u"rect default.htm 1", u"<AREA SHAPE=\"RECT\" COORDS=\"1\" HREF=\"default.htm\">\r\n"},
    // Two blanks make the second item empty, and the link goes with the pairs.
    {u"rect  /a.htm 0,0 10,10", u"<AREA SHAPE=\"RECT\" COORDS=\"/a.htm 0,0 10,10\" HREF=\"\">\r\n"},
    {u" rect /a.htm 0,0", u"<AREA SHAPE=\"\" COORDS=\"/a.htm 0,0\" HREF=\"rect\">\r\n"},
    {u"rect /a.htm  0,0  ", u"<AREA SHAPE=\"RECT\" COORDS=\"0,0\" HREF=\"/a.htm\">\r\n"},
    // A link that stands last is split wrong.
    {u"rect 0,0 10,10 /a.htm", u"<AREA SHAPE=\"RECT\" COORDS=\"10,10 /a.htm\" HREF=\"0,0\">\r\n"},
    // What is missing is empty.
    {u"\r\n", u"<AREA SHAPE=\"\" COORDS=\"\" HREF=\"\">\r\n"},
    {u"rect", u"<AREA SHAPE=\"\" COORDS=\"rect\" HREF=\"\">\r\n"},
    {u"rect /a.htm", u"<AREA SHAPE=\"RECT\" COORDS=\"rect /a.htm\" HREF=\"\">\r\n"},
    {u" ", u"<AREA SHAPE=\"\" COORDS=\"\" HREF=\"\">\r\n"},
    // A tab is no blank.
    {u"rect\t/a.htm\t0,0", u"<AREA SHAPE=\"\" COORDS=\"rect\t/a.htm\t0,0\" HREF=\"\">\r\n"},
    // The shape alone changes case, and to letters that a document holds.
    {u"re\u00e9\u00df\u00b5\u00ff Ab.htm Cd",
     u"<AREA SHAPE=\"RE\u00c9\u00df\u00b5\u0178\" COORDS=\"Cd\" HREF=\"Ab.htm\">\r\n"},
};

TEST(MapAreas, Rows) {
    for (const Row& row : rows)
        EXPECT_EQ(MapAreas(row.map), QString::fromUtf16(row.areas))
            << QString::fromUtf16(row.map).toStdString();
}

TEST(MapTag, StandsAroundItsAreas) {
    EXPECT_EQ(MapTag(QStringLiteral("m"), QStringLiteral("<AREA>\r\n")),
              QStringLiteral("<MAP NAME=\"m\">\r\n<AREA>\r\n</MAP>"));
    EXPECT_EQ(MapTag(QString(), QString()), QStringLiteral("<MAP NAME=\"\">\r\n</MAP>"));
}

} // namespace
