// The Embed dialog.
#pragma once

#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmEmbed;
}

struct EmbedFields;

/// OK is enabled while there is a source.
class frmEmbed final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmEmbed(Frame& frame);
    ~frmEmbed() override;

    /// Puts a tag's fields into the form, empty ones too.
    void Take(const EmbedFields& fields);

  private:
    void txtURL_Change();
    void cmdGetFle_Click();
    void cmdOK_Click() override;

    std::unique_ptr<Ui::frmEmbed> ui_;
};
