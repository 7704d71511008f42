#include "builders/links/ImageTag.h"

#include "dialogs/TagRows.h"

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

TEST(ImageFieldsOf, EachWordFillsItsField) {
    struct Row {
        const char16_t* key;
        QChar terminator;
        QString ImageFields::*field;
    };
    const Row rows[] = {
        {u"alt=\"", u'"', &ImageFields::alt},       {u"width=", u' ', &ImageFields::width},
        {u"height=", u' ', &ImageFields::height},   {u"hspace=", u' ', &ImageFields::hSpace},
        {u"vspace=", u' ', &ImageFields::vSpace},   {u"border=", u' ', &ImageFields::border},
        {u"lowsrc=\"", u'"', &ImageFields::lowSrc}, {u"align=", u' ', &ImageFields::align},
        {u" src=\"", u'"', &ImageFields::url},      {u"usemap=\"#", u'"', &ImageFields::useMap},
    };
    for (const Row& row : rows) {
        const QString value = row.terminator == u' ' ? T(u"\"a\"") : T(u"a b");
        ImageFields expected;
        expected.*row.field = value;
        const QString tag = u'<' + T(row.key) + value + row.terminator + T(u"more>");
        EXPECT_EQ(ImageFieldsOf(tag), expected) << tag.toStdString();
        EXPECT_EQ(ImageFieldsOf(tag.toUpper()).*row.field, value.toUpper()) << tag.toStdString();
    }
}

TEST(ImageFieldsOf, RowsOfAnImage) {
    struct Row {
        const char16_t* tag;
        QString ImageFields::*field;
        const char16_t* value;
    };
    const Row rows[] = {
        {u"<IMG SRC=\"a.gif\" WIDTH=10 HEIGHT=20>", &ImageFields::url, u"a.gif"},
        {u"<IMG SRC=\"a.gif\" WIDTH=10 HEIGHT=20>", &ImageFields::width, u"10"},
        {u"<IMG SRC=\"a.gif\" WIDTH=10 HEIGHT=20>", &ImageFields::height, u"20"},
        {u"<IMG SRC=\"a.gif\" WIDTH=10 HEIGHT=20>", &ImageFields::alt, u""},
        {u"<IMG SRC=\"my pic.gif\">", &ImageFields::url, u"my pic.gif"},
        {u"<IMG SRC=a.gif>", &ImageFields::url, u""},
        {u"<IMG SRC='a.gif'>", &ImageFields::url, u""},
        {u"<IMG\r\nSRC=\"a.gif\">", &ImageFields::url, u""},
        {u"<IMG LOWSRC=\"l.gif\" SRC=\"s.gif\">", &ImageFields::url, u"s.gif"},
        {u"<IMG LOWSRC=\"l.gif\" SRC=\"s.gif\">", &ImageFields::lowSrc, u"l.gif"},
        {u"<IMG ALT=x>", &ImageFields::alt, u""},
        {u"<IMG ALT=\"\">", &ImageFields::alt, u""},
        {u"<IMG ALT=\"one\" ALT=\"two\">", &ImageFields::alt, u"one"},
        {u"<IMG ALT=\"no end>", &ImageFields::alt, u"no end"},
        {u"<IMG WIDTH=\"100\">", &ImageFields::width, u"\"100\""},
        {u"<IMG WIDTH=\"1 00\">", &ImageFields::width, u"\"1"},
        {u"<IMG WIDTH=10/>", &ImageFields::width, u"10/"},
        {u"<IMG WIDTH=>", &ImageFields::width, u""},
        {u"<IMG hspace=1 vspace=2 border=3 align=LEFT>", &ImageFields::hSpace, u"1"},
        {u"<IMG hspace=1 vspace=2 border=3 align=LEFT>", &ImageFields::vSpace, u"2"},
        {u"<IMG hspace=1 vspace=2 border=3 align=LEFT>", &ImageFields::border, u"3"},
        {u"<IMG hspace=1 vspace=2 border=3 align=LEFT>", &ImageFields::align, u"LEFT"},
        {u"<IMG USEMAP=\"#m\">", &ImageFields::useMap, u"m"},
        {u"<IMG USEMAP=\"m\">", &ImageFields::useMap, u""},
        {u"<IMG USEMAP=\"#\">", &ImageFields::useMap, u""},
        {u"", &ImageFields::url, u""},
        {u"width=", &ImageFields::width, u""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ImageFieldsOf(T(row.tag)).*row.field, T(row.value)) << T(row.tag).toStdString();
}

TEST(ImageFieldsOf, TheServersMapInAnyCaseAnywhere) {
    EXPECT_TRUE(ImageFieldsOf(T(u"<IMG SRC=\"a.gif\" ISMAP>")).isMap);
    EXPECT_TRUE(ImageFieldsOf(T(u"<img ismap>")).isMap);
    EXPECT_TRUE(ImageFieldsOf(T(u"<img alt=\"thismap\">")).isMap);
    EXPECT_FALSE(ImageFieldsOf(T(u"<img usemap=\"#m\">")).isMap);
}

TEST(ImageFieldsOf, WhatIsWrittenIsReadBack) {
    const ImageFields fields{.url = T(u"a b.gif"),
                             .lowSrc = T(u"l.gif"),
                             .alt = T(u"An alt"),
                             .width = T(u"1"),
                             .height = T(u"2"),
                             .hSpace = T(u"3"),
                             .vSpace = T(u"4"),
                             .border = T(u"5"),
                             .useMap = T(u"m"),
                             .isMap = true};
    for (const TagCase tagCase : {TagCase::AsWritten, TagCase::Lower})
        EXPECT_EQ(ImageFieldsOf(ImageTag(fields, tagCase)), fields);
    ImageFields aligned = fields;
    aligned.align = T(u"TOP");
    EXPECT_EQ(ImageFieldsOf(ImageTag(aligned, TagCase::AsWritten)), fields) << "the alignment is lost";
}

} // namespace
