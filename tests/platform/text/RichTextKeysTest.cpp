// Keys and input methods: what they type, what they move, what handlers make of them.
#include "platform/text/RichTextFixture.h"

#include "platform/text/RichTextKeys.h"

#include <functional>
#include <QClipboard>

namespace {

using namespace Qt::StringLiterals;

class RichTextKeysTest : public RichTextFixture {
  protected:
    RichTextKeysTest() {
        QObject::connect(&box, &RichTextBox::KeyDown, &box, [this](int& code, int shift) {
            keys << u"down %1 %2"_s.arg(code).arg(shift);
            if (onDown)
                onDown(code);
        });
        QObject::connect(&box, &RichTextBox::KeyPress, &box, [this](int& code) {
            keys << u"press %1"_s.arg(code);
            if (onPress)
                onPress(code);
        });
    }

    QStringList Keys() { return std::exchange(keys, {}); }

    QStringList keys;
    std::function<void(int&)> onDown;
    std::function<void(int&)> onPress;
};

struct KeyRow {
    const char* name;
    int key;
    Qt::KeyboardModifiers modifiers;
    QString text;
    QStringList told;
    QString result; ///< of the text "ab|cd" with the caret at the bar
};

void PrintTo(const KeyRow& row, std::ostream* out) {
    *out << row.name;
}

class RichTextKeyRows : public RichTextKeysTest, public testing::WithParamInterface<KeyRow> {};

TEST_P(RichTextKeyRows, Tells) {
    const KeyRow& row = GetParam();
    box.SetText(u"ab cd"_s);
    box.SetSelStart(2);
    PressText(row.text, row.key, row.modifiers);
    EXPECT_EQ(Keys(), row.told);
    QString result = box.Text();
    result.insert(box.CaretPosition(), u'|');
    EXPECT_EQ(result, row.result);
}

const KeyRow keyRows[] = {
    {"letter", Qt::Key_X, Qt::NoModifier, u"x"_s, {u"down 88 0"_s, u"press 120"_s}, u"abx| cd"_s},
    {"capital", Qt::Key_X, Qt::ShiftModifier, u"X"_s, {u"down 88 1"_s, u"press 88"_s}, u"abX| cd"_s},
    {"digit", Qt::Key_1, Qt::NoModifier, u"1"_s, {u"down 49 0"_s, u"press 49"_s}, u"ab1| cd"_s},
    {"shifted digit",
     Qt::Key_Exclam,
     Qt::ShiftModifier,
     u"!"_s,
     {u"down 49 1"_s, u"press 33"_s},
     u"ab!| cd"_s},
    {"keypad digit", Qt::Key_7, Qt::KeypadModifier, u"7"_s, {u"down 103 0"_s, u"press 55"_s}, u"ab7| cd"_s},
    {"greater", Qt::Key_Greater, Qt::ShiftModifier, u">"_s, {u"down 190 1"_s, u"press 62"_s}, u"ab>| cd"_s},
    {"blank", Qt::Key_Space, Qt::NoModifier, u" "_s, {u"down 32 0"_s, u"press 32"_s}, u"ab | cd"_s},
    {"accent", Qt::Key_Eacute, Qt::NoModifier, u"é"_s, {u"press 233"_s}, u"abé| cd"_s},
    {"euro", Qt::Key_E, Qt::GroupSwitchModifier, u"€"_s, {u"down 69 0"_s, u"press 128"_s}, u"ab€| cd"_s},
    {"AltGr told as both",
     Qt::Key_Q,
     Qt::ControlModifier | Qt::AltModifier,
     u"@"_s,
     {u"down 81 6"_s, u"press 64"_s},
     u"ab@| cd"_s},
    {"outside the code page", Qt::Key_unknown, Qt::NoModifier, u"☃"_s, {}, u"ab&#9731;| cd"_s},
    {"pair", Qt::Key_unknown, Qt::NoModifier, u"😀"_s, {}, u"ab&#128512;| cd"_s},
    {"pair and more",
     Qt::Key_unknown,
     Qt::NoModifier,
     u"😀xy"_s,
     {u"press 120"_s, u"press 121"_s},
     u"ab&#128512;xy| cd"_s},
    {"last of the code page", Qt::Key_ydiaeresis, Qt::NoModifier, u"ÿ"_s, {u"press 255"_s}, u"abÿ| cd"_s},
    {"meta letter is the desktop's", Qt::Key_X, Qt::MetaModifier, u"x"_s, {u"down 88 0"_s}, u"ab| cd"_s},
    {"keypad left", Qt::Key_Left, Qt::KeypadModifier, QString(), {u"down 37 0"_s}, u"a|b cd"_s},
    {"keypad delete", Qt::Key_Delete, Qt::KeypadModifier, u"\x7f"_s, {u"down 46 0"_s}, u"ab|cd"_s},
    {"alt left is no move", Qt::Key_Left, Qt::AltModifier, QString(), {u"down 37 4"_s}, u"ab| cd"_s},
    {"ctrl c is an editing key", Qt::Key_C, Qt::ControlModifier, u"\x03"_s, {u"down 67 2"_s}, u"ab| cd"_s},
    {"letter and accent apart",
     Qt::Key_unknown,
     Qt::NoModifier,
     u"e\u0301"_s,
     {u"press 233"_s},
     u"abé| cd"_s},
    {"enter", Qt::Key_Return, Qt::NoModifier, u"\r"_s, {u"down 13 0"_s, u"press 13"_s}, u"ab\r\n| cd"_s},
    {"keypad enter",
     Qt::Key_Enter,
     Qt::KeypadModifier,
     u"\r"_s,
     {u"down 13 0"_s, u"press 13"_s},
     u"ab\r\n| cd"_s},
    {"shift enter",
     Qt::Key_Return,
     Qt::ShiftModifier,
     u"\r"_s,
     {u"down 13 1"_s, u"press 13"_s},
     u"ab\r\n| cd"_s},
    {"tab", Qt::Key_Tab, Qt::NoModifier, u"\t"_s, {u"down 9 0"_s, u"press 9"_s}, u"ab\t| cd"_s},
    {"backspace", Qt::Key_Backspace, Qt::NoModifier, u"\b"_s, {u"down 8 0"_s, u"press 8"_s}, u"a| cd"_s},
    {"escape", Qt::Key_Escape, Qt::NoModifier, u"\x1b"_s, {u"down 27 0"_s, u"press 27"_s}, u"ab| cd"_s},
    {"delete", Qt::Key_Delete, Qt::NoModifier, u"\x7f"_s, {u"down 46 0"_s}, u"ab|cd"_s},
    {"left", Qt::Key_Left, Qt::NoModifier, QString(), {u"down 37 0"_s}, u"a|b cd"_s},
    {"up", Qt::Key_Up, Qt::NoModifier, QString(), {u"down 38 0"_s}, u"|ab cd"_s},
    {"right", Qt::Key_Right, Qt::NoModifier, QString(), {u"down 39 0"_s}, u"ab |cd"_s},
    {"down", Qt::Key_Down, Qt::NoModifier, QString(), {u"down 40 0"_s}, u"ab cd|"_s},
    {"home", Qt::Key_Home, Qt::NoModifier, QString(), {u"down 36 0"_s}, u"|ab cd"_s},
    {"end", Qt::Key_End, Qt::NoModifier, QString(), {u"down 35 0"_s}, u"ab cd|"_s},
    {"ctrl left", Qt::Key_Left, Qt::ControlModifier, QString(), {u"down 37 2"_s}, u"|ab cd"_s},
    {"ctrl right", Qt::Key_Right, Qt::ControlModifier, QString(), {u"down 39 2"_s}, u"ab |cd"_s},
    {"ctrl home", Qt::Key_Home, Qt::ControlModifier, QString(), {u"down 36 2"_s}, u"|ab cd"_s},
    {"ctrl end", Qt::Key_End, Qt::ControlModifier, QString(), {u"down 35 2"_s}, u"ab cd|"_s},
    {"page up", Qt::Key_PageUp, Qt::NoModifier, QString(), {u"down 33 0"_s}, u"ab| cd"_s},
    {"page down", Qt::Key_PageDown, Qt::NoModifier, QString(), {u"down 34 0"_s}, u"ab cd|"_s},
    {"ctrl backspace", Qt::Key_Backspace, Qt::ControlModifier, u"\x7f"_s, {u"down 8 2"_s}, u"| cd"_s},
    {"ctrl delete", Qt::Key_Delete, Qt::ControlModifier, QString(), {u"down 46 2"_s}, u"ab|cd"_s},
    {"function key", Qt::Key_F5, Qt::NoModifier, QString(), {u"down 116 0"_s}, u"ab| cd"_s},
    {"ctrl alone", Qt::Key_Control, Qt::NoModifier, QString(), {u"down 17 2"_s}, u"ab| cd"_s},
    {"ctrl digit", Qt::Key_1, Qt::ControlModifier, u"1"_s, {u"down 49 2"_s}, u"ab| cd"_s},
    {"ctrl zero", Qt::Key_0, Qt::ControlModifier, u"0"_s, {u"down 48 2"_s}, u"ab| cd"_s},
    {"ctrl letter", Qt::Key_B, Qt::ControlModifier, u"\x02"_s, {u"down 66 2"_s, u"press 2"_s}, u"ab| cd"_s},
    {"ctrl i is no tab",
     Qt::Key_I,
     Qt::ControlModifier,
     u"\t"_s,
     {u"down 73 2"_s, u"press 9"_s},
     u"ab| cd"_s},
    {"ctrl d duplicates nothing",
     Qt::Key_D,
     Qt::ControlModifier,
     u"\x04"_s,
     {u"down 68 2"_s, u"press 4"_s},
     u"ab| cd"_s},
    {"ctrl l cuts no line",
     Qt::Key_L,
     Qt::ControlModifier,
     u"\x0c"_s,
     {u"down 76 2"_s, u"press 12"_s},
     u"ab| cd"_s},
    {"soft hyphen", Qt::Key_hyphen, Qt::NoModifier, u"\u00ad"_s, {u"press 173"_s}, u"ab\u00ad| cd"_s},
    {"a control character types nothing", Qt::Key_unknown, Qt::NoModifier, u"\x01"_s, {}, u"ab| cd"_s},
    {"alt letter is a menu's", Qt::Key_F, Qt::AltModifier, u"f"_s, {u"down 70 4"_s}, u"ab| cd"_s},
    {"insert types nothing", Qt::Key_Insert, Qt::NoModifier, QString(), {u"down 45 0"_s}, u"ab| cd"_s},
};

INSTANTIATE_TEST_SUITE_P(Rows, RichTextKeyRows, testing::ValuesIn(keyRows));

TEST_F(RichTextKeysTest, TheRowOfDigitsIsKnownByItsPlace) {
    // As on a French keyboard, where the key of the 1 types an ampersand.
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Ampersand, Qt::ControlModifier, 10, 0, 0, u"&"_s);
    QApplication::sendEvent(&box, &press);
    EXPECT_EQ(Keys(), QStringList{u"down 49 2"_s});
}

