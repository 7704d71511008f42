// The Font dialog.
#pragma once

#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmFont;
}

class frmFont final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmFont(Frame& frame);
    ~frmFont() override;

  private:
    void cmdShowColor_Click();
    /// Adds the selected name to the face field. Enter on the list does it as well.
    void List1_DblClick();
    void cmdOK_Click() override;

    std::unique_ptr<Ui::frmFont> ui_;
};
