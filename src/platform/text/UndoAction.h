// Several steps on a text that are one act of the user: undo takes them back together.
#pragma once

#include <QPointer>
#include <Qsci/qsciscintillabase.h>

/// All changes of a text control from its construction to its destruction are one undo step. Guards within
/// guards are one step too. Nothing may wait for the user meanwhile, and none of the changes may be an undo.
class UndoAction {
  public:
    explicit UndoAction(QsciScintillaBase& control) : control_(&control) {
        control.SendScintilla(QsciScintillaBase::SCI_BEGINUNDOACTION);
    }
    /// A control that has gone meanwhile took its steps with it.
    ~UndoAction() {
        if (control_)
            control_->SendScintilla(QsciScintillaBase::SCI_ENDUNDOACTION);
    }
    UndoAction(const UndoAction&) = delete;
    UndoAction& operator=(const UndoAction&) = delete;

  private:
    QPointer<QsciScintillaBase> control_;
};