int CodeOf(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, quint32 scan = 0) {
    return VirtualKey(QKeyEvent(QEvent::KeyPress, key, modifiers, scan, 0, 0));
}

TEST(RichTextKeys, EveryKeyHasItsVirtualCode) {
    const std::pair<int, int> rows[] = {
        {Qt::Key_Backspace, 8},
        {Qt::Key_Tab, 9},
        {Qt::Key_Backtab, 9},
        {Qt::Key_Return, 13},
        {Qt::Key_Enter, 13},
        {Qt::Key_Shift, 16},
        {Qt::Key_Control, 17},
        {Qt::Key_Alt, 18},
        {Qt::Key_Pause, 19},
        {Qt::Key_CapsLock, 20},
        {Qt::Key_Escape, 27},
        {Qt::Key_Space, 32},
        {Qt::Key_PageUp, 33},
        {Qt::Key_PageDown, 34},
        {Qt::Key_End, 35},
        {Qt::Key_Home, 36},
        {Qt::Key_Left, 37},
        {Qt::Key_Up, 38},
        {Qt::Key_Right, 39},
        {Qt::Key_Down, 40},
        {Qt::Key_Print, 44},
        {Qt::Key_Insert, 45},
        {Qt::Key_Delete, 46},
        {Qt::Key_Menu, 93},
        {Qt::Key_NumLock, 144},
        {Qt::Key_ScrollLock, 145},
        {Qt::Key_Semicolon, 186},
        {Qt::Key_Colon, 186},
        {Qt::Key_Equal, 187},
        {Qt::Key_Plus, 187},
        {Qt::Key_Comma, 188},
        {Qt::Key_Less, 188},
        {Qt::Key_Minus, 189},
        {Qt::Key_Underscore, 189},
        {Qt::Key_Period, 190},
        {Qt::Key_Greater, 190},
        {Qt::Key_Slash, 191},
        {Qt::Key_Question, 191},
        {Qt::Key_QuoteLeft, 192},
        {Qt::Key_AsciiTilde, 192},
        {Qt::Key_BracketLeft, 219},
        {Qt::Key_BraceLeft, 219},
        {Qt::Key_Backslash, 220},
        {Qt::Key_Bar, 220},
        {Qt::Key_BracketRight, 221},
        {Qt::Key_BraceRight, 221},
        {Qt::Key_Apostrophe, 222},
        {Qt::Key_QuoteDbl, 222},
        {Qt::Key_0, 48},
        {Qt::Key_9, 57},
        {Qt::Key_A, 65},
        {Qt::Key_Z, 90},
        {Qt::Key_F1, 112},
        {Qt::Key_F24, 135},
        {Qt::Key_F25, 0},
        {Qt::Key_Eacute, 0},
        {Qt::Key_unknown, 0},
    };
    for (const auto& [key, code] : rows)
        EXPECT_EQ(CodeOf(key), code) << key;
    const char shifted[] = ")!@#$%^&*(";
    for (int digit = 0; digit < 10; ++digit) {
        EXPECT_EQ(CodeOf(shifted[digit], Qt::ShiftModifier), 48 + digit);
        EXPECT_EQ(CodeOf(Qt::Key_0 + digit, Qt::KeypadModifier), 96 + digit);
    }
    const std::pair<int, int> keypad[] = {{Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109},
                                          {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111},
                                          {Qt::Key_Home, 36},      {Qt::Key_Enter, 13}};
    for (const auto& [key, code] : keypad)
        EXPECT_EQ(CodeOf(key, Qt::KeypadModifier), code) << key;
}

