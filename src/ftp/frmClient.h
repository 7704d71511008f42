// The client's window: what is said and done, how far a file is, and the prompt.
#pragma once

#include "ftp/ClientThread.h"

#include <memory>
#include <QWidget>

namespace Ui {
class frmClient;
}

/// It stays when the script is used up. Closing it ends the session, whatever is under way.
class frmClient final : public QWidget {
    Q_OBJECT

  public:
    explicit frmClient(const Arguments& arguments);
    ~frmClient() override;

    void Start() { thread_.start(); }
    bool AllWentUp() const { return thread_.AllWentUp(); }

  Q_SIGNALS:
    /// The session has ended, and with it the window.
    void Ended();

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Thread_Shown();
    void Thread_Asked(const QString& prompt, Echo echo);
    void Thread_Working();
    void Thread_AskedForTrust(const Certificate& certificate);
    void txtCommand_Return();
    void Append(const QString& text);
    void ShowProgress(const Progress& progress);
    void Recall(int by);

    std::unique_ptr<Ui::frmClient> ui_;
    QStringList entered_; ///< commands, for the arrow keys
    qsizetype recalled_ = 0;
    ClientThread thread_;
};
