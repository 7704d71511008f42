#include "tools/projects/frmProject.h"

#include "dialogs/FileDialogs.h"
#include "dialogs/FormFields.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/Settings.h"
#include "platform/values/Values.h"
#include "tools/projects/ListRows.h"
#include "tools/projects/ProjectFile.h"
#include "tools/projects/ProjectNames.h"
#include "ui_frmProject.h"

#include <QFile>

frmProject::frmProject(Frame& frame)
    : QDialog(frame.Window()), ui_(std::make_unique<Ui::frmProject>()), frame_(frame), dialog_(frame) {
    ui_->setupUi(this);
    for (QListWidget* list : {ui_->List1, ui_->List2})
        SelectFirstByKeys(*list);
    HidePadding(*ui_->List2);
    ui_->Command1_0->setDefault(true);
    ShowExitIcon(ui_->Command1_6);
    connect(ui_->List1, &QListWidget::itemSelectionChanged, this, &frmProject::List1_Click);
    // A click on the selected line reads its file anew.
    connect(ui_->List1, &QListWidget::itemClicked, this, &frmProject::List1_Click);
    connect(ui_->List1, &QListWidget::itemDoubleClicked, this, [this] { Command1_Click(3); });
    const auto buttons = Command1();
    for (std::size_t index = 0; index < buttons.size(); ++index)
        connect(buttons[index], &QPushButton::clicked, this,
                [this, index] { Command1_Click(static_cast<int>(index)); });
    // The program's end unloads forms too, without asking them.
    connect(&frame.LoadedForms(), &Forms::Unloading, this, [this](const QWidget* form) {
        if (form == this)
            Form_QueryUnload();
    });
    Form_Load();
}

frmProject::~frmProject() = default;

void frmProject::reject() {
    frame_.LoadedForms().Unload(*this);
}

std::array<QPushButton*, 7> frmProject::Command1() const {
    return {ui_->Command1_0, ui_->Command1_1, ui_->Command1_2, ui_->Command1_3,
            ui_->Command1_4, ui_->Command1_5, ui_->Command1_6};
}

void frmProject::Form_Load() {
    const QStringList names = ProjectNames(frame_.Store());
    ui_->List1->addItems(names);
    if (names.size() == MaxProjects)
        ui_->List1->setCurrentRow(0);
}

void frmProject::Form_QueryUnload() {
    StoreProjectNames(frame_.Store(), Lines(*ui_->List1));
}

QString frmProject::SelectedName() const {
    const int row = SelectedRow(*ui_->List1);
    return row < 0 ? QString() : ui_->List1->item(row)->text();
}

QString frmProject::SelectedPath() const {
    return ProjectPath(SelectedName());
}

void frmProject::List1_Click() {
    if (SelectedRow(*ui_->List1) >= 0) {
        const auto buttons = Command1();
        for (std::size_t index = 0; index <= 5; ++index)
            buttons[index]->setEnabled(true);
    }
    ui_->List2->clear();
    ui_->List2->addItems(LoadProjectFile(SelectedPath()));
}

void frmProject::Command1_Click(int index) {
    switch (index) {
    case 0:
        return OpenProject();
    case 1:
        return NewProject();
    case 2:
        return SaveProject();
    case 3:
        return DeleteProject();
    case 4:
        return AddFile();
    case 5:
        return DeleteFile();
    default:
        return reject();
    }
}

void frmProject::OpenProject() {
    SaveProject();
    const QStringList lines = Lines(*ui_->List2);
    for (const QString& line : lines)
        frame_.OpenDocumentFile(Values::Trim(line));
}

void frmProject::NewProject() {
    SaveProject();
    if (ui_->List1->count() >= MaxProjects) {
        frame_.Ask().MsgBox(this, tr("There can be no more than %1 projects.").arg(MaxProjects),
                            MsgButtons::OK, MsgIcon::Exclamation, ProgramTitle);
        return;
    }
    const QString name =
        frame_.Ask().InputBox(this, QStringLiteral("Project Name"), QStringLiteral("New Project"));
    if (name.isEmpty())
        return;
    ui_->List1->addItem(name);
    ui_->List1->setCurrentRow(ui_->List1->count() - 1);
}

void frmProject::SaveProject() {
    SaveProjectFile(SelectedPath(), Lines(*ui_->List2));
}

void frmProject::DeleteProject() {
    if (frame_.Ask().MsgBox(this, QStringLiteral("Are you sure you want to delete this project?"),
                            MsgButtons::YesNo, MsgIcon::None, QString()) != MsgAnswer::Yes)
        return;
    if (!SelectedName().isEmpty())
        QFile::remove(SelectedPath());
    const int row = SelectedRow(*ui_->List1);
    if (row < 0)
        return;
    ui_->List2->clear();
    RemoveRow(*ui_->List1, row);
}

void frmProject::AddFile() {
    dialog_.SetMultiSelect(CDialog::Explorer);
    dialog_.SetFilter(FileFilter::Document);
    if (dialog_.ShowOpen(this)) {
        // What is behind the most records would never be saved.
        for (int n = 1; n <= dialog_.SelectedFileCount() && ui_->List2->count() < MaxProjectRecords; ++n)
            ui_->List2->addItem(dialog_.SelectedFile(n));
    } else if (dialog_.ErrorCode() != 0) {
        frame_.Ask().MsgBox(this, QStringLiteral("Error %1 occurred").arg(dialog_.ErrorCode()),
                            MsgButtons::OK, MsgIcon::None, ProgramTitle);
    }
    SaveProject();
}

void frmProject::DeleteFile() {
    if (const int row = SelectedRow(*ui_->List2); row >= 0)
        RemoveRow(*ui_->List2, row);
    SaveProject();
}
