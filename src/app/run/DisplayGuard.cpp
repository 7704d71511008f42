#include "app/run/DisplayGuard.h"

#include <cstdio>
#include <cstdlib>
#include <QList>
#include <QString>

namespace {

struct Said {
    QtMsgType type;
    QString text;
};

// A message handler is a plain function, so what it keeps has to lie here.
QList<Said>* kept = nullptr;

void KeepOrEnd(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg) {
        std::fputs("The Tarnwick needs a display, and none could be opened.\n", stderr);
        // Nothing stands yet that would have to be taken down, and much that can't be.
        std::_Exit(EXIT_FAILURE);
    }
    kept->push_back({type, text});
}

} // namespace

DisplayGuard::DisplayGuard() {
    kept = new QList<Said>;
    qInstallMessageHandler(KeepOrEnd);
}

DisplayGuard::~DisplayGuard() {
    qInstallMessageHandler(nullptr);
    for (const Said& said : std::as_const(*kept))
        qt_message_output(said.type, QMessageLogContext(), said.text);
    delete std::exchange(kept, nullptr);
}
