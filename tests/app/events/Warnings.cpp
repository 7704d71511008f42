#include "app/events/Warnings.h"

#include <algorithm>
#include <QMutex>
#include <QMutexLocker>
#include <QtGlobal>
#include <string_view>
#include <utility>

namespace {

QMutex mutex;
QStringList collected;
QtMessageHandler before = nullptr;

bool IsHarmless(const QString& message) {
    static const char* const known[] = {
        "This plugin does not support",
        "propagateSizeHints",
        // Of a picture that others wrote halves of.
        "JPEG",
    };
    return std::ranges::any_of(known,
                               [&](const char* part) { return message.contains(QString::fromLatin1(part)); });
}

void Collect(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg)
        return before(type, context, message);
    // What a page says in its own console is its own affair.
    const bool isOfAPage = context.category && std::string_view(context.category) == "js";
    if (type == QtDebugMsg || type == QtInfoMsg || isOfAPage || IsHarmless(message))
        return;
    const QMutexLocker lock(&mutex);
    if (!collected.contains(message))
        collected << message;
}

} // namespace

Warnings::Warnings() {
    before = qInstallMessageHandler(Collect);
}

Warnings::~Warnings() {
    qInstallMessageHandler(before);
}

QStringList Warnings::Take() {
    const QMutexLocker lock(&mutex);
    return std::exchange(collected, {});
}
