// The client at work, beside the window that shows it.
#pragma once

#include "ftp/Arguments.h"
#include "ftp/Cancel.h"
#include "ftp/Certificate.h"
#include "ftp/Screen.h"
#include "ftp/ScreenText.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <QThread>

/// Works off the script and then what is entered, one after the other. What it asks, the window's thread
/// answers; nothing that the server does keeps Close from ending it.
class ClientThread final : public QThread, private Screen {
    Q_OBJECT

  public:
    explicit ClientThread(const Arguments& arguments, QObject* parent = nullptr);
    ~ClientThread() override;

    /// A line typed: a command, or the answer to the question that is open.
    void Enter(const QString& line);
    /// The answer about a certificate.
    void Answer(bool trusts);
    /// Ends what is under way.
    void Stop() { cancel_.Stop(); }
    void Close();
    ScreenText::Taken TakeText() { return text_.Take(); }
    /// Once it has finished.
    bool AllWentUp() const { return allWentUp_; }

  Q_SIGNALS:
    /// There is text to take.
    void Shown();
    /// A line is waited for: a command where the prompt is the client's own.
    void Asked(const QString& prompt, Echo echo);
    /// What was entered is being worked at; Asked ends it.
    void Working();
    void AskedForTrust(const Certificate& certificate);

  protected:
    void run() override;

  private:
    void Line(const QString& text) override;
    void Mark() override;
    void Show(const Progress& progress) override;
    bool Trusts(const Certificate& certificate) override;
    QString Ask(const QString& prompt, Echo echo) override;

    std::optional<QString> NextLine();

    Arguments arguments_;
    Cancel cancel_;
    ScreenText text_;
    std::mutex mutex_;
    std::condition_variable entered_;
    std::deque<QString> lines_;
    std::optional<bool> trusts_;
    std::atomic<bool> allWentUp_ = false;
};
