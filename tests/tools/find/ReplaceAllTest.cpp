// Replace All against the same made step by step, on random texts: the text, its colours, and the caret.
#include "tools/ToolFormTest.h"

#include <random>

namespace {

using namespace Qt::StringLiterals;

/// One search and one replacement after the other, until there is none.
void StepByStep(RichTextBox& txtInput, const QString& what, const QString& with, int options) {
    qsizetype position = 0;
    while (position != -1) {
        position = txtInput.Find(what, static_cast<int>(position), std::nullopt, options);
        if (position < 1)
            break;
        position += 1 + with.size();
        txtInput.SetSelText(with);
    }
}

class ReplaceAllTest : public ToolFormTest {
  protected:
    int Number(qsizetype below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }
    /// Letters of few kinds, so that there is much to find, and line ends.
    QString Random(int longest) {
        static const QStringList letters{u"a"_s, u"A"_s,    u"b"_s,  u"é"_s, u"É"_s,
                                         u"€"_s, u"\r\n"_s, u"\n"_s, u"\r"_s};
        QString text;
        for (int i = Number(longest + 1); i > 0; --i)
            text += letters[Number(letters.size())];
        return text;
    }
    void Color(RichTextBox& box, unsigned seed) {
        std::mt19937 colors(seed);
        for (int at = 0; at < box.TextLength();) {
            const int length = 1 + static_cast<int>(colors() % 4);
            box.SetSelStart(at);
            box.SetSelLength(length);
            box.SetSelColor(static_cast<ColorNumber>(colors() % 3));
            at += length;
        }
    }
    void Put(RichTextBox& box, const QString& text, unsigned seed, int caret, int selected) {
        box.SetText(text);
        Color(box, seed);
        box.EmptyUndoBuffer();
        box.SetSelStart(caret);
        box.SetSelLength(selected);
    }
    static std::vector<ColorNumber> Colors(const RichTextBox& box) {
        std::vector<ColorNumber> colors;
        for (int at = 0; at < box.TextLength(); ++at)
            colors.push_back(box.ColorAt(at));
        return colors;
    }
    static void ExpectSame(const RichTextBox& box, const RichTextBox& other) {
        EXPECT_EQ(box.Text(), other.Text());
        EXPECT_EQ(Colors(box), Colors(other));
        EXPECT_EQ(box.SelStart(), other.SelStart());
        EXPECT_EQ(box.SelLength(), other.SelLength());
        EXPECT_EQ(box.SelColor(), other.SelColor());
    }

    std::mt19937 random{17};
};

TEST_F(ReplaceAllTest, LeavesWhatStepsOneByOneLeave) {
    Open(u"mnuReplace"_s, u"frmFindReplace"_s);
    RichTextBox& txtInput = frame.Box();
    RichTextBox reference;
    for (unsigned run = 0; run < 1000 && !HasFailure(); ++run) {
        const QString text = Random(60);
        // A text that begins with a match ends at once: most do not.
        const QString whole = Number(8) == 0 ? text : u"x"_s + text;
        const QString what = txtInput.Incorporated(Random(3));
        const QString with = txtInput.Incorporated(Random(4));
        const bool matchCase = Number(2) == 0;
        const int caret = Number(whole.size() + 1);
        const int selected = Number(2);
        Put(txtInput, whole, run, caret, selected);
        Put(reference, whole, run, caret, selected);
        const std::vector<ColorNumber> colors = Colors(txtInput);

        Fill(u"txtWhat"_s, what);
        Fill(u"txtWith"_s, with);
        Check(u"chkRepCS"_s, matchCase);
        // As the dialog hands them on: in the line ends of the document.
        const QString wanted = txtInput.Incorporated(what);
        const QString instead = txtInput.Incorporated(with);
        Press(u"cmdSelected"_s);
        StepByStep(reference, wanted, instead, matchCase ? RichTextBox::MatchCase : 0);
        ExpectSame(txtInput, reference);

        if (txtInput.Send(RichTextBox::Message::CanUndo) != 0) {
            txtInput.Send(RichTextBox::Message::Undo);
            EXPECT_EQ(txtInput.Send(RichTextBox::Message::CanUndo), 0);
        }
        EXPECT_EQ(txtInput.Text(), whole);
        EXPECT_EQ(Colors(txtInput), colors);
    }
}

} // namespace
