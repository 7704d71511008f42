// One act of the user on a document of the real frame, and what undo and redo make of it.
#pragma once

#include "app/RealFrame.h"

#include <functional>
#include <QAbstractButton>
#include <vector>

/// What stands in a text control: its text and the colour of each character.
struct Written {
    explicit Written(const RichTextBox& box);
    bool operator==(const Written&) const = default;

    QString text;
    std::vector<ColorNumber> colors;
};

void PrintTo(const Written& written, std::ostream* out);

/// The program with one page open, and every prompt answered.
class ActsTest : public FrameTest {
  protected:
    ActsTest();

    /// Writes a page whose colours no colouring pass would give it. "[" and "]" mark the selection, "|" the
    /// caret.
    void Put(const QString& marked);
    /// The active document's control, which has the focus.
    RichTextBox& Box() { return run.Active().txtInput(); }
    void Run(const QString& command);
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Type(const QString& text);
    /// Presses a button of a form.
    void Press(QWidget& form, const char* button);
    QWidget& Form(const char* name);

    /// Carries an act out. False where it left the text and its colours as they were; else one undo step must
    /// bring back what stood before, and redoing that one what the act had made.
    bool ChangesInOneStep(const std::function<void()>& act);
    void ExpectOneStep(const char* name, const std::function<void()>& act);

    /// Closes every document, unsaved, and every dialog.
    void CloseAll();

    ProgramRun run;
    /// A file on the disk, for the commands that ask for one.
    QString file;

  private:
    void Answer();
    /// Takes the dialogs away that an act brought up.
    void CloseForms();
};
