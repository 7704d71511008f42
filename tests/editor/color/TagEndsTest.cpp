#include "editor/color/TagEnds.h"

#include "platform/text/RichTextBox.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

QString T(QStringView text) {
    return text.toString();
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
    // Around the lengths where one part ends and the next begins.
    for (const int edge : {512, 1536, 3584, 4096, 7680, 8192}) {
        for (int far = edge - 8; far <= edge + 8; ++far) {
            const QString filler(far, u'x');
            // Far to the left, far to the right, and none at all.
            EXPECT_EQ(find(u'<' + filler + u'>', far + 1), (TagPlace{0, far + 2})) << far;
            EXPECT_EQ(find(u'<' + filler + u'>', 1), (TagPlace{0, far + 2})) << far;
            EXPECT_EQ(find(u'>' + filler, far + 1), std::nullopt) << far;
            EXPECT_EQ(find(filler, far), (TagPlace{far, 0})) << far;
            EXPECT_EQ(find(u'<' + filler, far + 1), std::nullopt) << far;
        }
    }
}

TEST(BracketBefore, TheNearestOneWithinReach) {
    const QString text = T(u"<b>xx<i");
    const TextReader read = [&](int start, int length) { return text.mid(start, length); };
    const BracketPlace first{Bracket::Open, 0}, close{Bracket::Close, 2}, last{Bracket::Open, 5};
    EXPECT_EQ(BracketBefore(0, read), std::nullopt);
    EXPECT_EQ(BracketBefore(-1, read), std::nullopt);
    EXPECT_EQ(BracketBefore(1, read), first);
    EXPECT_EQ(BracketBefore(2, read), first);
    EXPECT_EQ(BracketBefore(3, read), close);
    EXPECT_EQ(BracketBefore(5, read), close);
    EXPECT_EQ(BracketBefore(7, read), last);
    EXPECT_EQ(BracketBefore(5, read, 2), std::nullopt);
    EXPECT_EQ(BracketBefore(5, read, 3), close);
}

TEST(TagFrom, GoesThroughTheNextClose) {
    RichTextBox box;
    box.SetText(T(u"a<\u00e9\r\n>b>"));
    EXPECT_EQ(TagFrom(1, ReaderOf(box)), (TagPlace{1, 5}));
    EXPECT_EQ(TagFrom(6, ReaderOf(box)), (TagPlace{6, 2}));
    EXPECT_EQ(TagFrom(8, ReaderOf(box)), std::nullopt);
}
