// The Find / Replace / Multi-file dialog: three tabs that work on the active document or on files.
#pragma once

#include "dialogs/CDialog.h"
#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmFindReplace;
}

/// Loaded at the tab that FindState names; a form that is up keeps the tab it shows. Its three positions
/// count from 0 and live as long as it is loaded.
class frmFindReplace final : public TagDialog {
    Q_OBJECT

  public:
    /// The toolbar shows the form as a window of its own, which no other keeps in front of itself.
    enum class Owner { Frame, None };

    explicit frmFindReplace(Frame& frame, Owner owner = Owner::Frame);
    ~frmFindReplace() override;

  private:
    void Form_Load();
    void TabStrip1_Click();
    void cmdOK_Click() override;
    void cmdSelected_Click();
    void cmdGetFle_Click();

    void FindOnly();
    void ReplaceOnly();
    void ReplaceAll();
    void FindGlobal();
    bool ReplaceInTheSelection();
    void TellNoMore();

    std::unique_ptr<Ui::frmFindReplace> ui_;
    CDialog dialog_;
    qint32 findPosition_ = 0;
    qint32 replacePosition_ = 0;
};
