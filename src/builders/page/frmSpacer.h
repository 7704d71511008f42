// The Spacer dialog: white space of a given size.
#pragma once

#include "builders/page/ColumnTags.h"
#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmSpacer;
}

class frmSpacer final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmSpacer(Frame& frame);
    ~frmSpacer() override;

  private:
    void optHorz_Click();
    void optVert_Click();
    void optBlock_Click();
    void cmdOK_Click() override;
    SpacerKind Kind() const;
    /// A block has a width, a height and an alignment; the two other kinds have a size.
    void EnableFields(bool block);

    std::unique_ptr<Ui::frmSpacer> ui_;
};
