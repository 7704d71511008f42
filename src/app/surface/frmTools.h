// The dialog that edits a user button: its title and its two tags.
#pragma once

#include "app/surface/UserButton.h"

#include <memory>
#include <QDialog>

class Frame;

namespace Ui {
class frmTools;
}

/// Modal. OK hands the button back as the user left it.
class frmTools final : public QDialog {
    Q_OBJECT

  public:
    frmTools(Frame& frame, const UserButton& button);
    ~frmTools() override;

    void reject() override;

  Q_SIGNALS:
    /// OK was pressed.
    void Edited(const UserButton& button);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void cmdOK_Click();
    void cmdCancel_Click();
    void Unload();

    std::unique_ptr<Ui::frmTools> ui_;
    Frame& frame_;
};
