// Reading a tag back, as a pure function of text.
#include "builders/TagParser.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

QString T(QStringView text) {
    return text.toString();
}

QString Value(const QString& tag, const QVector<TagKey>& keys, const char* field) {
    for (const TagKey& key : keys) {
        if (key.field == QLatin1String(field))
            return TagValue(tag, key);
    }
    ADD_FAILURE() << "no row for " << field;
    return {};
}

} // namespace

TEST(FindTagAround, CaretInsideOutsideAndAtTheEdges) {
    struct Row {
        QStringView text;
        int caret;
        std::optional<TagPlace> place;
    };
    const Row rows[] = {
        {u"a<b>c", 2, TagPlace{1, 3}},
        {u"a<b>c", 3, TagPlace{1, 3}},
        {u"a<b>c", 4, std::nullopt}, // right of the ">"
        {u"a<b>c", 5, std::nullopt},
        {u"a<b>c", 1, TagPlace{1, 0}}, // left of the "<": the text's start comes first
        {u"a<b>c", 0, TagPlace{0, 0}},
        {u"<b>", 0, TagPlace{0, 0}},
        {u"<b>", 1, TagPlace{0, 3}},
        {u"<a><b>", 3, std::nullopt}, // between two tags
        {u"plain", 3, TagPlace{3, 0}},
        {u"", 0, TagPlace{0, 0}},
        {u"<a <b>", 4, TagPlace{3, 3}},             // the nearest "<", quotes or not
        {u"<img alt=\"a>b\">", 8, TagPlace{0, 12}}, // a ">" in a value ends the tag
        {u"<img alt=\"a>b\">", 13, std::nullopt},
        {u"<img alt=\"a<b\">", 14, TagPlace{11, 4}},
        {u"text <b", 7, std::nullopt}, // never closed
        {u"<b\r\nc>", 4, TagPlace{0, 6}},
    };
    for (const Row& row : rows) {
        const QString text = T(row.text);
        const auto place =
            FindTagAround(row.caret, [&](int start, int length) { return text.mid(start, length); });
        EXPECT_EQ(place.has_value(), row.place.has_value()) << text.toStdString() << " at " << row.caret;
        if (place && row.place) {
            EXPECT_EQ(place->start, row.place->start) << text.toStdString() << " at " << row.caret;
            EXPECT_EQ(place->length, row.place->length) << text.toStdString() << " at " << row.caret;
        }
    }
}

TEST(FindTagAround, ReadsEachCharacterAtMostOnce) {
    const QString text =
        QStringLiteral("<a ") + QString(1000000, u'x') + QStringLiteral(">") + QString(1000000, u'y');
    qsizetype read = 0;
    const auto reader = [&](int start, int length) {
        const QString part = text.mid(start, length);
        read += part.size();
        return part;
    };
    const auto place = FindTagAround(500000, reader);
    ASSERT_TRUE(place);
    EXPECT_EQ(place->length, 1000004);
    EXPECT_LT(read, 1600000) << "back once, and forward no further than the close";
    read = 0;
    EXPECT_FALSE(FindTagAround(static_cast<int>(text.size()), reader).has_value());
    EXPECT_LT(read, 1010000);
}

TEST(FindTagAround, FarBracketsAreFoundWhereverThePartsReadEnd) {
    const auto find = [](const QString& text, int caret) {
        return FindTagAround(caret, [&](int start, int length) { return text.mid(start, length); });
    };
    for (int far = 4090; far <= 8200; far = far == 4100 ? 8185 : far + 1) {
        const QString filler(far, u'x');
        // Far to the left, far to the right, and none at all.
        EXPECT_EQ(find(u'<' + filler + u'>', far + 1), (TagPlace{0, far + 2})) << far;
        EXPECT_EQ(find(u'<' + filler + u'>', 1), (TagPlace{0, far + 2})) << far;
        EXPECT_EQ(find(u'>' + filler, far + 1), std::nullopt) << far;
        EXPECT_EQ(find(filler, far), (TagPlace{far, 0})) << far;
        EXPECT_EQ(find(u'<' + filler, far + 1), std::nullopt) << far;
    }
}

TEST(KindOfTag, SubstringsInOrder) {
    struct Row {
        QStringView tag;
        TagKind kind;
    };
    const Row rows[] = {
        {u"<IMG SRC=\"a.gif\">", TagKind::Image},
        {u"<img src=\"a.gif\">", TagKind::Image},
        {u"<img\r\nsrc=\"a.gif\">", TagKind::None},
        {u"<img>", TagKind::None},
        {u"<!-- img here -->", TagKind::Image},
        {u"<BODY>", TagKind::Body},
        {u"</BODY>", TagKind::Body},
        {u"<a href=\"antibody.htm\">", TagKind::Body},
        {u"<img alt=\"body\">", TagKind::Image},
        {u"<embed src=\"x.mid\">", TagKind::Embed},
        {u"<embed src=\"body.mid\">", TagKind::Body},
        {u"</noembed>", TagKind::Embed},
        {u"<a href=\"x.htm\">", TagKind::None},
        {u"", TagKind::None},
    };
    for (const Row& row : rows)
        EXPECT_EQ(KindOfTag(T(row.tag)), row.kind) << T(row.tag).toStdString();
}

