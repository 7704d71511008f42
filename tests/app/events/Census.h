// What a process has: objects, windows among them, and open files.
#pragma once

#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

/// Knows every object of this thread from its construction to its end. Only one lives at a time.
class LivingObjects {
  public:
    LivingObjects();
    ~LivingObjects();
    LivingObjects(const LivingObjects&) = delete;
    LivingObjects& operator=(const LivingObjects&) = delete;

    /// In the order in which they came.
    static QList<QObject*> All();
    /// All of a type.
    template <typename T> static QList<T*> Of() {
        QList<T*> found;
        for (QObject* object : All())
            if (auto* one = qobject_cast<T*>(object))
                found << one;
        return found;
    }
};

/// How many there are of each kind: "object QLabel", "open /a/b", …
using Census = QMap<QString, int>;

/// Of the program's objects by class, and of its open files by path.
Census TakeCensus();

/// What there is more of, as "kind: before -> now".
QStringList Grown(const Census& before, const Census& now);
