// What an input method is told of the text around the caret.
#include "platform/text/InputMethod.h"
#include "platform/text/AccessibleText.h"

#include <gtest/gtest.h>
#include <QImage>

namespace {

using namespace Qt::StringLiterals;

/// A text without a control.
class PlainText final : public AccessibleText {
  public:
    int TextLength() const override { return static_cast<int>(text.size()); }
    QString TextRange(int start, int length) const override { return text.mid(start, length); }
    int LineStart(int) const override { return 0; }
    int NextLineStart(int) const override { return TextLength(); }
    int SelStart() const override { return start; }
    void SetSelStart(int position) override { start = position; }
    int SelLength() const override { return length; }
    void SetSelLength(int characters) override { length = characters; }
    int CaretPosition() const override { return caretInFront ? start : start + length; }
    ColorNumber ColorAt(int) const override { return 0; }
    ColorNumber BackColor() const override { return 0xffffff; }
    QFont Font() const override { return {}; }
    QRect CharacterRect(int) const override { return {}; }
    int PositionAt(QPoint) const override { return 0; }
    void ScrollTo(int, int) override {}
    bool Enabled() const override { return true; }
    void InsertForeign(const QString&) override {}

    QString text;
    int start = 0;
    int length = 0;
    bool caretInFront = false;
};

TEST(InputMethod, ItKnowsSomeCharactersToEitherSideOfTheCaret) {
    PlainText text;
    text.text = QString(1000, u'a') + u'|' + QString(1000, u'b');
    text.start = 1000;
    EXPECT_EQ(InputMethod::Answer(text, Qt::ImTextBeforeCursor).toString(), QString(256, u'a'));
    EXPECT_EQ(InputMethod::Answer(text, Qt::ImTextAfterCursor).toString(), u'|' + QString(255, u'b'));
    EXPECT_EQ(InputMethod::Answer(text, Qt::ImCursorPosition).toInt(), 256);
    EXPECT_EQ(InputMethod::Answer(text, Qt::ImSurroundingText).toString().indexOf(u'|'), 256);
}

TEST(InputMethod, TheAnchorIsTheEndOfTheSelectionThatStays) {
    PlainText text;
    text.text = u"abcdef"_s;
    text.start = 1;
    text.length = 3;
    EXPECT_EQ(InputMethod::Answer(text, Qt::ImAnchorPosition).toInt(), 1);
    EXPECT_EQ(InputMethod::Answer(text, Qt::ImCursorPosition).toInt(), 4);
    text.caretInFront = true;
    EXPECT_EQ(InputMethod::Answer(text, Qt::ImAnchorPosition).toInt(), 4);
    EXPECT_EQ(InputMethod::Answer(text, Qt::ImCurrentSelection).toString(), u"bcd"_s);
    EXPECT_FALSE(InputMethod::Answer(text, Qt::ImMaximumTextLength).isValid());
}

TEST(InputMethod, WhatIsComposedIsShownOverTheTextAndNotKept) {
    QWidget viewport;
    viewport.resize(200, 40);
    InputMethod method(viewport);
    EXPECT_FALSE(method.Composing());
    method.SetPreedit(u"ka"_s);
    EXPECT_TRUE(method.Composing());
    method.SetPreedit(QString());
    EXPECT_FALSE(method.Composing());
}

} // namespace
