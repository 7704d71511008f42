#include "app/events/Census.h"

#include <algorithm>
#include <mutex>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>
#include <QVector>
#include <QWidget>

// The library's own place for tools that follow its objects.
extern quintptr Q_CORE_EXPORT qtHookData[];

namespace {

constexpr int hookAdd = 3;
constexpr int hookRemove = 4;

std::recursive_mutex mutex;
QHash<QObject*, quint64>* living = nullptr;
quint64 born = 0;
Qt::HANDLE thread = nullptr;

void Add(QObject* object) {
    if (QThread::currentThreadId() != thread)
        return;
    const std::scoped_lock lock(mutex);
    if (living)
        living->insert(object, ++born);
}

void Remove(QObject* object) {
    const std::scoped_lock lock(mutex);
    if (living)
        living->remove(object);
}

void CountObjects(Census& census) {
    for (QObject* object : LivingObjects::All())
        ++census[QStringLiteral("object ") + QString::fromLatin1(object->metaObject()->className())];
}

/// What the system numbers anew each time counts by its kind.
QString WithoutNumbers(QString path) {
    static const QRegularExpression number(QStringLiteral(":\\[?\\d+\\]?$|\\d+"));
    return path.startsWith(u'/') ? path : path.remove(number);
}

void CountOpenFiles(Census& census) {
    const QString mine = QStringLiteral("/proc/self/fd");
    for (const QString& number :
         QDir(mine).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        const QString path = QFile::symLinkTarget(mine + u'/' + number);
        // Neither the one that this very look has open, nor what the system's libraries keep.
        if (!path.isEmpty() && !path.startsWith(QStringLiteral("/proc/")) &&
            !path.startsWith(QStringLiteral("/usr/")))
            ++census[QStringLiteral("open ") + WithoutNumbers(path)];
    }
}

} // namespace

LivingObjects::LivingObjects() {
    const std::scoped_lock lock(mutex);
    living = new QHash<QObject*, quint64>;
    thread = QThread::currentThreadId();
    qtHookData[hookAdd] = reinterpret_cast<quintptr>(&Add);
    qtHookData[hookRemove] = reinterpret_cast<quintptr>(&Remove);
}

LivingObjects::~LivingObjects() {
    const std::scoped_lock lock(mutex);
    qtHookData[hookAdd] = qtHookData[hookRemove] = 0;
    delete living;
    living = nullptr;
}

QList<QObject*> LivingObjects::All() {
    const std::scoped_lock lock(mutex);
    QList<QObject*> all;
    if (!living)
        return all;
    all = living->keys();
    std::ranges::sort(all, {}, [](QObject* object) { return living->value(object); });
    all.removeIf([](QObject* object) { return object->thread() != QThread::currentThread(); });
    return all;
}

Census TakeCensus() {
    Census census;
    CountObjects(census);
    CountOpenFiles(census);
    return census;
}

QStringList Grown(const Census& before, const Census& now) {
    QStringList grown;
    for (auto kind = now.begin(); kind != now.end(); ++kind)
        if (const int was = before.value(kind.key()); kind.value() > was)
            grown << QStringLiteral("%1: %2 -> %3").arg(kind.key()).arg(was).arg(kind.value());
    return grown;
}
