// The last step of the wizard: collects paragraphs.
#pragma once

#include "tools/wizard/Paragraphs.h"

#include <memory>
#include <QDialog>

class Frame;

namespace Ui {
class frmWizard;
}

/// Modal. Finish appends the paragraphs to LastBuiltTag; a form that is closed otherwise adds none.
class frmWizard final : public QDialog {
    Q_OBJECT

  public:
    explicit frmWizard(Frame& frame);
    ~frmWizard() override;

    void reject() override;

  private:
    void cmdNext_Click();
    void cmdFinish_Click();
    void Unload();

    Frame& frame_;
    std::unique_ptr<Ui::frmWizard> ui_;
    Paragraphs paragraphs_;
};
