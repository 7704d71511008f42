// The prompts that a person sees: the desktop's own dialogs.
#pragma once

#include "platform/desktop/Asker.h"
#include "platform/desktop/Prompts.h"

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

  private:
    LastAsker lastAsker_;
};
