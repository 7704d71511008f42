// A control whose document holds all of Unicode: what comes in stays itself, and the caret stands between
// characters.
#include "platform/text/RichTextFixture.h"

#include <QClipboard>
#include <QMimeData>
#include <vector>

namespace {

using namespace Qt::StringLiterals;

class RichTextUnicodeTest : public RichTextFixture {
  protected:
    RichTextUnicodeTest() {
        box.SetHolds(CharacterSet::Unicode);
        QObject::connect(&box, &RichTextBox::KeyPress, &box, [this](int& code) {
            codes.push_back(code);
            if (onPress)
                onPress(code);
        });
    }
    void Commit(const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&box, &event);
    }
    QString Marked() {
        QString text = box.Text();
        const int start = box.SelStart();
        const int length = box.SelLength();
        return length > 0 ? text.insert(start + length, u']').insert(start, u'[') : text.insert(start, u'|');
    }

    std::vector<int> codes;
    std::function<void(int&)> onPress;
};

TEST_F(RichTextUnicodeTest, EveryRoadKeepsEveryCharacter) {
    const QString all = u"ż ☃ e\u0301 שלום 日本 😀 👨\u200d👩\u200d👧 \uFEFF \U0010FFFF"_s;
    box.SetText(all);
    EXPECT_EQ(box.Text(), all);
    box.SetText(QString());
    box.SetSelText(all);
    EXPECT_EQ(box.Text(), all);
    box.SetText(QString());
    box.SetSelRTF(u"{{\\colortbl ;\\red255\\green0\\blue0;}\\cf1 "_s + all +
                  u"\\u9731?\\u-10179?\\u-8704?}"_s);
    EXPECT_EQ(box.Text(), all + u"☃😀"_s);
    EXPECT_EQ(box.ColorAt(box.TextLength() - 1), red);
    box.SetText(QString());
    box.InsertForeign(all);
    EXPECT_EQ(box.Text(), all);
    box.SetText(QString());
    Commit(all);
    EXPECT_EQ(box.Text(), all);
    EXPECT_TRUE(CanUndo());
    Undo();
    EXPECT_EQ(box.Text(), QString()) << "what comes at once goes at once";
}

TEST_F(RichTextUnicodeTest, TheColoursComeBackWithTheText) {
    const QString all = u"ż😀日"_s;
    Put(all, u"rgggb"_s.left(all.size()));
    const QString colors = Colors();
    const QString rtf = box.SelRTF();
    Select(0, static_cast<int>(all.size()));
    box.SetSelText(QString());
    Undo();
    EXPECT_EQ(box.Text(), all);
    EXPECT_EQ(Colors(), colors);
    Select(0, static_cast<int>(all.size()));
    const QString copy = box.SelRTF();
    box.SetSelRTF(copy);
    EXPECT_EQ(box.Text(), all);
    EXPECT_EQ(Colors(), colors);
}

TEST_F(RichTextUnicodeTest, AKeyTellsItsCharacter) {
    PressText(u"é"_s);
    PressText(u"ł"_s);
    PressText(u"ľ"_s); // its low byte is that of ">"
    PressText(u"😀"_s);
    PressText(u"\u200c"_s);
    EXPECT_EQ(codes, (std::vector<int>{233, 0x142, 0x13e, 0x1F600, 0x200c}));
    EXPECT_EQ(box.Text(), u"éłľ😀\u200c"_s);
}

TEST_F(RichTextUnicodeTest, AListenerSwallowsACharacterOrMakesAnotherOfIt) {
    onPress = [](int& code) { code = code == 0x142 ? 0 : 'y'; };
    PressText(u"ł"_s);
    EXPECT_EQ(box.Text(), QString());
    PressText(u"😀"_s);
    EXPECT_EQ(box.Text(), u"y"_s);
}

TEST_F(RichTextUnicodeTest, WhatIsPastedKeepsItsForm) {
    // Composing would make another of each.
    const QString all = u"e\u0301\u212b\uf900"_s;
    QApplication::clipboard()->setText(all);
    box.Send(RichTextBox::Message::Paste);
    EXPECT_EQ(box.Text(), all);
    box.SetSelStart(0);
    box.SetSelLength(box.TextLength());
    box.Send(RichTextBox::Message::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), all);
}

TEST_F(RichTextUnicodeTest, NoPositionLiesInsideACharacter) {
    box.SetText(u"a😀b"_s);
    box.SetSelStart(2);
    EXPECT_EQ(box.SelStart(), 1);
    box.SetSelLength(1);
    EXPECT_EQ(Marked(), u"a[😀]b"_s);
    box.SetSelText(u"ż"_s);
    EXPECT_EQ(box.Text(), u"ażb"_s);
    EXPECT_EQ(box.TextLength(), 3);
}

