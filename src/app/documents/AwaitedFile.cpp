#include "app/documents/AwaitedFile.h"

#include "app/documents/TakeInText.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"

#include <algorithm>
#include <QApplication>

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds firstPause = 100ms;
constexpr std::chrono::milliseconds longestPause = 2000ms;

/// A question or a menu is up, which the user answers for the document that is active now.
bool UserIsBusy() {
    return QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

} // namespace

AwaitedFile::AwaitedFile(Frame& frame, Document& document, const QString& path)
    : QObject(&document.Window()), frame_(frame), document_(document), frameWindow_(frame.Window()),
      path_(path) {
    timer_.setSingleShot(true);
    timer_.setInterval(firstPause);
    connect(&timer_, &QTimer::timeout, this, &AwaitedFile::TryAgain);
    timer_.start();
    Announce();
}

AwaitedFile::~AwaitedFile() {
    if (!frameWindow_)
        return;
    // Posted, so that it comes to nothing where the window goes because the frame itself does.
    QMetaObject::invokeMethod(
        frameWindow_.data(), [&frame = frame_] { frame.SetStatusPanel(QString()); }, Qt::QueuedConnection);
}

std::chrono::milliseconds AwaitedFile::NextPause(std::chrono::milliseconds last) {
    return std::min(last * 2, longestPause);
}

void AwaitedFile::TryAgain() {
    if (!frameWindow_ || document_.Window().isHidden() || !document_.Caption().isEmpty() ||
        frame_.LoadedForms().FindByCaption(path_)) {
        deleteLater();
        return;
    }
    if (!UserIsBusy()) {
        std::optional<FileText> file = DocumentFiles::ReadUpToEndOfText(frame_.Store(), path_);
        if (file) {
            TakeIn(std::move(*file));
            return;
        }
        if (frame_.ActiveForm() == &document_)
            Announce();
    }
    timer_.setInterval(NextPause(timer_.intervalAsDuration()));
    timer_.start();
}

void AwaitedFile::TakeIn(FileText file) {
    Document* before = frame_.ActiveForm();
    const QPointer<QWidget> focus = QApplication::focusWidget();
    // What the user typed into the waiting window is in no file yet.
    const bool modified = document_.Modified();
    frame_.ActivateDocument(document_);
    TakeInText(frame_, path_, std::move(file));
    if (modified)
        document_.SetModified(true);
    if (before && before != &document_) {
        frame_.ActivateDocument(*before);
        if (focus)
            focus->setFocus();
    }
    deleteLater();
}

void AwaitedFile::Announce() {
    frame_.SetStatusPanel(QStringLiteral("Waiting for ") + path_);
}