#ifdef Q_OS_LINUX
TEST(RichTextKeys, TheRowOfDigitsEndsWithItsZero) {
    for (quint32 scan = 10; scan < 19; ++scan)
        EXPECT_EQ(CodeOf(Qt::Key_Eacute, Qt::NoModifier, scan), 49 + static_cast<int>(scan) - 10);
    EXPECT_EQ(CodeOf(Qt::Key_Agrave, Qt::NoModifier, 19), 48);
    EXPECT_EQ(CodeOf(Qt::Key_Escape, Qt::NoModifier, 9), 27) << "the key to its left";
    EXPECT_EQ(CodeOf(Qt::Key_Minus, Qt::NoModifier, 20), 189) << "the key to its right";
}
#endif

TEST(RichTextKeys, ACodeLeadsBackToAKeyOfIt) {
    for (const int code : {8, 9, 13, 27, 32, 35, 36, 37, 40, 46, 48, 57, 65, 90, 93, 112, 135, 186, 192, 222})
        EXPECT_EQ(CodeOf(KeyOfVirtual(code)), code);
    for (const int code : {0, 1, 47, 58, 64, 91, 96, 111, 136, 255, -1})
        EXPECT_EQ(KeyOfVirtual(code), 0) << code;
}

TEST(RichTextKeys, CtrlAndALetterAreAControlCharacter) {
    EXPECT_EQ(ControlCharacter(Qt::Key_A, Qt::ControlModifier), 1);
    EXPECT_EQ(ControlCharacter(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier), 26);
    EXPECT_EQ(ControlCharacter(Qt::Key_A, Qt::NoModifier), std::nullopt);
    EXPECT_EQ(ControlCharacter(Qt::Key_A, Qt::ControlModifier | Qt::AltModifier), std::nullopt);
    EXPECT_EQ(ControlCharacter(Qt::Key_At, Qt::ControlModifier), std::nullopt);
    EXPECT_EQ(ControlCharacter(Qt::Key_BracketLeft, Qt::ControlModifier), std::nullopt);
    EXPECT_EQ(ControlCharacter(Qt::Key_Tab, Qt::ShiftModifier), std::nullopt);
}

