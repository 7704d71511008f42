#include "app/window/StandingNotice.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

bool ChangesOthersOnly(const QEvent& key) {
    switch (static_cast<const QKeyEvent&>(key).key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
        return true;
    default:
        return false;
    }
}

} // namespace

void StandingNotice::Begin(const QString& text, Ends ends) {
    text_ = text;
    sparesAClick_ = ends == Ends::SparesAClick;
    sparedAt_ = 0;
    if (!stands_)
        // The application sees an event before anyone else does.
        qApp->installEventFilter(this);
    stands_ = true;
}

void StandingNotice::End() {
    qApp->removeEventFilter(this);
    stands_ = false;
}

bool StandingNotice::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (IsAct(*event)) {
        End();
        Q_EMIT Ended();
    }
    return false;
}

bool StandingNotice::IsAct(const QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress:
    // A key that is a command's comes as nothing else.
    case QEvent::ShortcutOverride:
        return !ChangesOthersOnly(event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return !IsSpared(event);
    default:
        return false;
    }
}

/// The system's window gets a click, and then each of the widgets in it that it is handed on to.
bool StandingNotice::IsSpared(const QEvent& click) {
    const quint64 at = static_cast<const QInputEvent&>(click).timestamp();
    const bool isTheSame = sparedAt_ != 0 && sparedAt_ == at;
    if (std::exchange(sparesAClick_, false))
        sparedAt_ = at;
    else if (!isTheSame)
        return false;
    return true;
}
