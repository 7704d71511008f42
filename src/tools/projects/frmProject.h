// The Projects dialog: the user's projects by name, and the files of the selected one.
#pragma once

#include "dialogs/CDialog.h"

#include <array>
#include <memory>
#include <QDialog>

class Frame;
class QPushButton;

namespace Ui {
class frmProject;
}

/// A project has a file from the moment it is selected; its name reaches the settings when the form is
/// unloaded. No failure of a file is told.
class frmProject final : public QDialog {
    Q_OBJECT

  public:
    explicit frmProject(Frame& frame);
    ~frmProject() override;

    void reject() override;

  private:
    void Form_Load();
    void Form_QueryUnload();
    void List1_Click();
    void Command1_Click(int index);

    void OpenProject();
    void NewProject();
    void SaveProject();
    void DeleteProject();
    void AddFile();
    void DeleteFile();

    std::array<QPushButton*, 7> Command1() const;
    /// Both empty with no project selected.
    QString SelectedName() const;
    QString SelectedPath() const;

    std::unique_ptr<Ui::frmProject> ui_;
    Frame& frame_;
    CDialog dialog_;
};