TEST_F(RichTextKeysTest, ShiftMovesExtendTheSelection) {
    box.SetText(u"ab cd\r\nef"_s);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(box.SelText(), u"a"_s);
    Press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(box.SelText(), u"ab "_s);
    Press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(box.SelText(), u"ab cd"_s);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(box.SelText(), u"ab cd\r\n"_s) << "a line end is one step";
    Press(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(box.SelText(), box.Text());
    Press(Qt::Key_Home);
    Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(box.SelText(), box.Text());
}

TEST_F(RichTextKeysTest, MovingUpAndDownKeepsTheColumn) {
    box.SetText(u"aaaaaaaaaa\r\nx\r\naaaaaaaaaa\r\n"_s);
    box.SetSelStart(5);
    Press(Qt::Key_Down);
    EXPECT_EQ(box.SelStart(), 13);
    Press(Qt::Key_Down);
    EXPECT_EQ(box.SelStart(), box.LineStart(15) + 5);
    Press(Qt::Key_PageUp);
    EXPECT_EQ(box.SelStart(), 5);
}

/// Whatever last put the caret where it stands, Down goes on from its own column.
TEST_F(RichTextKeysTest, MovingDownStartsFromTheColumnWhereTheCaretWasPut) {
    const QString lines = u"abcdefgh\r\nabcdefgh"_s;
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"0 text", [&] { box.SetText(lines); }},
        {"0 whole text as RTF", [&] { box.SetTextRTF(u"{abcdefgh\\par abcdefgh}"_s); }},
        {"3 caret", [&] { box.SetSelStart(3); }},
        {"4 selection", [&] { Select(2, 2); }},
        {"6 search", [&] { box.Find(u"ef"_s, 0); }},
        {"2 assignment",
         [&] {
             Select(0, 8);
             box.SetSelText(u"xy"_s);
         }},
        {"3 colours",
         [&] {
             Select(0, 8);
             box.SetSelRTF(u"{xyz}"_s);
         }},
        {"5 typing",
         [&] {
             box.SetSelStart(4);
             Type("x");
         }},
        {"1 deleting",
         [&] {
             box.SetSelStart(2);
             Press(Qt::Key_Backspace);
         }},
    };
    for (const auto& [name, put] : rows) {
        box.SetText(lines);
        Press(Qt::Key_End);
        put();
        Press(Qt::Key_Down);
        EXPECT_EQ(box.SelStart() - box.LineStart(box.SelStart()), name[0] - '0') << name;
        EXPECT_EQ(box.GetLineFromChar(box.SelStart()), 1) << name;
    }
}