TEST_F(RichTextUnicodeTest, UnitsAreReadAsAStringHasThem) {
    const QString text = u"a😀ż\r\n😀"_s;
    box.SetText(text);
    for (int i = 0; i < text.size(); ++i) {
        EXPECT_EQ(box.CharAt(i), text[i]) << i;
        EXPECT_EQ(box.TextRange(i, 2), text.mid(i, 2)) << i;
    }
    EXPECT_EQ(box.CharAt(static_cast<int>(text.size())), QChar());
    EXPECT_EQ(box.FindForward(u'ż', 0), 3);
}

struct MoveRow {
    QString before;
    int key;
    Qt::KeyboardModifiers modifiers;
    QString after;
};

TEST_F(RichTextUnicodeTest, KeysMoveOverWholeCharacters) {
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    const MoveRow rows[] = {
        {u"a|e\u0301b"_s, Qt::Key_Right, {}, u"ae\u0301|b"_s},
        {u"ae\u0301|b"_s, Qt::Key_Left, {}, u"a|e\u0301b"_s},
        {u"a|😀b"_s, Qt::Key_Right, {}, u"a😀|b"_s},
        {u"a😀|b"_s, Qt::Key_Left, {}, u"a|😀b"_s},
        {u"a|e\u0301\u0323b"_s, Qt::Key_Right, shift, u"a[e\u0301\u0323]b"_s},
        {u"ae\u0301\u0323|b"_s, Qt::Key_Left, shift, u"a[e\u0301\u0323]b"_s},
        {u"|👍🏽b"_s, Qt::Key_Right, {}, u"👍🏽|b"_s},
        {u"|e\u0301"_s, Qt::Key_Right, {}, u"e\u0301|"_s},
        {u"a|e\u0301b"_s, Qt::Key_Delete, {}, u"a|b"_s},
        {u"a|😀b"_s, Qt::Key_Delete, {}, u"a|b"_s},
        {u"ae\u0301|b"_s, Qt::Key_Backspace, {}, u"ae|b"_s},
        {u"a😀|b"_s, Qt::Key_Backspace, {}, u"a|b"_s},
        {u"a|\r\nb"_s, Qt::Key_Delete, {}, u"a|b"_s},
        {u"e\u0301\u0323\r\nx|y"_s, Qt::Key_Up, {}, u"e\u0301\u0323|\r\nxy"_s},
    };
    for (const MoveRow& row : rows) {
        QString text = row.before;
        const auto caret = static_cast<int>(text.indexOf(u'|'));
        box.SetText(text.remove(u'|'));
        box.SetSelStart(caret);
        const QString typed = row.key == Qt::Key_Backspace ? u"\b"_s : QString();
        PressText(typed, row.key, row.modifiers);
        EXPECT_EQ(Marked(), row.after) << row.before.toStdString();
    }
}

TEST_F(RichTextUnicodeTest, TakenBackDeletionOfAWholeCharacterIsOneStep) {
    box.SetText(u"ae\u0301b"_s);
    box.EmptyUndoBuffer();
    box.SetSelStart(1);
    Press(Qt::Key_Delete);
    ASSERT_EQ(box.Text(), u"ab"_s);
    Undo();
    EXPECT_EQ(box.Text(), u"ae\u0301b"_s);
    EXPECT_FALSE(CanUndo());
}

TEST_F(RichTextUnicodeTest, AClickStandsBesideACharacter) {
    box.SetText(u"e\u0301\u0323\u0323e\u0301"_s);
    for (int x = 0; x < 60; ++x) {
        QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, QPoint(x, 5));
        const int caret = box.CaretPosition();
        EXPECT_TRUE(caret == 0 || caret == 4 || caret == 6) << caret;
    }
}

TEST_F(RichTextUnicodeTest, BytesAreTheTextWhereverTheLastKeyWas) {
    EXPECT_EQ(box.Utf8Text(), QByteArray());
    const QString text = u"\uFEFFże ☃\r\n😀 end"_s;
    box.SetText(text);
    EXPECT_EQ(box.Utf8Text(), text.toUtf8());
    for (int position = 0; position <= text.size(); ++position) {
        box.SetText(text);
        box.SetSelStart(position);
        box.SetSelText(u"x"_s);
        EXPECT_EQ(box.Utf8Text(), box.Text().toUtf8()) << position;
    }
}

} // namespace
