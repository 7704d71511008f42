// What Remove Tags takes out, and where the selection then stands: rows, and random texts against the same
// steps carried out one by one in the control.
#include "tools/transforms/TagRemoval.h"

#include "platform/text/RichTextBox.h"
#include "tools/transforms/SlowTagRemoval.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <random>

namespace {

struct Row {
    const char16_t* text; ///< "[" and "]" around the selection, "|" the caret
    const char16_t* left; ///< the same of what is left
};

/// Takes the marks out of a text.
struct Marked {
    explicit Marked(QString marked) {
        start = static_cast<int>(marked.indexOf(marked.contains(u'|') ? u'|' : u'['));
        marked.remove(u'|').remove(u'[');
        const auto end = static_cast<int>(marked.indexOf(u']'));
        length = end < 0 ? 0 : end - start;
        text = marked.remove(u']');
    }
    QString text;
    int start;
    int length;
};

QString Left(const Marked& before) {
    const TagRemoval removal = TagsToRemove(before.text, before.start, before.length);
    QString left = before.text;
    for (auto gone = removal.gone.rbegin(); gone != removal.gone.rend(); ++gone)
        left.remove(gone->start, gone->Length());
    if (removal.selLength == 0)
        return left.insert(removal.selStart, u'|');
    return left.insert(removal.selStart + removal.selLength, u']').insert(removal.selStart, u'[');
}

const Row rows[] = {
    // The whole text.
    {u"<B>x</B>|", u"x|"},
    {u"|<B>x</B>", u"x|"},
    {u"a > b|", u"a [>] b"},
    {u"a < b|", u"a |< b"},
    {u"|< b", u"|< b"},
    {u"no tag|", u"no tag|"},
    {u"|", u"|"},
    {u"<a <b>c>d|", u"c[>]d"},
    {u"<P>a > b<P>c|", u"a > b|<P>c"},
    {u"<P>a > <P>c|", u"a > |<P>c"},
    {u"<P>a><P>c|", u"a>|<P>c"},
    {u"<P><Q><R>|", u"|"},
    {u"<P>one<Q|", u"one|<Q"},
    {u"<P><Q|", u"|<Q"},
    // A selection.
    {u"x<I>[<B>y</B>]</I>", u"x<I>y|</I>"},
    {u"[<B>y</B>]", u"y|"},
    {u"<I>[no tag]</I>", u"<I>no tag</I[>]"},
    {u"[no tag]", u"[no tag]"},
    {u"[a > b]", u"a [>] b"},
    {u"[a < b]", u"a |< b"},
    {u"[< b]", u"|< b"},
    {u"[<B>]x", u"|x"},
    {u"[x<B]>", u"x<B[>]"},
    // A short tag right behind a long one takes a later ">" with it, and the text between.
    {u"[<long tag><B>x</B>y<I>z</I>]", u"z|</I>"},
    {u"[<FONT SIZE=7><B>word</B> and more of it]", u"|<B>word</B> and more of it"},
};

TEST(TagsToRemove, Rows) {
    for (const Row& row : rows)
        EXPECT_EQ(Left(Marked(QString::fromUtf16(row.text))), QString::fromUtf16(row.left))
            << QString::fromUtf16(row.text).toStdString();
}

TEST(TagsToRemove, NamesTheStretchesOfTheTextAsItWas) {
    const TagRemoval removal = TagsToRemove(u"a<B>b</B>c<I>", 0, 0);
    EXPECT_EQ(removal.gone, (std::vector<CharRange>{{1, 4}, {5, 9}, {10, 13}}));
    EXPECT_EQ(removal.selStart, 3);
    EXPECT_EQ(removal.selLength, 0);
}

struct ColoredText {
    explicit ColoredText(const RichTextBox& box)
        : text(box.Text()), selStart(box.SelStart()), selLength(box.SelLength()) {
        for (int i = 0; i < box.TextLength(); ++i)
            colors.push_back(box.ColorAt(i));
    }
    bool operator==(const ColoredText&) const = default;
    QString text;
    std::vector<int> colors;
    int selStart;
    int selLength;
};

/// A text of brackets and little else, in many colours, with a selection or without one.
class RandomPage {
  public:
    RandomPage(std::mt19937& random, QStringView letters) {
        const auto upTo = [&](int most) { return static_cast<int>(random() % (most + 1U)); };
        const int length = upTo(60);
        for (int i = 0; i < length; ++i)
            text += letters[upTo(static_cast<int>(letters.size()) - 1)];
        for (int at = 0; at < length; at += 1 + upTo(4))
            cuts.push_back({at, upTo(4) * 0x40});
        start = upTo(length);
        selected = upTo(2) == 0 ? 0 : upTo(length - start);
    }
    void PutInto(RichTextBox& box) const {
        box.SetText(text);
        for (const auto& [at, color] : cuts) {
            box.SetSelStart(at);
            box.SetSelLength(static_cast<int>(text.size()) - at);
            box.SetSelColor(color);
        }
        box.SetSelStart(start);
        box.SetSelLength(selected);
    }
    QString text;
    std::vector<std::pair<int, int>> cuts;
    int start;
    int selected;
};

TEST(TagsToRemove, LeavesWhatTheStepsOneByOneLeave) {
    constexpr int texts = 4000;
    std::mt19937 random(20);
    RichTextBox told;
    RichTextBox box;
    int removed = 0;
    int selections = 0;
    for (int i = 0; i < texts; ++i) {
        const RandomPage page(random, i % 3 == 0 ? u"<>" : i % 3 == 1 ? u"<>ab" : u"<<>>a\r\n\u00e9\u20ac");
        page.PutInto(told);
        RemoveTagsSlowly(told);
        page.PutInto(box);
        const TagRemoval removal = TagsToRemove(box.Text(), box.SelStart(), box.SelLength());
        box.Remove(removal.gone);
        box.SetSelStart(removal.selStart);
        box.SetSelLength(removal.selLength);
        ASSERT_EQ(ColoredText(box), ColoredText(told))
            << page.text.toStdString() << ' ' << page.start << '+' << page.selected;
        removed += removal.gone.size() > 1 ? 1 : 0;
        selections += page.selected > 0 ? 1 : 0;
    }
    EXPECT_GT(removed, texts / 8);
    EXPECT_GT(selections, texts / 4);
}

} // namespace
