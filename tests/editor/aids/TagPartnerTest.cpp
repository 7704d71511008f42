#include "editor/aids/TagPartner.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <span>

namespace {

/// The text with "[" and "]" around the two tags; the caret's own comes in "{" and "}".
QString Marked(QString text, const std::optional<TagPartners>& found) {
    if (!found)
        return QStringLiteral("none");
    const auto mark = [&](const TagPlace& tag, QChar before, QChar behind) {
        text.insert(tag.start + tag.length, behind);
        text.insert(tag.start, before);
    };
    const bool ownIsFirst = found->atCaret.start < found->partner.start;
    if (ownIsFirst) {
        mark(found->partner, u'[', u']');
        mark(found->atCaret, u'{', u'}');
    } else {
        mark(found->atCaret, u'{', u'}');
        mark(found->partner, u'[', u']');
    }
    return text;
}

/// What is found in a text that has "|" at the caret.
QString Found(QString text) {
    const auto caret = static_cast<int>(text.indexOf(u'|'));
    text.remove(caret, 1);
    return Marked(text, TagPartner(text, caret));
}

struct Row {
    const char16_t* text; ///< "|" is the caret
    const char16_t* marked;
};

void Check(std::span<const Row> rows) {
    for (const Row& row : rows)
        EXPECT_EQ(Found(QString::fromUtf16(row.text)), QString::fromUtf16(row.marked))
            << QString::fromUtf16(row.text).toStdString();
}

} // namespace

TEST(TagPartner, IsFoundFromEachEnd) {
    const Row rows[] = {
        {u"<b|>x</b>", u"{<b>}x[</b>]"},
        {u"<b>x</b|>", u"[<b>]x{</b>}"},
        {u"|<b>x</b>", u"{<b>}x[</b>]"},
        {u"<b>|x</b>", u"{<b>}x[</b>]"},
        {u"<b>x|</b>", u"[<b>]x{</b>}"},
        {u"<b>x</b>|", u"[<b>]x{</b>}"},
        {u"<b>x|y</b>", u"none"},
        {u" |<b>x</b>", u" {<b>}x[</b>]"},
        {u"<b>|</b>", u"{<b>}[</b>]"}, // where two meet the left one counts
        {u"<i></i>|<b>x</b>", u"[<i>]{</i>}<b>x</b>"},
        {u"|", u"none"},
        {u"plain|", u"none"},
        {u"x|y <b>z</b>", u"none"},
    };
    Check(rows);
}

TEST(TagPartner, CountsTheTagsOfItsWord) {
    const Row rows[] = {
        {u"<div|><div>a</div><div>b</div></div>", u"{<div>}<div>a</div><div>b</div>[</div>]"},
        {u"<div><div>a</div><div>b</div></div|>", u"[<div>]<div>a</div><div>b</div>{</div>}"},
        {u"<div><div>a</div><div|>b</div></div>", u"<div><div>a</div>{<div>}b[</div>]</div>"},
        {u"<DIV|>x</div>", u"{<DIV>}x[</div>]"},
        {u"<table|><tr><td><table></table></td></tr></table>",
         u"{<table>}<tr><td><table></table></td></tr>[</table>]"},
        {u"<b|><i>x</b></i>", u"{<b>}<i>x[</b>]</i>"},             // other words don't matter
        {u"<b|><body>x</body></b>", u"{<b>}<body>x</body>[</b>]"}, // nor do longer ones
        {u"<h1|>x</h2></h1>", u"{<h1>}x</h2>[</h1>]"},
        {u"<a href=\"x\"|>x</a >", u"{<a href=\"x\">}x[</a >]"},
        {u"<p|>one<p>two</p>", u"none"}, // two open, one closes
        {u"<p>one<p|>two</p>", u"<p>one{<p>}two[</p>]"},
        {u"</b><b>x</b|>", u"</b>[<b>]x{</b>}"}, // one that closes nothing takes none away
        {u"x</b|>", u"none"},
        {u"<b|>x", u"none"},
        {u"<x-y:z|>1</X-Y:Z>", u"{<x-y:z>}1[</X-Y:Z>]"},
        {u"<\u05d0|>x</\u05d0>", u"none"}, // no letter that begins a word
        {u"<b|\r\nid=1\r\n>x</b\r\n>", u"{<b\r\nid=1\r\n>}x[</b\r\n>]"},
    };
    Check(rows);
}