TEST_F(RichTextKeysTest, DeletingTakesALineEndWhole) {
    for (const QString& end : {u"\r\n"_s, u"\n"_s, u"\r"_s}) {
        box.SetText(u"a"_s + end + u"b"_s);
        box.SetSelStart(1);
        Press(Qt::Key_Delete);
        EXPECT_EQ(box.Text(), u"ab"_s);
        box.SetText(u"a"_s + end + u"b"_s);
        box.SetSelStart(1 + static_cast<int>(end.size()));
        Press(Qt::Key_Backspace);
        EXPECT_EQ(box.Text(), u"ab"_s);
    }
}

TEST_F(RichTextKeysTest, DeletingKeysTakeTheSelectionOnly) {
    for (const auto& [key, modifiers] : std::initializer_list<std::pair<Qt::Key, Qt::KeyboardModifiers>>{
             {Qt::Key_Delete, Qt::NoModifier},
             {Qt::Key_Delete, Qt::ControlModifier},
             {Qt::Key_Backspace, Qt::NoModifier},
             {Qt::Key_Backspace, Qt::ControlModifier}}) {
        box.SetText(u"one two three"_s);
        Select(4, 3);
        Press(key, modifiers);
        EXPECT_EQ(box.Text(), u"one  three"_s);
    }
}

TEST_F(RichTextKeysTest, EnterWritesTheDocumentsOwnLineEnd) {
    for (const QString& end : {u"\r\n"_s, u"\n"_s, u"\r"_s}) {
        box.SetText(u"a"_s + end + u"b"_s);
        box.SetSelStart(box.TextLength());
        Press(Qt::Key_Return);
        EXPECT_EQ(box.Text(), u"a"_s + end + u"b"_s + end);
    }
}

TEST_F(RichTextKeysTest, AKeyTellsOfChangeAndSelectionOnceAndAfterwards) {
    QString seen;
    QObject::connect(&box, &RichTextBox::Change, &box, [&] { seen = box.Text(); });
    Signalled();
    Type("x");
    EXPECT_EQ(Signalled(), (QStringList{u"Change"_s, u"SelChange"_s}));
    EXPECT_EQ(seen, u"x"_s);
    Press(Qt::Key_Left);
    EXPECT_EQ(Signalled(), QStringList{u"SelChange"_s});
    Press(Qt::Key_Left);
    EXPECT_EQ(Signalled(), QStringList());
    Press(Qt::Key_Delete);
    EXPECT_EQ(Signalled(), QStringList{u"Change"_s}) << "the caret stays where it is";
    Press(Qt::Key_Delete);
    EXPECT_EQ(Signalled(), QStringList());
}

TEST_F(RichTextKeysTest, TypingReplacesTheSelectionAsOneStep) {
    Put(u"abcd"_s, u"rggr"_s);
    Select(1, 2);
    Type("x");
    EXPECT_EQ(box.Text(), u"axd"_s);
    EXPECT_EQ(Colors(), u"rgr"_s);
    EXPECT_EQ(Signalled().count(u"Change"_s), 1);
    Undo();
    EXPECT_EQ(box.Text(), u"abcd"_s);
    EXPECT_EQ(Colors(), u"rggr"_s);
}

// --- handlers

