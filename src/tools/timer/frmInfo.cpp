#include "tools/timer/frmInfo.h"

#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/values/ReplaceAll.h"
#include "tools/timer/DateLog.h"
#include "ui_frmInfo.h"

#include <QClipboard>
#include <QGuiApplication>

frmInfo::frmInfo(Frame& frame, QWidget* owner)
    : QDialog(owner ? owner : frame.Window()), frame_(frame), ui_(std::make_unique<Ui::frmInfo>()) {
    ui_->setupUi(this);
    connect(ui_->cmdClearData, &QPushButton::clicked, this, &frmInfo::cmdClearData_Click);
    connect(ui_->cmdCopy, &QPushButton::clicked, this, &frmInfo::cmdCopy_Click);
    connect(ui_->cmdSave, &QPushButton::clicked, this, &frmInfo::cmdSave_Click);
    connect(ui_->cmdClose, &QPushButton::clicked, this, &frmInfo::reject);
}

frmInfo::~frmInfo() = default;

void frmInfo::Take(const QString& log) {
    ui_->txtInfo->setPlainText(log);
}

void frmInfo::cmdClearData_Click() {
    ui_->txtInfo->clear();
}

void frmInfo::cmdCopy_Click() {
    QGuiApplication::clipboard()->setText(ui_->txtInfo->toPlainText());
}

void frmInfo::cmdSave_Click() {
    // The box ends its lines in its own way.
    QString& log = frame_.State<WebTimerState>().DateList;
    log = ReplaceAll(ui_->txtInfo->toPlainText(), QStringLiteral("\n"), QStringLiteral("\r\n"));
    frame_.Store().Write(Keys::DateList, log);
}

void frmInfo::reject() {
    frame_.LoadedForms().Unload(*this);
}
