// The upload window: which files go where, and the start of the client that takes them there.
#pragma once

#include "dialogs/CDialog.h"

#include <memory>
#include <QDialog>

class Frame;
class RecentTexts;

namespace Ui {
class frmFTP;
}

class frmFTP final : public QDialog {
    Q_OBJECT

  public:
    explicit frmFTP(Frame& frame);
    ~frmFTP() override;

    void reject() override;

  private:
    void Form_Load();
    void Form_Unload();
    void Combo1_Click();
    void cmdGetFle_Click();
    void cmdSend_Click();
    void lstFiles_DblClick();
    void AddFile(const QString& line);
    QStringList Files() const;

    std::unique_ptr<Ui::frmFTP> ui_;
    Frame& frame_;
    CDialog dialog_;
    RecentTexts* servers_;
    RecentTexts* folders_;
    RecentTexts* users_;
};
