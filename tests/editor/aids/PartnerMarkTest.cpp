#include "editor/aids/PartnerMark.h"

#include "support/TypingFrame.h"

#include <gtest/gtest.h>
#include <QAccessible>
#include <QTest>

namespace {

class PartnerMarkTest : public testing::Test {
  protected:
    PartnerMarkTest() : mark(frame.Box(), frame.active) { frame.Box().SetHolds(CharacterSet::Unicode); }

    /// The marked stretches, "3-6" and so on, once no search is due any more.
    QString Marks() {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !mark.Busy(); }));
        return MarksNow();
    }
    QString MarksNow() {
        QStringList stretches;
        int start = -1;
        for (int i = 0; i <= frame.Box().TextLength(); ++i) {
            const bool marked = frame.Box().Aids().IsMarked(i);
            if (marked && start < 0)
                start = i;
            if (!marked && start >= 0)
                stretches << QStringLiteral("%1-%2").arg(std::exchange(start, -1)).arg(i);
        }
        return stretches.join(u' ');
    }

    TypingFrame frame;
    PartnerMark mark;
};

} // namespace

TEST_F(PartnerMarkTest, FollowsTheCaretAfterAPause) {
    frame.SetMarked("x <b|>bold</b> y");
    EXPECT_EQ(MarksNow(), QString()) << "nothing happens with the key";
    EXPECT_EQ(Marks(), QStringLiteral("2-5 9-13"));
    frame.Box().SetSelStart(10);
    EXPECT_EQ(Marks(), QStringLiteral("2-5 9-13"));
    frame.Box().SetSelStart(7);
    EXPECT_EQ(MarksNow(), QString()) << "they go with the caret";
    EXPECT_EQ(Marks(), QString());
}

TEST_F(PartnerMarkTest, StandsOverLettersOfManyBytes) {
    frame.SetText(QString::fromUtf8("日本😀<b>שלום</b>"));
    frame.Box().SetSelStart(5);
    EXPECT_EQ(Marks(), QStringLiteral("4-7 11-15"));
}

TEST_F(PartnerMarkTest, GrowsWithWhatIsTypedInTheTag) {
    frame.SetMarked("<b|>bold</b>");
    EXPECT_EQ(Marks(), QStringLiteral("0-3 7-11"));
    frame.Type(" x");
    EXPECT_EQ(MarksNow(), QStringLiteral("0-5 9-13")) << "no flicker while it is typed in";
    EXPECT_EQ(Marks(), QStringLiteral("0-5 9-13"));
    frame.Type("\b\b\b");
    EXPECT_EQ(Marks(), QString()) << frame.Marked().toStdString();
}

TEST_F(PartnerMarkTest, ASelectionHasNone) {
    frame.SetMarked("<b|>bold</b>");
    EXPECT_EQ(Marks(), QStringLiteral("0-3 7-11"));
    frame.Box().SetSelLength(2);
    EXPECT_EQ(Marks(), QString());
}

TEST_F(PartnerMarkTest, TouchesNeitherTextNorColoursNorUndo) {
    frame.SetMarked("<b|>bold</b>");
    frame.Box().EmptyUndoBuffer();
    frame.active->modified = false;
    const QString text = frame.Box().Text();
    const QString rtf = frame.Box().TextRTF();
    int changes = 0;
    QObject::connect(&frame.Box(), &RichTextBox::Change, &mark, [&] { ++changes; });
    EXPECT_EQ(Marks(), QStringLiteral("0-3 7-11"));
    EXPECT_EQ(frame.Box().Text(), text);
    EXPECT_EQ(frame.Box().TextRTF(), rtf);
    EXPECT_EQ(frame.Box().Send(RichTextBox::Message::CanUndo), 0);
    EXPECT_FALSE(frame.active->modified);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(frame.Box().SelStart(), 2);
}

TEST_F(PartnerMarkTest, SearchesInTurnsAndGivesUpWhenTheCaretMovesOn) {
    const QString filling(2'000'000, u'x');
    frame.SetText(QStringLiteral("<b>") + filling + QStringLiteral("</b>"));
    frame.Box().SetSelStart(1);
    EXPECT_EQ(Marks(), QStringLiteral("0-3 2000003-2000007"));
    // The pause over and the search begun, but not at its end.
    frame.Box().SetSelStart(2'000'004);
    auto* pause = mark.findChild<QTimer*>();
    EXPECT_EQ(pause, nullptr) << "its timers are members";
    frame.Box().SetSelStart(10);
    EXPECT_TRUE(mark.Busy());
    EXPECT_EQ(Marks(), QString());
}

TEST_F(PartnerMarkTest, WhatIsOutOfSightGoesInThePause) {
    frame.Box().resize(300, 200);
    frame.SetText(QStringLiteral("<b>\r\n") + QStringLiteral("line\r\n").repeated(300) +
                  QStringLiteral("</b>\r\n"));
    frame.Box().SetSelStart(frame.Box().TextLength() - 4);
    EXPECT_EQ(Marks(), QStringLiteral("0-3 1805-1809"));
    frame.Box().SetSelStart(frame.Box().TextLength() - 30);
    EXPECT_EQ(MarksNow(), QStringLiteral("0-3")) << "taking it away paints all that is in view";
    EXPECT_EQ(Marks(), QString());
}
