// The one road to message boxes, input boxes, the colour dialog and the file dialogs.
#pragma once

#include "platform/desktop/FileRequest.h"
#include "platform/desktop/ProgramTitle.h"
#include "platform/text/ColorNumber.h"

#include <optional>
#include <QByteArray>
#include <QString>

class QWidget;

enum class MsgIcon { None, Critical, Question, Exclamation, Information };
/// The first one is what Enter presses, but with YesOrNoByDefault it is No, and so does Esc.
enum class MsgButtons { OK, OKCancel, YesNo, YesNoCancel, YesOrNoByDefault };
enum class MsgAnswer { OK, Cancel, Yes, No };

/// Tests put in one that follows a script and records what was asked (tests/support/ScriptedPrompts.h).
class Prompts {
  public:
    virtual ~Prompts() = default;
    /// An empty title is an empty window title.
    virtual MsgAnswer MsgBox(QWidget* owner, const QString& text, MsgButtons buttons, MsgIcon icon,
                             const QString& title) = 0;
    /// The text typed, empty on Cancel.
    virtual QString InputBox(QWidget* owner, const QString& prompt, const QString& title,
                             const QString& standard = QString()) = 0;
    /// The system's colour dialog, with no initial colour; nothing on Cancel. The 16 custom colours are
    /// handed in as 64 bytes (four each: red, green, blue, 0) and come back as the user left them when OK was
    /// pressed.
    virtual std::optional<ColorNumber> ChooseColor(QWidget* owner, QByteArray& customColors) = 0;
    virtual FileAnswer OpenFile(QWidget* owner, const FileRequest& request) = 0;
    virtual FileAnswer SaveFile(QWidget* owner, const FileRequest& request) = 0;
    virtual void Beep() = 0;
};