TEST(TagPartner, ElementsWithoutAnEndHaveNone) {
    for (const char16_t* text : {u"<br|></br>", u"<BR|>x</BR>", u"<img src=\"a\"|></img>", u"<hr|></hr>",
                                 u"<input|></input>", u"<meta|></meta>", u"<link|></link>", u"x</br|>",
                                 u"<b/|>x</b>", u"<b /|>x</b>", u"<a href=\"x\"/|>x</a>"})
        EXPECT_EQ(Found(QString::fromUtf16(text)), QStringLiteral("none"))
            << QString::fromUtf16(text).toStdString();
}

TEST(TagPartner, OneThatClosesItselfIsNotCounted) {
    const QString text = QStringLiteral("<b>1<b/>2<b />3</b>");
    EXPECT_EQ(TagPartner(text, 1), (TagPartners{{0, 3}, {15, 4}}));
    // A slash at the end of a value without quotes belongs to the value.
    const QString link = QStringLiteral("<a href=http://x/>y</a>");
    EXPECT_EQ(TagPartner(link, 1), (TagPartners{{0, 18}, {19, 4}}));
}

TEST(TagPartner, QuotesCommentsAndScriptsHideTags) {
    const Row rows[] = {
        {u"<b|><i title=\"</b>\">x</i></b>", u"{<b>}<i title=\"</b>\">x</i>[</b>]"},
        {u"<b|><i title='</b>'>x</i></b>", u"{<b>}<i title='</b>'>x</i>[</b>]"},
        {u"<b title=\"a > b|\">x</b>", u"{<b title=\"a > b\">}x[</b>]"},
        {u"<b title=\"a <i|> b\">x</b>", u"{<b title=\"a <i> b\">}x[</b>]"},
        {u"<b title=\"a <b|> b\">x</b>", u"{<b title=\"a <b> b\">}x[</b>]"},
        {u"<b title = \">\"|>x</b>", u"{<b title = \">\">}x[</b>]"},
        {u"<b|>it's</b> it's", u"{<b>}it's[</b>] it's"}, // a quote is one behind "=" alone
        {u"<td nowrap\"\"|>x</td>", u"{<td nowrap\"\">}x[</td>]"},
        {u"<td width=\"5|>x</td>", u"{<td width=\"5>}x[</td>]"}, // a quote that never ends
        {u"<b|>x<!-- </b> -->y</b>", u"{<b>}x<!-- </b> -->y[</b>]"},
        {u"x<!-- <b|> --></b>", u"none"},
        {u"<b|>x<!-- </b>", u"{<b>}x<!-- [</b>]"}, // a comment that never ends
        {u"<b|><!--></b>-->", u"{<b>}<!-->[</b>]-->"},
        {u"<b|><!DOCTYPE x></b>", u"{<b>}<!DOCTYPE x>[</b>]"},
        {u"<b|><? \"</b>\" ?></b>", u"{<b>}<? \"</b>\" ?>[</b>]"},
        {u"<b|><% \"</b>\" %></b>", u"{<b>}<% \"</b>\" %>[</b>]"},
        {u"<b|><?xml></b>", u"{<b>}<?xml>[</b>]"},
        {u"<b|><script>if (a<b) x='</b>'</script></b>", u"{<b>}<script>if (a<b) x='</b>'</script>[</b>]"},
        {u"<script|>a<b; '<script>'</SCRIPT>", u"{<script>}a<b; '<script>'[</SCRIPT>]"},
        {u"<script>'</scripted>'</script|>", u"[<script>]'</scripted>'{</script>}"},
        {u"<script>if (a<b|) c>d</script>", u"none"},
        {u"<style>b|</style>", u"[<style>]b{</style>}"},
        {u"<textarea|><textarea></textarea>", u"{<textarea>}<textarea>[</textarea>]"},
        {u"<b|><script>x</b>", u"{<b>}<script>x[</b>]"}, // a script that never ends
        {u"<b|>1 < 2 <3</b>", u"{<b>}1 < 2 <3[</b>]"},
        {u"<b|>x <i y <u>z</u></b>", u"{<b>}x <i y <u>z</u>[</b>]"},
        {u"<i <b|>x</b>", u"<i {<b>}x[</b>]"},
        {u"<b|", u"none"},
        {u"<|", u"none"},
        {u"a <| b > c", u"none"},
        {u"<|>", u"none"},
        {u"</|>", u"none"},
    };
    Check(rows);
}