TEST(TagKeys, TablesInScanOrder) {
    struct Row {
        const char* key;
        const char* terminator;
        const char* field;
    };
    const Row image[] = {{"alt=\"", "\"", "txtALT"},       {"width=", " ", "txtWidth"},
                         {"height=", " ", "txtHeight"},    {"hspace=", " ", "txtHSpace"},
                         {"vspace=", " ", "txtVSpace"},    {"border=", " ", "txtBorder"},
                         {"lowsrc=\"", "\"", "txtLowSRC"}, {"align=", " ", "cboAlign"},
                         {" src=\"", "\"", "txtURL"},      {"usemap=\"#", "\"", "txtUseMap"}};
    const Row embed[] = {{"width=", " ", "txtWidth"},
                         {"height=", " ", "txtHeight"},
                         {"palette=", " ", "cboPalette"},
                         {" src=\"", "\"", "txtURL"}};
    const auto check = [](const QVector<TagKey>& keys, const Row* rows, qsizetype count) {
        ASSERT_EQ(keys.size(), count);
        for (qsizetype i = 0; i < count; ++i) {
            EXPECT_EQ(keys[i].key, QString::fromLatin1(rows[i].key));
            EXPECT_EQ(keys[i].terminator, QString::fromLatin1(rows[i].terminator));
            EXPECT_EQ(keys[i].field, QString::fromLatin1(rows[i].field));
        }
    };
    check(ImageKeys(), image, std::size(image));
    check(EmbedKeys(), embed, std::size(embed));
}

TEST(TagValue, RowsOfAnImage) {
    struct Row {
        QStringView tag;
        const char* field;
        QStringView value;
    };
    const Row rows[] = {
        {u"<IMG SRC=\"a.gif\" WIDTH=10 HEIGHT=20>", "txtURL", u"a.gif"},
        {u"<IMG SRC=\"a.gif\" WIDTH=10 HEIGHT=20>", "txtWidth", u"10"},
        {u"<IMG SRC=\"a.gif\" WIDTH=10 HEIGHT=20>", "txtHeight", u"20"},
        {u"<IMG SRC=\"a.gif\" WIDTH=10 HEIGHT=20>", "txtALT", u""},
        {u"<IMG SRC=\"my pic.gif\">", "txtURL", u"my pic.gif"},
        {u"<IMG SRC=a.gif>", "txtURL", u""},
        {u"<IMG SRC='a.gif'>", "txtURL", u""},
        {u"<IMG\r\nSRC=\"a.gif\">", "txtURL", u""},
        {u"<IMG LOWSRC=\"l.gif\" SRC=\"s.gif\">", "txtURL", u"s.gif"},
        {u"<IMG LOWSRC=\"l.gif\" SRC=\"s.gif\">", "txtLowSRC", u"l.gif"},
        {u"<IMG ALT=x>", "txtALT", u""},
        {u"<IMG ALT=\"\">", "txtALT", u""},
        {u"<IMG ALT=\"one\" ALT=\"two\">", "txtALT", u"one"},
        {u"<IMG ALT=\"no end>", "txtALT", u"no end"},
        {u"<IMG WIDTH=\"100\">", "txtWidth", u"\"100\""},
        {u"<IMG WIDTH=\"1 00\">", "txtWidth", u"\"1"},
        {u"<IMG WIDTH=10/>", "txtWidth", u"10/"},
        {u"<IMG WIDTH=>", "txtWidth", u""},
        {u"<IMG hspace=1 vspace=2 border=3 align=LEFT>", "txtHSpace", u"1"},
        {u"<IMG hspace=1 vspace=2 border=3 align=LEFT>", "txtVSpace", u"2"},
        {u"<IMG hspace=1 vspace=2 border=3 align=LEFT>", "txtBorder", u"3"},
        {u"<IMG hspace=1 vspace=2 border=3 align=LEFT>", "cboAlign", u"LEFT"},
        {u"<IMG USEMAP=\"#m\">", "txtUseMap", u"m"},
        {u"<IMG USEMAP=\"m\">", "txtUseMap", u""},
        {u"<IMG USEMAP=\"#\">", "txtUseMap", u""},
        {u"", "txtURL", u""},
        {u"width=", "txtWidth", u""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Value(T(row.tag), ImageKeys(), row.field), T(row.value))
            << T(row.tag).toStdString() << row.field;
}

TEST(TagValue, RowsOfAnEmbed) {
    const QString tag = T(u"<embed src=\"x.mid\" palette=foreground width=10>");
    EXPECT_EQ(Value(tag, EmbedKeys(), "txtWidth"), T(u"10"));
    EXPECT_EQ(Value(tag, EmbedKeys(), "txtHeight"), QString());
    EXPECT_EQ(Value(tag, EmbedKeys(), "cboPalette"), T(u"foreground"));
    EXPECT_EQ(Value(tag, EmbedKeys(), "txtURL"), T(u"x.mid"));
}

TEST(HasIsMap, AnyCaseAnywhere) {
    EXPECT_TRUE(HasIsMap(T(u"<IMG SRC=\"a.gif\" ISMAP>")));
    EXPECT_TRUE(HasIsMap(T(u"<img ismap>")));
    EXPECT_TRUE(HasIsMap(T(u"<img alt=\"thismap\">")));
    EXPECT_FALSE(HasIsMap(T(u"<img usemap=\"#m\">")));
}
