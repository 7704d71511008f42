// A test frame whose document has a typing engine, and a person at its keyboard.
#pragma once

#include "editor/autofill/AutoFillList.h"
#include "editor/color/ColorStream.h"
#include "editor/frame/EditorOptions.h"
#include "editor/typing/TypingEngine.h"
#include "editor/typing/UserButtonTexts.h"
#include "support/TestFrame.h"

#include <Qt>

class frmDropDown;
class QListWidget;

/// Keys go as events to whatever has the focus of the real controls. The document is marked as changed by the
/// engine alone.
class TypingFrame : public TestFrame {
  public:
    TypingFrame();

    /// Presses and releases a key for each character; "\r" is Enter, "\b" Backspace.
    void Type(const QString& characters);
    void Type(const char* latin1) { Type(QString::fromLatin1(latin1)); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// The pause after a blank passes: the document's timer fires. Fails the test if it isn't running.
    void Pause();
    bool PausePending() const { return active->Timer1.isActive(); }

    AutoFillList& Flags() { return State<AutoFillList>(); }
    ColorStream& Stream() { return State<ColorStream>(); }
    UserButtonTexts& Buttons() { return State<UserButtonTexts>(); }
    AutoFill& Lists() { return engine->Lists(); }
    /// The auto-fill list, loaded or null.
    frmDropDown* List();
    bool ListShown();
    QListWidget* ListView1();
    /// The texts of the list's rows.
    QStringList Rows();
    QString SelectedRow();

    TypingEngine* engine;

  private:
    void Send(int key, const QString& text, Qt::KeyboardModifiers modifiers);
};
