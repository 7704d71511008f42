// What assistive technology reads of the text control, and what it is told.
#include "platform/text/RichTextFixture.h"

#include "platform/text/RichTextAccessible.h"

#include <QAccessible>

namespace {

using namespace Qt::StringLiterals;

/// Records what a screen reader would be told, in the order of telling.
class WatchedBox final : public RichTextBox {
  public:
    WatchedBox() {
        News().hears = [this](QAccessibleEvent& event) { Hear(event); };
    }

    QStringList Told() { return std::exchange(told_, {}); }

  private:
    void Hear(QAccessibleEvent& event) {
        if (event.type() == QAccessible::TextInserted) {
            const auto& inserted = static_cast<QAccessibleTextInsertEvent&>(event);
            told_ << u"inserted %1 %2"_s.arg(inserted.changePosition()).arg(inserted.textInserted());
        } else if (event.type() == QAccessible::TextRemoved) {
            const auto& removed = static_cast<QAccessibleTextRemoveEvent&>(event);
            told_ << u"removed %1 %2"_s.arg(removed.changePosition()).arg(removed.textRemoved());
        } else if (event.type() == QAccessible::TextCaretMoved) {
            told_ << u"caret %1"_s.arg(static_cast<QAccessibleTextCursorEvent&>(event).cursorPosition());
        } else if (event.type() == QAccessible::TextSelectionChanged) {
            const auto& selection = static_cast<QAccessibleTextSelectionEvent&>(event);
            told_ << u"selection %1 %2"_s.arg(selection.selectionStart()).arg(selection.selectionEnd());
            EXPECT_EQ(selection.cursorPosition(), CaretPosition());
        }
    }

    QStringList told_;
};

class RichTextAccessibleTest : public RichTextFixture {
  protected:
    RichTextAccessibleTest() {
        box.setAccessibleName(u"Page text"_s);
        one = QAccessible::queryAccessibleInterface(&box);
        text = one->textInterface();
    }

    QString At(int offset, QAccessible::TextBoundaryType type) {
        return text->textAtOffset(offset, type, &start, &end);
    }

