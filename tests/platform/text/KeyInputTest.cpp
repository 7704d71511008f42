// What becomes of a key, and of what its listeners make of it.
#include "platform/text/KeyInput.h"
#include "platform/text/TextParts.h"

#include <QKeyEvent>

namespace {

using namespace Qt::StringLiterals;

class KeyInputTest : public TextParts {
  protected:
    /// Whether the key was taken.
    bool Press(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        event.accept();
        keys.Press(event);
        colors.TakeIncoming();
        return event.isAccepted();
    }

    std::function<void(int&)> onKeyDown = [](int&) {};
    std::function<void(int&)> onKeyPress = [](int&) {};
    int shift = -1;
    KeyInput keys{control,
                  buffer,
                  editing,
                  {.keyDown =
                       [this](int& KeyCode, int Shift) {
                           shift = Shift;
                           onKeyDown(KeyCode);
                       },
                   .keyPress = [this](int& KeyAscii) { onKeyPress(KeyAscii); }}};
};

TEST_F(KeyInputTest, AKeyTypesItsText) {
    EXPECT_TRUE(Press(Qt::Key_A, u"a"_s));
    EXPECT_TRUE(Press(Qt::Key_Return, u"\r"_s));
    EXPECT_TRUE(Press(Qt::Key_unknown, u"\u2603"_s));
    EXPECT_EQ(Text(), u"a\r\n&#9731;"_s);
    EXPECT_FALSE(Press(Qt::Key_F5));
    EXPECT_FALSE(Press(Qt::Key_Escape, u"\x1b"_s)) << "a dialog around the text wants it too";
}

TEST_F(KeyInputTest, AListenerSwallowsAKeyOrMakesAnotherOfIt) {
    onKeyPress = [](int& KeyAscii) { KeyAscii = KeyAscii == 'x' ? 0 : 'y'; };
    Press(Qt::Key_X, u"x"_s, Qt::NoModifier);
    Press(Qt::Key_A, u"a"_s);
    EXPECT_EQ(Text(), u"y"_s);
    onKeyDown = [](int& KeyCode) { KeyCode = KeyCode == 37 ? 0 : KeyCode; };
    Press(Qt::Key_Left, {}, Qt::ShiftModifier);
    EXPECT_EQ(editing.Caret(), 1);
    EXPECT_EQ(shift, 1);
    onKeyDown = [](int& KeyCode) { KeyCode = 36; };
    Press(Qt::Key_Left);
    EXPECT_EQ(editing.Caret(), 0) << "Home";
}

TEST_F(KeyInputTest, PlainEditingKeysBelongToTheTextWhateverAMenuMakesOfThem) {
    const auto isTextKey = [](int key, const QString& text, Qt::KeyboardModifiers modifiers) {
        return KeyInput::IsTextKey(QKeyEvent(QEvent::ShortcutOverride, key, modifiers, text));
    };
    EXPECT_TRUE(isTextKey(Qt::Key_A, u"a"_s, Qt::NoModifier));
    EXPECT_TRUE(isTextKey(Qt::Key_Delete, {}, Qt::NoModifier));
    EXPECT_TRUE(isTextKey(Qt::Key_Backspace, u"\b"_s, Qt::ShiftModifier));
    EXPECT_FALSE(isTextKey(Qt::Key_S, u"\x13"_s, Qt::ControlModifier));
    EXPECT_FALSE(isTextKey(Qt::Key_F1, {}, Qt::NoModifier));
}

} // namespace
