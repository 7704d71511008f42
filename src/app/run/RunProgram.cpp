#include "app/run/RunProgram.h"
#include "app/documents/Arrivals.h"

#include "app/documents/frmTemplate.h"
#include "app/recovery/OfferCopies.h"
#include "app/run/frmSplash.h"
#include "app/run/SingleInstance.h"
#include "app/run/Startup.h"
#include "app/window/frmTarnwick.h"
#include "dialogs/Icons.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QSessionManager>
#include <QThread>
#include <QWindow>

namespace {

constexpr int longestWaitMilliseconds = 100;

/// The documents whose text changed, the active one first as when the frame is closed.
QList<QPointer<frmTemplate>> ModifiedDocuments(frmTarnwick& frame) {
    QList<QPointer<frmTemplate>> modified;
    for (QMdiSubWindow* window : frame.Area().subWindowList(QMdiArea::ActivationHistoryOrder))
        if (auto* document = qobject_cast<frmTemplate*>(window); document && document->Modified())
            modified.prepend(document);
    return modified;
}

/// Saves, and no more: another program may stop the session's end, and then this one is still needed. It is
/// closed when the session tells it to go. A session that lets no one ask has its questions asked then.
void AskAtSessionEnd(frmTarnwick& frame, QSessionManager& session) {
    const bool quiet = !QApplication::activeModalWidget() && ModifiedDocuments(frame).isEmpty();
    if (quiet || !session.allowsInteraction())
        return;
    // Who has said to be done with asking would have to ask for leave once more, only to say Cancel.
    if (SaveAtSessionEnd(frame))
        session.release();
    else
        session.cancel();
}

/// From before the frame's load on: the first run waits in it for a dialog, and
/// a later copy may come by meanwhile.
void ConnectFrame(frmTarnwick& frame, SingleInstance& instance, bool& stopped) {
    // Not a polite request, which any window that is left could refuse.
    QObject::connect(&frame, &frmTarnwick::Stopped, qApp, [&stopped] {
        stopped = true;
        QCoreApplication::exit();
    });
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &frame,
                     [&frame](QSessionManager& session) { AskAtSessionEnd(frame, session); });
    QObject::connect(&instance, &SingleInstance::Arrived, &frame, [&frame](const QString& commandLine) {
        if (frame.isVisible())
            frame.ComeToFront();
        if (!commandLine.isEmpty())
            frame.FromOutside().Open({commandLine});
    });
}

/// The load lets no event through, so a start screen that is not painted before it begins is a hole in the
/// desktop. A desktop that takes its time is not waited for; and what later copies send waits for the frame.
void WaitUntilPainted(const QWidget& splash) {
    const QDeadlineTimer patience(longestWaitMilliseconds);
    while (!splash.windowHandle()->isExposed() && !patience.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::ExcludeSocketNotifiers);
        QThread::msleep(1);
    }
}

/// The start screen is only looked at: it must not take the focus, which the
/// document needs when the frame is up.
void ShowStartScreen(frmTarnwick& frame) {
    auto& splash = frame.LoadedForms().Load<frmSplash>(frame);
    splash.setAttribute(Qt::WA_ShowWithoutActivating);
    splash.setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    splash.show();
    WaitUntilPainted(splash);
}

/// What was unloaded before the event loop runs, the start screen above all,
/// would otherwise stay until it ends: hidden, and yet a window to every screen
/// reader.
void DeleteWhatIsUnloaded() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Once the frame is on the screen.
void OfferCopiesSoon(frmTarnwick& frame) {
    QMetaObject::invokeMethod(
        &frame, [&frame] { OfferCopies(frame, frame.Copies()); }, Qt::QueuedConnection);
}

} // namespace

int RunProgram(frmTarnwick& frame, SingleInstance& instance, const QString& commandLine) {
    bool stopped = false;
    ConnectFrame(frame, instance, stopped);
    if (instance.IsFirst()) {
        QApplication::setWindowIcon(ProgramIcon());
        ShowStartScreen(frame);
    }
    if (!Startup(frame, commandLine, [&] { return !instance.IsFirst(); }).Run()) {
        instance.HandOver(commandLine);
        return 0;
    }
    if (stopped)
        return 0;
    frame.show();
    frame.FromOutside().Open({});
    OfferCopiesSoon(frame);
    DeleteWhatIsUnloaded();
    return stopped ? 0 : QApplication::exec();
}

bool SaveAtSessionEnd(frmTarnwick& frame) {
    if (QApplication::activeModalWidget())
        return false;
    for (const QPointer<frmTemplate>& document : ModifiedDocuments(frame))
        if (document && !document->SaveAtSessionEnd())
            return false;
    return true;
}