    QAccessibleInterface* one;
    QAccessibleTextInterface* text;
    int start = -9;
    int end = -9;
};

TEST_F(RichTextAccessibleTest, ItIsAnEditableTextOfItsOwn) {
    EXPECT_NE(dynamic_cast<RichTextAccessible*>(one), nullptr);
    EXPECT_EQ(one->role(), QAccessible::EditableText);
    EXPECT_EQ(one->text(QAccessible::Name), u"Page text"_s);
    EXPECT_TRUE(one->state().multiLine);
    EXPECT_TRUE(one->state().editable);
    EXPECT_TRUE(one->state().selectableText);
    EXPECT_TRUE(one->state().focusable);
    ASSERT_NE(text, nullptr);
    ASSERT_NE(one->editableTextInterface(), nullptr);
    const RichTextBox unnamed;
    EXPECT_EQ(unnamed.accessibleName(), u"Text"_s) << "until its window gives it another";
}

TEST_F(RichTextAccessibleTest, DerivedControlsHaveItToo) {
    class Derived : public RichTextBox {};
    Derived derived;
    EXPECT_NE(dynamic_cast<RichTextAccessible*>(QAccessible::queryAccessibleInterface(&derived)), nullptr);
}

TEST_F(RichTextAccessibleTest, TextCaretAndSelectionCountCharacters) {
    box.SetText(u"é€ab\r\nc"_s);
    EXPECT_EQ(text->characterCount(), 7);
    EXPECT_EQ(text->text(1, 4), u"€ab"_s);
    EXPECT_EQ(text->text(0, -1), box.Text());
    EXPECT_EQ(text->selectionCount(), 0);
    text->setCursorPosition(2);
    EXPECT_EQ(box.SelStart(), 2);
    text->setSelection(0, 1, 3);
    EXPECT_EQ(box.SelText(), u"€a"_s);
    EXPECT_EQ(text->selectionCount(), 1);
    text->selection(0, &start, &end);
    EXPECT_EQ(start, 1);
    EXPECT_EQ(end, 3);
    EXPECT_EQ(text->cursorPosition(), 3);
    text->removeSelection(0);
    EXPECT_EQ(box.SelLength(), 0);
    EXPECT_EQ(text->cursorPosition(), 3);
    text->addSelection(0, 2);
    EXPECT_EQ(box.SelText(), u"é€"_s);
    text->selection(1, &start, &end);
    EXPECT_EQ(std::pair(start, end), std::pair(0, 0)) << "there is one selection at most";
    text->removeSelection(1);
    text->setSelection(1, 3, 4);
    EXPECT_EQ(box.SelText(), u"é€"_s);
    text->setSelection(0, 3, 4);
    EXPECT_EQ(text->selectionCount(), 1);
}

TEST_F(RichTextAccessibleTest, TextIsReadByCharacterWordAndLine) {
    box.SetText(u"one twö\r\nthree"_s);
    EXPECT_EQ(At(1, QAccessible::CharBoundary), u"n"_s);
    EXPECT_EQ(At(5, QAccessible::WordBoundary), u"twö"_s);
    EXPECT_EQ(start, 4);
    EXPECT_EQ(end, 7);
    EXPECT_EQ(At(5, QAccessible::LineBoundary), u"one twö\r\n"_s);
    EXPECT_EQ(end, 9);
    EXPECT_EQ(At(-1, QAccessible::LineBoundary), u"three"_s);
    box.SetSelStart(5);
    EXPECT_EQ(At(-2, QAccessible::WordBoundary), u"twö"_s);
    EXPECT_EQ(text->textBeforeOffset(2, QAccessible::CharBoundary, &start, &end), u"n"_s);
    EXPECT_EQ(text->textAfterOffset(1, QAccessible::CharBoundary, &start, &end), u"e"_s);
    EXPECT_EQ(At(3, QAccessible::NoBoundary), box.Text());
    EXPECT_EQ(text->textAfterOffset(1, QAccessible::WordBoundary, &start, &end), u"twö"_s);
    EXPECT_EQ(text->textBeforeOffset(5, QAccessible::WordBoundary, &start, &end), u"one"_s);
    EXPECT_EQ(text->textAfterOffset(1, QAccessible::LineBoundary, &start, &end), u"three"_s);
    EXPECT_EQ(text->textBeforeOffset(10, QAccessible::LineBoundary, &start, &end), u"one twö\r\n"_s);
    EXPECT_EQ(text->textBeforeOffset(0, QAccessible::LineBoundary, &start, &end), QString());
    EXPECT_EQ(std::pair(start, end), std::pair(0, 0));
    EXPECT_EQ(text->textAfterOffset(13, QAccessible::LineBoundary, &start, &end), QString());
    EXPECT_EQ(std::pair(start, end), std::pair(14, 14));
}

TEST_F(RichTextAccessibleTest, WordsAreFoundAnywhereInALongLine) {
    box.SetText(u"abc def "_s.repeated(500));
    for (const int word : {0, 512, 2000, 3992}) {
        EXPECT_EQ(At(word + 1, QAccessible::WordBoundary), u"abc"_s) << word;
        EXPECT_EQ(std::pair(start, end), std::pair(word, word + 3));
        EXPECT_EQ(text->textAfterOffset(word, QAccessible::WordBoundary, &start, &end), u"def"_s) << word;
        EXPECT_EQ(std::pair(start, end), std::pair(word + 4, word + 7));
    }
}

TEST_F(RichTextAccessibleTest, CharactersHaveTheirPlaceOnTheScreen) {
    box.SetText(u"éab\r\ncd"_s);
    for (const int offset : {0, 1, 2, 5, 6}) {
        const QRect place = text->characterRect(offset);
        EXPECT_GT(place.width(), 0);
        EXPECT_EQ(text->offsetAtPoint(place.center()), offset);
    }
    EXPECT_GT(text->characterRect(5).top(), text->characterRect(1).top());
    EXPECT_EQ(text->offsetAtPoint(box.viewport()->mapToGlobal(QPoint(-50, -50))), -1);
}

TEST_F(RichTextAccessibleTest, ColorsAreToldWithTheirStretch) {
    Put(u"abcde"_s, u"krrgg"_s);
    const QString attributes = text->attributes(2, &start, &end);
    EXPECT_TRUE(attributes.contains(u"color:rgb(255,0,0);"_s)) << attributes.toStdString();
    EXPECT_EQ(start, 1);
    EXPECT_EQ(end, 3);
    Select(0, 1);
    box.SetSelColor(0x03f201);
    EXPECT_TRUE(text->attributes(0, &start, &end).contains(u"color:rgb(1,242,3);"_s));
    EXPECT_EQ(std::pair(start, end), std::pair(0, 1));
    text->attributes(3, &start, &end);
    EXPECT_EQ(std::pair(start, end), std::pair(3, 5));
    EXPECT_EQ(text->attributes(-1, &start, &end), QString()) << "behind the text there is none";
    EXPECT_EQ(std::pair(start, end), std::pair(5, 5));
}

TEST_F(RichTextAccessibleTest, TextIsEditedFromOutside) {
    box.SetText(u"abcd"_s);
    QAccessibleEditableTextInterface* edit = one->editableTextInterface();
    edit->insertText(2, u"☃"_s);
    EXPECT_EQ(box.Text(), u"ab&#9731;cd"_s);
    edit->deleteText(2, 9);
    EXPECT_EQ(box.Text(), u"abcd"_s);
    edit->replaceText(1, 3, u"\n"_s);
    EXPECT_EQ(box.Text(), u"a\r\nd"_s);
    box.SetEnabled(false);
    edit->deleteText(0, 1);
    EXPECT_EQ(box.Text(), u"a\r\nd"_s);
}

TEST_F(RichTextAccessibleTest, ScrollingToAStretchLeavesTheCaret) {
    box.SetText(QString(200, u'\n') + u"end"_s);
    box.grab();
    EXPECT_FALSE(box.viewport()->rect().contains(box.CharacterRect(201).topLeft()));
    text->scrollToSubstring(200, 203);
    EXPECT_TRUE(box.viewport()->rect().contains(box.CharacterRect(201).topLeft()));
    EXPECT_EQ(box.SelStart(), 0);
}

TEST(RichTextAccessible, ChangesAndCaretAreToldWhenTheyAreDone) {
    WatchedBox watched;
    watched.SetText(u"éab"_s);
    watched.SetSelStart(1);
    watched.Told();
    QTest::keyClicks(&watched, u"x"_s);
    EXPECT_EQ(watched.Told(), (QStringList{u"inserted 1 x"_s, u"selection 2 2"_s, u"caret 2"_s}));
    watched.SetSelStart(0);
    watched.SetSelLength(2);
    watched.Told();
    watched.SetSelText(u"€"_s);
    EXPECT_EQ(watched.Told(),
              (QStringList{u"removed 0 éx"_s, u"inserted 0 €"_s, u"selection 1 1"_s, u"caret 1"_s}));
    watched.SetSelLength(1);
    EXPECT_EQ(watched.Told(), (QStringList{u"selection 1 2"_s, u"caret 2"_s}));
    watched.SetSelStart(1);
    watched.Told();
    QTest::keyClick(&watched, Qt::Key_Delete);
    EXPECT_EQ(watched.Told(), QStringList{u"removed 1 a"_s}) << "the caret stays";
}

} // namespace
