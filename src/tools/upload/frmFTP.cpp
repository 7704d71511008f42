#include "tools/upload/frmFTP.h"

#include "dialogs/FormFields.h"
#include "dialogs/ListKeys.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/Settings.h"
#include "tools/projects/ProjectFile.h"
#include "tools/projects/ProjectNames.h"
#include "tools/upload/RecentTexts.h"
#include "tools/upload/UploadClient.h"
#include "tools/upload/UploadScript.h"
#include "ui_frmFTP.h"

frmFTP::frmFTP(Frame& frame)
    : QDialog(frame.Window()), ui_(std::make_unique<Ui::frmFTP>()), frame_(frame), dialog_(frame) {
    ui_->setupUi(this);
    servers_ = new RecentTexts(*ui_->txtServer, Keys::Server);
    folders_ = new RecentTexts(*ui_->txtDir, Keys::Dir);
    users_ = new RecentTexts(*ui_->txtUserName, Keys::UserName);
    for (QComboBox* combo : findChildren<QComboBox*>())
        NamePartsOf(*combo);
    ShowBrowseIcon(ui_->cmdGetFle);
    connect(ui_->Combo1, &QComboBox::activated, this, &frmFTP::Combo1_Click);
    connect(ui_->cmdGetFle, &QPushButton::clicked, this, &frmFTP::cmdGetFle_Click);
    connect(ui_->cmdSend, &QPushButton::clicked, this, &frmFTP::cmdSend_Click);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmFTP::reject);
    connect(ui_->lstFiles, &QListWidget::itemDoubleClicked, this, &frmFTP::lstFiles_DblClick);
    OnListKeys(ui_->lstFiles, {Qt::Key_Delete}, [this] { lstFiles_DblClick(); });
    // However the form goes, its settings are kept.
    connect(&frame.LoadedForms(), &Forms::Unloading, this, [this](const QWidget* form) {
        if (form == this)
            Form_Unload();
    });
    Form_Load();
}

frmFTP::~frmFTP() = default;

void frmFTP::Form_Load() {
    const Settings& store = frame_.Store();
    if (const Document* document = frame_.ActiveForm())
        AddFile(document->Caption());
    servers_->Load(store);
    folders_->Load(store);
    users_->Load(store);
    ui_->chkPass->setChecked(store.ReadFlag(Keys::chkPass));
    if (ui_->chkPass->isChecked())
        SetWholeText(ui_->txtPassword, store.Read(Keys::Password));
    const QStringList projects = ProjectNames(store);
    ui_->Combo1->addItems(projects);
    // The empty line empties the list again. Where the settings are full there is none.
    if (projects.size() < MaxProjects)
        ui_->Combo1->addItem(QString());
    ui_->Combo1->setCurrentIndex(-1);
}

void frmFTP::Form_Unload() {
    Settings& store = frame_.Store();
    servers_->Save(store);
    folders_->Save(store);
    users_->Save(store);
    store.WriteFlag(Keys::chkPass, ui_->chkPass->isChecked());
    // A password that is not to be saved stays stored as it was.
    if (ui_->chkPass->isChecked())
        store.Write(Keys::Password, ui_->txtPassword->text());
}

/// The line stays as it is, but its padding needs no room.
void frmFTP::AddFile(const QString& line) {
    auto* item = new QListWidgetItem(line, ui_->lstFiles);
    const QFontMetrics metrics = ui_->lstFiles->fontMetrics();
    const int margin = metrics.averageCharWidth() * 2;
    item->setSizeHint({metrics.horizontalAdvance(line.trimmed()) + margin, metrics.height() + 2});
    item->setData(Qt::AccessibleTextRole, line.trimmed());
}

QStringList frmFTP::Files() const {
    QStringList lines;
    for (int i = 0; i < ui_->lstFiles->count(); ++i)
        lines << ui_->lstFiles->item(i)->text();
    return lines;
}

void frmFTP::Combo1_Click() {
    ui_->lstFiles->clear();
    for (const QString& line : LoadProjectFile(ProjectPath(ui_->Combo1->currentText())))
        AddFile(line);
}

void frmFTP::cmdGetFle_Click() {
    dialog_.SetMultiSelect(CDialog::Multiple);
    if (dialog_.ShowOpen(this)) {
        for (int n = 1; n <= dialog_.SelectedFileCount(); ++n)
            AddFile(dialog_.SelectedFile(n));
    } else if (dialog_.ErrorCode() != 0) {
        frame_.Ask().MsgBox(this, QStringLiteral("Error %1 occurred").arg(dialog_.ErrorCode()),
                            MsgButtons::OK, MsgIcon::None, ProgramTitle);
    }
}

void frmFTP::lstFiles_DblClick() {
    delete ui_->lstFiles->takeItem(ui_->lstFiles->currentRow());
}

void frmFTP::cmdSend_Click() {
    const QByteArray script = UploadScript({.user = ui_->txtUserName->currentText(),
                                            .password = ui_->txtPassword->text(),
                                            .folder = ui_->txtDir->currentText(),
                                            .ascii = ui_->optASCII->isChecked(),
                                            .files = Files()});
    const UploadError error = StartUpload(UploadClientProgram(), script, ui_->txtServer->currentText());
    if (error != UploadError::None)
        frame_.Ask().MsgBox(this, QStringLiteral("Error - %1").arg(static_cast<int>(error)), MsgButtons::OK,
                            MsgIcon::Critical, ProgramTitle);
}

void frmFTP::reject() {
    frame_.LoadedForms().Unload(*this);
}
