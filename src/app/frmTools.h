// The dialog that edits a user button: its title and its two tags.
#pragma once

#include <memory>
#include <QDialog>

class Frame;
class UserButtons;

namespace Ui {
class frmTools;
}

/// Modal. Edits the button that the strip's Tag names; the store is written when the program stops.
class frmTools final : public QDialog {
    Q_OBJECT

  public:
    frmTools(Frame& frame, UserButtons& strip);
    ~frmTools() override;

    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Form_Load();
    void cmdOK_Click();
    void cmdCancel_Click();
    void Unload();

    std::unique_ptr<Ui::frmTools> ui_;
    Frame& frame_;
    UserButtons& strip_;
    int button_ = 0;
};
