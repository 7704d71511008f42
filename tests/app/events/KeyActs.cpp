// What a user does with the keys.
#include "app/events/Stage.h"
#include "app/events/Targets.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QKeySequence>

namespace {

constexpr int longestTyped = 100;

/// Typed into a file dialog, a path could lead out of the playground.
bool PicksFiles() {
    const QWidget* front = QApplication::activeModalWidget();
    return front && !front->inherits("QMessageBox") && !front->inherits("QInputDialog") &&
           (front->inherits("QFileDialog") || front->inherits("QAbstractPrintDialog"));
}

bool Press(Stage& stage, int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    stage.log.Note(QStringLiteral("key ") +
                   QKeySequence(static_cast<int>(modifiers) | key).toString(QKeySequence::PortableText));
    stage.hand.Key(key, modifiers, text);
    return true;
}

bool TypeText(Stage& stage) {
    const QString text = AnyText(stage.dice, !PicksFiles());
    stage.log.Note(QStringLiteral("type ") + text.left(80).toHtmlEscaped().simplified());
    if (text.size() <= longestTyped) {
        stage.hand.Type(text);
        return true;
    }
    // Nobody types as much in one go.
    QGuiApplication::clipboard()->setText(text);
    stage.hand.Key(Qt::Key_V, Qt::ControlModifier, QStringLiteral("\x16"));
    return true;
}

bool EditKey(Stage& stage) {
    struct Row {
        int key;
        const char* text;
    };
    static const Row keys[] = {
        {Qt::Key_Left, ""},        {Qt::Key_Right, ""},   {Qt::Key_Up, ""},       {Qt::Key_Down, ""},
        {Qt::Key_Home, ""},        {Qt::Key_End, ""},     {Qt::Key_PageUp, ""},   {Qt::Key_PageDown, ""},
        {Qt::Key_Backspace, "\b"}, {Qt::Key_Delete, ""},  {Qt::Key_Return, "\r"}, {Qt::Key_Enter, "\r"},
        {Qt::Key_Tab, "\t"},       {Qt::Key_Backtab, ""}, {Qt::Key_Escape, ""},   {Qt::Key_Space, " "},
        {Qt::Key_Insert, ""},      {Qt::Key_Down, ""},    {Qt::Key_Up, ""},       {Qt::Key_Return, "\r"},
    };
    const Row& row = stage.dice.From(keys);
    Qt::KeyboardModifiers modifiers;
    if (stage.dice.OneIn(3))
        modifiers =
            stage.dice.Of<Qt::KeyboardModifiers>({Qt::ShiftModifier, Qt::ControlModifier,
                                                  Qt::ControlModifier | Qt::ShiftModifier, Qt::AltModifier});
    return Press(stage, row.key, modifiers, QString::fromLatin1(row.text));
}

bool Shortcut(Stage& stage) {
    const int key = stage.dice.Between(Qt::Key_A, Qt::Key_Z);
    return Press(stage, key,
                 stage.dice.OneIn(5) ? Qt::ControlModifier | Qt::ShiftModifier
                                     : Qt::KeyboardModifiers(Qt::ControlModifier),
                 QChar(key - Qt::Key_A + 1));
}

bool Mnemonic(Stage& stage) {
    const int key = stage.dice.Between(Qt::Key_A, Qt::Key_Z);
    return Press(stage, key, Qt::AltModifier, QChar(key).toLower());
}

bool FunctionKey(Stage& stage) {
    return Press(stage, stage.dice.Between(Qt::Key_F1, Qt::Key_F12),
                 stage.dice.Of<Qt::KeyboardModifiers>({{}, {}, Qt::ShiftModifier, Qt::ControlModifier}));
}

bool UndoOrRedo(Stage& stage) {
    const bool undo = stage.dice.Percent(65);
    return Press(stage, undo ? Qt::Key_Z : Qt::Key_Y, Qt::ControlModifier,
                 undo ? QStringLiteral("\x1a") : QStringLiteral("\x19"));
}

bool OddKey(Stage& stage) {
    return Press(stage, stage.dice.Of<int>({Qt::Key_Alt, Qt::Key_Menu, Qt::Key_Control, Qt::Key_CapsLock,
                                            Qt::Key_Clear, Qt::Key_unknown, Qt::Key_Cancel, Qt::Key_Copy,
                                            Qt::Key_Paste, Qt::Key_Help}));
}

constexpr Act acts[] = {
    {TypeText, 20, 14, 3},  {EditKey, 20, 14, 30}, {Shortcut, 6, 3, 2}, {Mnemonic, 5, 5, 4},
    {FunctionKey, 2, 2, 1}, {UndoOrRedo, 6, 1, 1}, {OddKey, 1, 1, 1},
};

} // namespace

std::span<const Act> KeyActs() {
    return acts;
}
