// The Body dialog: writes the document's body tag anew, from the colours that it found there.
#pragma once

#include "dialogs/TagDialog.h"

#include <memory>

class QLineEdit;

namespace Ui {
class frmBody;
}

class frmBody final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmBody(Frame& frame);
    ~frmBody() override;

  private:
    void ReadColors();
    /// Asks for a colour: 0 background, 1 text, 2 link, 3 visited link, 4 active link. Any other does
    /// nothing. A cancelled colour dialog gives black.
    Q_INVOKABLE void cmdShowColor_Click(int index);
    void Command1_Click();
    void txtBackground_Change();
    void cmdOK_Click() override;
    QLineEdit* ColorField(int index) const;
    void ShowSample(int index, const QColor& color);

    std::unique_ptr<Ui::frmBody> ui_;
};