TEST_F(RichTextKeysTest, AHandlerSwallowsAKey) {
    box.SetText(u"abc"_s);
    Signalled();
    onPress = [](int& code) { code = 0; };
    Type("x");
    Press(Qt::Key_Return);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Tab);
    EXPECT_EQ(box.Text(), u"abc"_s);
    EXPECT_EQ(Signalled(), QStringList());
    onPress = nullptr;
    Keys();
    onDown = [](int& code) { code = 0; };
    Type("x");
    Press(Qt::Key_Right);
    Press(Qt::Key_Delete);
    EXPECT_EQ(box.Text(), u"abc"_s);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(Keys(), (QStringList{u"down 88 0"_s, u"down 39 0"_s, u"down 46 0"_s}))
        << "and no press follows";
}

TEST_F(RichTextKeysTest, AHandlerTypesAnotherCharacter) {
    onPress = [](int& code) { code = code == 120 ? 128 : code; };
    Type("xy");
    EXPECT_EQ(box.Text(), u"€y"_s);
    onPress = [](int& code) { code = 13; };
    Type("z");
    EXPECT_EQ(box.Text(), u"€y\r\n"_s);
    onPress = [](int& code) { code = 8; };
    Type("z");
    EXPECT_EQ(box.Text(), u"€y"_s);
    onPress = [](int& code) { code = 65; };
    Press(Qt::Key_Backspace);
    Press(Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"€yAA"_s);
    for (const int none : {400, 256, -1, 31, 1}) {
        onPress = [none](int& code) { code = none; };
        Type("z");
        EXPECT_EQ(box.Text(), u"€yAA"_s) << "neither a control code nor one outside the code page types";
    }
}

TEST_F(RichTextKeysTest, AHandlerTurnsAKeyIntoAnother) {
    box.SetText(u"abc"_s);
    onDown = [](int& code) { code = code == 39 ? 35 : code; };
    Press(Qt::Key_Right);
    EXPECT_EQ(box.SelStart(), 3);
}

TEST_F(RichTextKeysTest, AHandlerMayWriteBeforeTheCharacterGoesIn) {
    QStringList order;
    QObject::connect(&box, &RichTextBox::Change, &box, [&] { order << box.Text(); });
    onPress = [this](int&) { box.SetSelText(u"[é]"_s); };
    Type("x");
    EXPECT_EQ(order, (QStringList{u"[é]"_s, u"[é]x"_s})) << "each tells of itself when it is done";
    order.clear();
    onPress = [this](int& code) {
        box.SetSelText(u"&eacute;"_s);
        code = 0;
    };
    Type("y");
    EXPECT_EQ(order, QStringList{u"[é]x&eacute;"_s});
}

TEST_F(RichTextKeysTest, AHandlersSelectionIsReplacedByTheCharacter) {
    box.SetText(u"abc"_s);
    onPress = [this](int&) { Select(0, 3); };
    Type("x");
    EXPECT_EQ(box.Text(), u"x"_s);
}

TEST_F(RichTextKeysTest, AHandlersColorIsThatOfTheCharacter) {
    Put(u"<b>"_s, u"ggg"_s);
    onPress = [this](int&) { box.SetSelColor(red); };
    Type("x");
    EXPECT_EQ(Colors(), u"gggr"_s);
}

// --- input methods

TEST_F(RichTextKeysTest, AnInputMethodCommitsCharacterByCharacter) {
    box.SetText(u"ab"_s);
    Select(1, 1);
    QInputMethodEvent event;
    event.setCommitString(u"é☃x"_s);
    QApplication::sendEvent(&box, &event);
    EXPECT_EQ(Keys(), (QStringList{u"press 233"_s, u"press 120"_s}));
    EXPECT_EQ(box.Text(), u"aé&#9731;x"_s);
    EXPECT_EQ(box.SelStart(), 10);
}

TEST_F(RichTextKeysTest, WhatIsBeingComposedIsNoText) {
    box.SetText(u"ab"_s);
    Signalled();
    QInputMethodEvent compose(u"かな"_s, {});
    QApplication::sendEvent(&box, &compose);
    EXPECT_EQ(box.Text(), u"ab"_s);
    EXPECT_EQ(Signalled(), QStringList());
    QInputMethodEvent commit;
    commit.setCommitString(u"k"_s);
    QApplication::sendEvent(&box, &commit);
    EXPECT_EQ(box.Text(), u"kab"_s);
    EXPECT_EQ(Signalled(), (QStringList{u"Change"_s, u"SelChange"_s}));
}

