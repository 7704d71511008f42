// What happens around the program: windows, clipboard, drops, time, and files that others change.
#include "app/events/Census.h"
#include "app/events/Stage.h"
#include "app/events/Targets.h"

#include "app/run/RunProgram.h"
#include "platform/text/RichTextBox.h"
#include "support/DarkPalette.h"

#include <algorithm>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace {

constexpr int longPause = 200; // milliseconds: what waits less comes by itself

bool CloseWindow(Stage& stage) {
    QWidget* window = Targets::InFront();
    if (!window) {
        QList<QWidget*> windows = Targets::Windows();
        for (QMdiSubWindow* document : stage.frame.Area().subWindowList())
            windows << document;
        // Closing the frame is dear: each time the program starts anew.
        if (!stage.dice.OneIn(20))
            windows.removeAll(&stage.frame);
        if (windows.isEmpty())
            return false;
        window = stage.dice.From(windows);
    }
    stage.log.Note(QStringLiteral("close ") + Targets::NameOf(*window));
    window->close();
    return true;
}

bool ChangeState(Stage& stage) {
    QList<QWidget*> windows = {&stage.frame};
    for (QMdiSubWindow* document : stage.frame.Area().subWindowList())
        windows << document;
    QWidget& window = *stage.dice.From(windows);
    const int which = stage.dice.Below(3);
    stage.log.Note(QStringLiteral("state %1 of %2").arg(which).arg(Targets::NameOf(window)));
    if (which == 0)
        window.showMinimized();
    else if (which == 1)
        window.showMaximized();
    else
        window.showNormal();
    return true;
}

bool Resize(Stage& stage) {
    QWidget* window = Targets::AnyWindow(stage.dice);
    if (!window || window->windowType() == Qt::Popup)
        return false;
    const QSize size(stage.dice.Between(1, 1400), stage.dice.Between(1, 1000));
    stage.log.Note(QStringLiteral("size %1x%2 of %3")
                       .arg(size.width())
                       .arg(size.height())
                       .arg(Targets::NameOf(*window)));
    window->resize(size);
    return true;
}

bool Activate(Stage& stage) {
    QList<QWidget*> windows = Targets::Windows();
    // The start screen is only looked at.
    windows.removeIf(
        [](const QWidget* window) { return window->windowFlags() & Qt::WindowDoesNotAcceptFocus; });
    if (windows.isEmpty())
        return false;
    QWidget& window = *stage.dice.From(windows);
    stage.log.Note(QStringLiteral("activate ") + Targets::NameOf(window));
    window.activateWindow();
    return true;
}

bool FillClipboard(Stage& stage) {
    const int which = stage.dice.Below(6);
    stage.log.Note(QStringLiteral("clipboard %1").arg(which));
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (which == 0)
        clipboard.clear();
    else if (which == 1)
        clipboard.setImage(QImage(20, 20, QImage::Format_RGB32));
    else if (which == 2)
        clipboard.setText(QStringLiteral("<tr><td>many</td></tr>\n").repeated(stage.dice.Between(1, 2000)));
    else if (which == 3) {
        auto data = std::make_unique<QMimeData>();
        data->setUrls({QUrl::fromLocalFile(stage.ground.AnyFile(stage.dice))});
        clipboard.setMimeData(data.release());
    } else
        clipboard.setText(AnyText(stage.dice, !Targets::InFront()));
    return true;
}

bool Drop(Stage& stage) {
    QWidget* target = Targets::AnyControl(stage.dice, [](QWidget& widget) { return widget.acceptDrops(); });
    if (!target || Targets::InFront())
        return false;
    QMimeData data;
    const bool files = stage.dice.OneIn(2);
    if (files)
        data.setUrls({QUrl::fromLocalFile(stage.ground.AnyFile(stage.dice)),
                      QUrl::fromLocalFile(stage.ground.AnyFile(stage.dice))});
    else
        data.setText(AnyText(stage.dice));
    stage.log.Note(
        QStringLiteral("drop %1 on %2")
            .arg(files ? QStringLiteral("files") : QStringLiteral("text"), Targets::NameOf(*target)));
    stage.hand.Drop(*target, Targets::PlaceIn(*target, stage.dice), data);
    return true;
}

/// Something that waits for its time has waited long enough.
bool TimePasses(Stage& stage) {
    QList<QTimer*> timers = LivingObjects::Of<QTimer>();
    timers.removeIf([](const QTimer* timer) { return !timer->isActive() || timer->interval() < longPause; });
    if (timers.isEmpty())
        return false;
    QTimer& timer = *stage.dice.From(timers);
    stage.log.Note(QStringLiteral("time passes: %1 %2 ms").arg(timer.objectName()).arg(timer.interval()));
    QCoreApplication::postEvent(&timer, new QTimerEvent(timer.timerId()));
    return true;
}

bool FileChanges(Stage& stage) {
    const QString path = stage.ground.AnyFile(stage.dice);
    const int which = stage.dice.Below(5);
    stage.log.Note(QStringLiteral("file change %1 of %2").arg(which).arg(path));
    if (which == 0)
        return QFile::remove(path) || true;
    if (which == 1) {
        QFile::remove(path);
        QDir().mkpath(path);
        return true;
    }
    QFile file(path);
    if (file.open(which == 2 ? QIODevice::Append : QIODevice::WriteOnly))
        file.write(which == 3 ? QByteArray() : "<p>changed by others " + AnyText(stage.dice).toUtf8());
    return true;
}

bool ChangeDesktop(Stage& stage) {
    const bool dark = stage.dice.OneIn(2);
    stage.log.Note(dark ? QStringLiteral("dark desktop") : QStringLiteral("light desktop"));
    QApplication::setPalette(dark ? DarkPalette() : QPalette());
    return true;
}

bool EndSession(Stage& stage) {
    if (!stage.dice.OneIn(4))
        return false;
    stage.log.Note(QStringLiteral("session ends"));
    SaveAtSessionEnd(stage.frame);
    return true;
}

bool LeaveProgram(Stage& stage) {
    stage.log.Note(QStringLiteral("another program has the keys"));
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(nullptr);
    QT_WARNING_POP
    return true;
}

constexpr Act acts[] = {
    {CloseWindow, 3, 4, 1},   {ChangeState, 2, 0, 0}, {Resize, 2, 1, 0},       {Activate, 3, 1, 0},
    {FillClipboard, 2, 1, 0}, {Drop, 2, 0, 0},        {TimePasses, 5, 3, 3},   {FileChanges, 1, 1, 0},
    {ChangeDesktop, 1, 0, 0}, {EndSession, 1, 0, 0},  {LeaveProgram, 1, 1, 1},
};

} // namespace

std::span<const Act> DesktopActs() {
    return acts;
}
