#include "ftp/frmClient.h"

#include "ftp/Client.h"
#include "ui_frmClient.h"

#include <algorithm>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScrollBar>

frmClient::frmClient(const Arguments& arguments)
    : ui_(std::make_unique<Ui::frmClient>()), thread_(arguments) {
    ui_->setupUi(this);
    const QString server = arguments.server.Text();
    setWindowTitle(server.isEmpty() ? QStringLiteral("FTP") : server + QStringLiteral(" - FTP"));
    ui_->txtTranscript->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    ui_->txtCommand->setFont(ui_->txtTranscript->font());
    ui_->lblPrompt->setFont(ui_->txtTranscript->font());
    ui_->txtCommand->installEventFilter(this);
    connect(ui_->txtCommand, &QLineEdit::returnPressed, this, &frmClient::txtCommand_Return);
    connect(ui_->cmdStop, &QPushButton::clicked, &thread_, [this] { thread_.Stop(); });
    connect(&thread_, &ClientThread::Shown, this, &frmClient::Thread_Shown);
    connect(&thread_, &ClientThread::Asked, this, &frmClient::Thread_Asked);
    connect(&thread_, &ClientThread::Working, this, &frmClient::Thread_Working);
    connect(&thread_, &ClientThread::AskedForTrust, this, &frmClient::Thread_AskedForTrust);
    connect(&thread_, &QThread::finished, this, [this] {
        hide();
        Q_EMIT Ended();
    });
    ui_->txtCommand->setFocus();
    Thread_Working();
}

frmClient::~frmClient() = default;

/// The window goes at once; the thread ends in its own time.
void frmClient::closeEvent(QCloseEvent* event) {
    event->accept();
    thread_.Close();
    if (!thread_.isRunning())
        Q_EMIT Ended();
}

void frmClient::Thread_Shown() {
    const ScreenText::Taken taken = thread_.TakeText();
    if (!taken.text.isEmpty())
        Append(taken.text);
    ShowProgress(taken.progress);
}

/// The end stays in sight unless the person has scrolled away from it; what is selected stays so.
void frmClient::Append(const QString& text) {
    QScrollBar* bar = ui_->txtTranscript->verticalScrollBar();
    const bool atEnd = bar->value() == bar->maximum();
    QTextCursor end(ui_->txtTranscript->document());
    end.movePosition(QTextCursor::End);
    end.insertText(text);
    if (atEnd)
        bar->setValue(bar->maximum());
}

void frmClient::ShowProgress(const Progress& progress) {
    constexpr int whole = 1000;
    const bool known = progress.total > 0;
    ui_->lblFile->setText(progress.file);
    // A file that grows meanwhile is not more than done; one of unknown length only moves.
    ui_->ProgressBar1->setRange(0, progress.file.isEmpty() || known ? whole : 0);
    ui_->ProgressBar1->setValue(
        known ? static_cast<int>(std::min(progress.done, progress.total) * whole / progress.total) : 0);
}

void frmClient::Thread_Asked(const QString& prompt, Echo echo) {
    ui_->lblPrompt->setText(prompt);
    ui_->txtCommand->setAccessibleName(prompt == Client::Prompt ? QStringLiteral("Command") : prompt);
    ui_->txtCommand->setEchoMode(echo == Echo::Shown ? QLineEdit::Normal : QLineEdit::Password);
    if (ui_->cmdStop->hasFocus())
        ui_->txtCommand->setFocus();
    ui_->cmdStop->setEnabled(false);
}

void frmClient::Thread_Working() {
    ui_->lblPrompt->setText(Client::Prompt);
    ui_->txtCommand->setEchoMode(QLineEdit::Normal);
    ui_->cmdStop->setEnabled(true);
}

void frmClient::Thread_AskedForTrust(const Certificate& certificate) {
    auto* box = new QMessageBox(QMessageBox::Warning, windowTitle(),
                                QStringLiteral("The server's certificate does not check out. Anyone could "
                                               "have made it.\n\nTrust this server all the same?"),
                                QMessageBox::Yes | QMessageBox::No, this);
    box->setObjectName(QStringLiteral("CertificateBox"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(certificate.lines.join(u'\n'));
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setDefaultButton(QMessageBox::No);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QDialog::finished, this, [this, box] {
        thread_.Answer(box->result() == QMessageBox::Yes);
        ui_->txtCommand->setFocus();
    });
    box->open();
}

void frmClient::txtCommand_Return() {
    const QString line = ui_->txtCommand->text();
    const bool isCommand = ui_->txtCommand->echoMode() == QLineEdit::Normal;
    if (isCommand && !line.isEmpty() && (entered_.isEmpty() || entered_.last() != line))
        entered_ << line;
    recalled_ = entered_.size();
    ui_->txtCommand->clear();
    thread_.Enter(line);
}

void frmClient::Recall(int by) {
    recalled_ = std::clamp<qsizetype>(recalled_ + by, 0, entered_.size());
    ui_->txtCommand->setText(entered_.value(recalled_));
}

bool frmClient::eventFilter(QObject* watched, QEvent* event) {
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (key != Qt::Key_Up && key != Qt::Key_Down)
        return QWidget::eventFilter(watched, event);
    if (ui_->txtCommand->echoMode() == QLineEdit::Normal)
        Recall(key == Qt::Key_Up ? -1 : 1);
    return true;
}