TEST(TagPartner, PositionsOutsideOfTheTextHaveNone) {
    EXPECT_EQ(TagPartner(QStringLiteral("<b>x</b>"), -1), (TagPartners{{0, 3}, {4, 4}}));
    EXPECT_EQ(TagPartner(QStringLiteral("<b>x"), 99), std::nullopt);
    EXPECT_EQ(TagPartner(QString(), 0), std::nullopt);
}

namespace {

/// Reads of a text are counted.
struct CountingReader {
    QString text;
    qsizetype read = 0;
    qsizetype longest = 0;

    TextReader Reader() {
        return [this](int start, int length) {
            const QString piece = text.mid(start, length);
            read += piece.size();
            longest = std::max(longest, piece.size());
            return piece;
        };
    }
};

} // namespace

TEST(PartnerSearch, FindsTheSameInSmallPiecesAndTurns) {
    const QString unit = QStringLiteral(
        "<div class=\"a > b\"><!-- <div> --><p>words and words, \u05e9\u05dc\u05d5\u05dd \u65e5\u672c"
        "<br/><script>'<div>'</script><td width='50'>x</td></p></div>\r\n");
    const QString text = QStringLiteral("<div>") + unit.repeated(5) + QStringLiteral("</div>");
    for (int caret = 0; caret <= text.size(); ++caret) {
        const auto whole = TagPartner(text, caret);
        for (const int piece : {80, 81, 97, 128, 1000}) {
            CountingReader reader{text};
            PartnerSearch search(caret, reader.Reader(), piece);
            int turns = 0;
            while (search.Turn(1))
                ++turns;
            ASSERT_EQ(search.Found(), whole) << "caret " << caret << ", pieces of " << piece;
        }
    }
}

TEST(PartnerSearch, ATurnReadsAboutWhatItMay) {
    CountingReader reader{QStringLiteral("<p>") + QString(1'000'000, u'x') + QStringLiteral("</p>")};
    PartnerSearch search(1, reader.Reader());
    reader.read = 0;
    int turns = 1;
    for (; search.Turn(1 << 16); ++turns) {
        EXPECT_LE(reader.read, (1 << 16) + (1 << 14));
        reader.read = 0;
    }
    EXPECT_GT(turns, 10);
    EXPECT_EQ(search.Found()->partner, (TagPlace{1'000'003, 4}));
}

TEST(PartnerSearch, NothingIsReadBeyondTheCaretsSurroundingsWhereThatIsNoTag) {
    CountingReader reader{QString(1'000'000, u'x') + QStringLiteral("<p>words</p>") +
                          QString(1'000'000, u'x')};
    PartnerSearch search(1'000'005, reader.Reader());
    EXPECT_FALSE(search.Turn(1));
    EXPECT_LT(reader.read, 1 << 16);
}

TEST(PartnerSearch, WhatNeverEndsIsLookedForOnce) {
    // Each of these begins something that has no end: to look for it each time would read the text as often.
    for (const QString& unit :
         {QStringLiteral("<!-- "), QStringLiteral("<? "), QStringLiteral("<% "), QStringLiteral("<script>"),
          QStringLiteral("<i t=\"> "), QStringLiteral("<"), QStringLiteral("</"), QStringLiteral("<i ")}) {
        CountingReader reader{QStringLiteral("<p>") + unit.repeated(100'000 / unit.size()) +
                              QStringLiteral("</p>")};
        PartnerSearch search(1, reader.Reader());
        while (search.Turn(1 << 20)) {
        }
        EXPECT_LT(reader.read, 10 * reader.text.size()) << unit.toStdString();
    }
}