TEST_F(RichTextKeysTest, WhatIsBeingComposedIsShownUntilItEnds) {
    QPalette palette = box.palette();
    palette.setColor(QPalette::Highlight, QColor(1, 99, 33));
    palette.setColor(QPalette::HighlightedText, QColor(200, 7, 100));
    box.setPalette(palette);
    QFont large = box.Font();
    large.setPointSize(40);
    box.SetFont(large);
    box.SetText(u"ab"_s);
    const auto isShown = [&] {
        const QImage image = box.viewport()->grab().toImage();
        const QPoint caret = box.CaretPixel();
        int letters = 0;
        for (int x = caret.x(); x < caret.x() + 60; ++x) {
            for (int y = caret.y(); y < caret.y() + box.LineHeight(); ++y)
                letters += image.pixelColor(x, y) == QColor(200, 7, 100) ? 1 : 0;
        }
        EXPECT_EQ(letters > 20, image.pixelColor(caret.x() + 1, caret.y() + 1) == QColor(1, 99, 33));
        return image.pixelColor(caret.x() + 1, caret.y() + 1) == QColor(1, 99, 33);
    };
    const auto send = [&](const QString& composed, const QString& committed) {
        QInputMethodEvent event(composed, {});
        event.setCommitString(committed);
        QApplication::sendEvent(&box, &event);
    };
    EXPECT_FALSE(isShown());
    send(u"mm"_s, QString());
    EXPECT_TRUE(isShown());
    send(QString(), QString());
    EXPECT_FALSE(isShown()) << "given up";
    send(u"mm"_s, QString());
    send(QString(), u"k"_s);
    EXPECT_FALSE(isShown()) << "committed";
    send(u"mm"_s, u"l"_s);
    EXPECT_TRUE(isShown()) << "the next one begun";
    QFocusEvent out(QEvent::FocusOut);
    QApplication::sendEvent(&box, &out);
    EXPECT_FALSE(isShown()) << "left behind";
    EXPECT_EQ(box.Text(), u"klab"_s);
}

TEST_F(RichTextKeysTest, AnInputMethodIsAnsweredAboutTheSelection) {
    box.SetText(u"éabcdef"_s);
    Select(2, 3);
    QInputMethodQueryEvent query(Qt::ImAnchorPosition | Qt::ImCursorPosition | Qt::ImCurrentSelection |
                                 Qt::ImTextBeforeCursor | Qt::ImTextAfterCursor | Qt::ImSurroundingText);
    QApplication::sendEvent(&box, &query);
    EXPECT_EQ(query.value(Qt::ImSurroundingText).toString(), box.Text());
    EXPECT_EQ(query.value(Qt::ImAnchorPosition).toInt(), 2);
    EXPECT_EQ(query.value(Qt::ImCursorPosition).toInt(), 5);
    EXPECT_EQ(query.value(Qt::ImCurrentSelection).toString(), u"bcd"_s);
    EXPECT_EQ(query.value(Qt::ImTextBeforeCursor).toString(), u"éabcd"_s);
    EXPECT_EQ(query.value(Qt::ImTextAfterCursor).toString(), u"ef"_s);
    box.SetText(QString(2000, u'x') + QString(2000, u'y'));
    Select(1000, 2000);
    QInputMethodQueryEvent late(Qt::ImCurrentSelection | Qt::ImTextBeforeCursor | Qt::ImAnchorPosition |
                                Qt::ImCursorPosition);
    QApplication::sendEvent(&box, &late);
    EXPECT_LT(late.value(Qt::ImCurrentSelection).toString().size(), 1000) << "never much of a long text";
    EXPECT_EQ(late.value(Qt::ImTextBeforeCursor).toString(),
              QString(late.value(Qt::ImTextBeforeCursor).toString().size(), u'y'));
    EXPECT_LT(late.value(Qt::ImTextBeforeCursor).toString().size(), 1000);
    EXPECT_EQ(late.value(Qt::ImCursorPosition).toInt() - late.value(Qt::ImAnchorPosition).toInt(), 2000)
        << "both count from the same place";
}

/// What the control has no use for goes on to the window around it, and only that.
TEST_F(RichTextKeysTest, KeysOfNoUseGoOnToTheWindow) {
    const struct {
        int key;
        Qt::KeyboardModifiers modifiers;
        QString text;
        bool used;
    } rows[] = {
        {Qt::Key_X, Qt::NoModifier, u"x"_s, true},          {Qt::Key_Return, Qt::NoModifier, u"\r"_s, true},
        {Qt::Key_Left, Qt::NoModifier, QString(), true},    {Qt::Key_B, Qt::ControlModifier, u"\x02"_s, true},
        {Qt::Key_Escape, Qt::NoModifier, u"\x1b"_s, false}, {Qt::Key_F5, Qt::NoModifier, QString(), false},
        {Qt::Key_1, Qt::ControlModifier, u"1"_s, false}};
    for (const auto& row : rows) {
        QKeyEvent press(QEvent::KeyPress, row.key, row.modifiers, row.text);
        press.ignore();
        QApplication::sendEvent(&box, &press);
        EXPECT_EQ(press.isAccepted(), row.used) << row.key;
    }
}

