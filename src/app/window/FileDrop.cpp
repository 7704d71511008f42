#include "app/window/FileDrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

void FileDrop::Watch(QWidget& widget) {
    widget.setAcceptDrops(true);
    widget.installEventFilter(this);
}

QStringList FileDrop::Paths(const QMimeData& data) {
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls)
        if (url.isLocalFile())
            paths << url.toLocalFile();
    return paths;
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (!active_ || (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop))
        return QObject::eventFilter(watched, event);
    auto* drop = static_cast<QDropEvent*>(event);
    const QStringList paths = Paths(*drop->mimeData());
    if (paths.isEmpty())
        return QObject::eventFilter(watched, event);
    // The files stay where they are, whatever the other side offers.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (type == QEvent::Drop)
        QMetaObject::invokeMethod(
            this, [this, paths] { Q_EMIT Dropped(paths); }, Qt::QueuedConnection);
    return true;
}
