// The prompts that a person sees: the desktop's own dialogs.
#pragma once

#include "platform/desktop/Asker.h"
#include "platform/desktop/Prompts.h"

#include <functional>

class QFileDialog;

/// A box belongs to the window that asked, a dialog where it was one, and gives the keys back to it.
class DesktopPrompts final : public Prompts {
  public:
    MsgAnswer MsgBox(QWidget* owner, const QString& text, MsgButtons buttons, MsgIcon icon,
                     const QString& title) override;
    QString InputBox(QWidget* owner, const QString& prompt, const QString& title,
                     const QString& standard) override;
    std::optional<ColorNumber> ChooseColor(QWidget* owner, QByteArray& customColors) override;
    FileAnswer OpenFile(QWidget* owner, const FileRequest& request) override;
    FileAnswer SaveFile(QWidget* owner, const FileRequest& request) override;
    void Beep() override;

    /// The folders that file dialogs offer besides those of the desktop. None where it is not set.
    std::function<QStringList()> folders;
    /// Whether boxes are as wide as what they hold and as their titles. They are not where it is not set.
    std::function<bool()> wide;

  private:
    bool Wide() const { return wide && wide(); }
    FileAnswer Run(QFileDialog& dialog, const FileRequest& request);

    LastAsker lastAsker_;
};
