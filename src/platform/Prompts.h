// The one road to message boxes, input boxes, the colour dialog and the file dialogs.
#pragma once

#include "platform/ProgramTitle.h"
#include "platform/RichTextBox.h"

#include <functional>
#include <optional>
#include <QByteArray>
#include <QString>
#include <QStringList>

class QWidget;

enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgButtons { OK, OKCancel, YesNo, YesNoCancel };
enum class MsgAnswer { OK, Cancel, Yes, No };

struct FileRequest {
    QString filter;           ///< "Name|pattern;pattern|Name|pattern|"; empty shows all files
    int filterIndex = 1;      ///< 1-based, the filter selected at first
    QString folder;           ///< where the dialog opens; empty leaves it to the desktop
    QString fileName;         ///< what stands in the name field
    QString defaultExtension; ///< added to a name without one when saving, without the dot
    bool multiSelect = false;
    bool mustExist = false;
    /// A panel shown at the file list's right side, 200 by 200 pixels; null for none. The dialog borrows it
    /// for as long as it is up and gives it back to the parent it had.
    QWidget* panel = nullptr;
    /// Told the full path each time another file is selected in the list.
    std::function<void(const QString&)> selectionChanged;
};

struct FileAnswer {
    QString folder;    ///< ends in a separator; empty when cancelled
    QStringList names; ///< in it, or below it where several folders were typed; empty when cancelled
    bool Cancelled() const { return names.isEmpty(); }
};

/// Tests put in one that follows a script and records what was asked (tests/support/ScriptedPrompts.h).
class Prompts {
  public:
    virtual ~Prompts() = default;
    /// An empty title is an empty window title.
    virtual MsgAnswer MsgBox(QWidget* owner, const QString& text, MsgButtons buttons, MsgIcon icon,
                             const QString& title) = 0;
    /// The text typed, empty on Cancel. Characters from outside code page 1252 come as decimal references.
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