TEST_F(RichTextKeysTest, TypingAndPastingBringTheCaretIntoView) {
    const auto isInView = [&] {
        box.grab();
        return box.viewport()->rect().contains(box.CaretPixel());
    };
    box.SetText(QString(200, u'\n'));
    QApplication::clipboard()->setText(u"p"_s);
    const std::function<void()> rows[] = {[&] { Type("x"); }, [&] { Press(Qt::Key_Return); },
                                          [&] { Press(Qt::Key_V, Qt::ControlModifier); }};
    for (const auto& act : rows) {
        box.SetSelStart(box.TextLength());
        box.ScrollTo(0, 0);
        ASSERT_FALSE(isInView());
        act();
        EXPECT_TRUE(isInView());
    }
}

TEST_F(RichTextKeysTest, AnInputMethodMayReplaceWhatStandsThere) {
    box.SetText(u"teh x"_s);
    box.SetSelStart(3);
    QInputMethodEvent event;
    event.setCommitString(u"the"_s, -3, 3);
    QApplication::sendEvent(&box, &event);
    EXPECT_EQ(box.Text(), u"the x"_s);
    QInputMethodEvent one;
    one.setCommitString(u"é"_s, -1, 1);
    QApplication::sendEvent(&box, &one);
    EXPECT_EQ(box.Text(), u"thé x"_s);
}

TEST_F(RichTextKeysTest, AnInputMethodSeesTheTextAroundTheCaret) {
    box.SetText(u"é"_s + QString(5000, u'x') + u"ab|cd"_s);
    box.SetSelStart(5003);
    QInputMethodQueryEvent query(Qt::ImSurroundingText | Qt::ImCursorPosition | Qt::ImEnabled |
                                 Qt::ImCursorRectangle);
    QApplication::sendEvent(&box, &query);
    const QString around = query.value(Qt::ImSurroundingText).toString();
    const int at = query.value(Qt::ImCursorPosition).toInt();
    EXPECT_LT(around.size(), 1000);
    EXPECT_TRUE(around.left(at).endsWith(u"xab"_s));
    EXPECT_EQ(around.mid(at), u"|cd"_s);
    EXPECT_TRUE(query.value(Qt::ImEnabled).toBool());
    EXPECT_EQ(query.value(Qt::ImCursorRectangle).toRect().topLeft(), box.CaretPixel());
}

// --- off

TEST_F(RichTextKeysTest, OffItTakesNoKeysButKeepsTheFocus) {
    box.SetText(u"abc"_s);
    const bool focus = box.hasFocus();
    Signalled();
    box.SetEnabled(false);
    Type("x");
    Press(Qt::Key_Right);
    Press(Qt::Key_Delete);
    QInputMethodEvent event;
    event.setCommitString(u"y"_s);
    QApplication::sendEvent(&box, &event);
    EXPECT_EQ(box.Text(), u"abc"_s);
    EXPECT_EQ(Keys(), QStringList());
    EXPECT_EQ(Signalled(), QStringList());
    EXPECT_EQ(box.hasFocus(), focus);
    EXPECT_TRUE(box.isEnabled());
    box.SetSelText(u"!"_s);
    EXPECT_EQ(box.Text(), u"!abc"_s) << "the program itself still writes";
    box.SetEnabled(true);
    Type("x");
    EXPECT_EQ(box.Text(), u"!xabc"_s);
}

TEST_F(RichTextKeysTest, TextKeysAreNotTakenByShortcuts) {
    const auto overridden = [&](int key, Qt::KeyboardModifiers modifiers, const QString& text) {
        QKeyEvent event(QEvent::ShortcutOverride, key, modifiers, text);
        event.ignore();
        QApplication::sendEvent(&box, &event);
        return event.isAccepted();
    };
    EXPECT_TRUE(overridden(Qt::Key_A, Qt::NoModifier, u"a"_s));
    EXPECT_TRUE(overridden(Qt::Key_Delete, Qt::NoModifier, QString()));
    EXPECT_TRUE(overridden(Qt::Key_Home, Qt::ShiftModifier, QString()));
    EXPECT_FALSE(overridden(Qt::Key_Z, Qt::ControlModifier, u"\x1a"_s)) << "the Edit menu's";
    EXPECT_FALSE(overridden(Qt::Key_F1, Qt::NoModifier, QString()));
}

} // namespace
