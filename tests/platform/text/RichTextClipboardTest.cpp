// Cut, copy and paste, by keys and by messages, and the form in which text leaves and comes in.
#include "platform/text/RichTextFixture.h"

#include <QClipboard>
#include <QMimeData>

namespace {

using RichTextClipboardTest = RichTextFixture;
using namespace Qt::StringLiterals;

TEST_F(RichTextClipboardTest, CopyLeavesWithTheDesktopsLineEnds) {
#ifdef Q_OS_WIN
    const QString desktop = u"a\r\nb\r\nc\r\né"_s;
#else
    const QString desktop = u"a\nb\nc\né"_s;
#endif
    box.SetText(u"a\r\nb\rc\né"_s);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), desktop);
    QApplication::clipboard()->setText(u"other"_s);
    Press(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), desktop);
    QApplication::clipboard()->setText(u"other"_s);
    box.SetSelStart(0);
    Press(Qt::Key_C, Qt::ControlModifier);
    Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"other"_s) << "nothing selected, nothing copied";
}

TEST_F(RichTextClipboardTest, CutTakesTheSelectionAway) {
    Put(u"abc"_s, u"rgb"_s);
    Select(1, 1);
    Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"ac"_s);
    EXPECT_EQ(QApplication::clipboard()->text(), u"b"_s);
    Undo();
    EXPECT_EQ(Colors(), u"rgb"_s);
    Select(0, 1);
    Press(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"a"_s);
}

TEST_F(RichTextClipboardTest, PasteTakesTheDocumentsLineEndsAndCharacters) {
    QApplication::clipboard()->setText(u"1\r\n2\n3\r4 ☃ é e\u0301 😀"_s);
    for (const QString& end : {u"\r\n"_s, u"\n"_s, u"\r"_s}) {
        box.SetText(u"a"_s + end);
        box.SetSelStart(box.TextLength());
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(box.Text(),
                  u"a%1"_s.arg(end) + u"1%12%13%14 &#9731; é é &#128512;"_s.replace(u"%1"_s, end));
    }
}

TEST_F(RichTextClipboardTest, AClipboardWithoutTextPastesNothing) {
    box.SetText(u"abc"_s);
    Select(1, 1);
    Signalled();
    auto* picture = new QMimeData;
    picture->setImageData(QImage(2, 2, QImage::Format_RGB32));
    QApplication::clipboard()->setMimeData(picture);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"abc"_s);
    EXPECT_EQ(box.SelText(), u"b"_s);
    EXPECT_EQ(Signalled(), QStringList());
}

TEST_F(RichTextClipboardTest, PasteIsOneStepInTheColorAtTheCaret) {
    Put(u"abc"_s, u"rgb"_s);
    Select(1, 1);
    QApplication::clipboard()->setText(u"xy\nz"_s);
    Press(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(box.Text(), u"axy\r\nzc"_s);
    EXPECT_EQ(Colors(), u"rgggggb"_s);
    EXPECT_EQ(Signalled().count(u"Change"_s), 1);
    Undo();
    EXPECT_EQ(box.Text(), u"abc"_s);
    EXPECT_EQ(Colors(), u"rgb"_s);
    EXPECT_FALSE(CanUndo());
}

TEST_F(RichTextClipboardTest, MessagesDoWhatTheKeysDo) {
    EXPECT_FALSE(CanUndo());
    box.SetSelText(u"abc"_s);
    EXPECT_TRUE(CanUndo());
    Select(0, 2);
    EXPECT_EQ(box.Send(RichTextBox::Message::Copy), 0);
    box.SetSelStart(3);
    EXPECT_EQ(box.Send(RichTextBox::Message::Paste), 0);
    EXPECT_EQ(box.Text(), u"abcab"_s);
    Select(0, 1);
    EXPECT_EQ(box.Send(RichTextBox::Message::Cut), 0);
    EXPECT_EQ(box.Text(), u"bcab"_s);
    EXPECT_EQ(box.Send(RichTextBox::Message::Undo), 0);
    EXPECT_EQ(box.Text(), u"abcab"_s);
}

TEST_F(RichTextClipboardTest, AltBackspaceUndoes) {
    box.SetSelText(u"abc"_s);
    Press(Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_EQ(box.Text(), QString());
}

} // namespace
