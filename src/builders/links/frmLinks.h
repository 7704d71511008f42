// The Link dialog: an anchor around the selection.
#pragma once

#include "dialogs/CDialog.h"
#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmLinks;
}

class frmLinks final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmLinks(Frame& frame);
    ~frmLinks() override;

  private:
    void cmdOpen_Click();
    void cmdOK_Click() override;

    std::unique_ptr<Ui::frmLinks> ui_;
    CDialog dialog_;
};
