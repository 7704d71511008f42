// A file that could not be read when it was opened: its blank window waits for it.
#pragma once

#include "app/documents/DocumentFiles.h"

#include <chrono>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>

class Document;
class Frame;

/// Lives as a child of the blank window and goes with it. Tries to read the file at growing intervals, up to
/// two seconds, and takes the text into that window when it can be read; names the path in the status bar
/// while its window is the active one. Gives up once the window has a path of its own, or the file was opened
/// in another window.
class AwaitedFile : public QObject {
    Q_OBJECT

  public:
    AwaitedFile(Frame& frame, Document& document, const QString& path);
    ~AwaitedFile() override;

    std::chrono::milliseconds Pause() const { return timer_.intervalAsDuration(); }
    /// The pause before the next try: twice the last one, two seconds at most.
    static std::chrono::milliseconds NextPause(std::chrono::milliseconds last);

  private:
    void TryAgain();
    void TakeIn(FileText file);
    void Announce();

    Frame& frame_;
    Document& document_;
    QPointer<QWidget> frameWindow_; ///< null once the frame is gone: a closed window may go after it
    QString path_;
    QTimer timer_;
};
