// The log of the web timer, to read and to edit.
#pragma once

#include <memory>
#include <QDialog>

class Frame;

namespace Ui {
class frmInfo;
}

/// What is changed in it takes effect with Save alone.
class frmInfo final : public QDialog {
    Q_OBJECT

  public:
    /// The owner is the timer; the frame's window where none is given.
    explicit frmInfo(Frame& frame, QWidget* owner = nullptr);
    ~frmInfo() override;

    /// Shows a log in place of what stands there.
    void Take(const QString& log);
    void reject() override;

  private:
    void cmdClearData_Click();
    void cmdCopy_Click();
    void cmdSave_Click();

    Frame& frame_;
    std::unique_ptr<Ui::frmInfo> ui_;
};
