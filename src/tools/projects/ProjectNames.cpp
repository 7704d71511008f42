#include "tools/projects/ProjectNames.h"

#include "platform/store/Settings.h"

QStringList ProjectNames(const Settings& store) {
    QStringList names;
    for (int n = 0; n < MaxProjects; ++n) {
        const QString name = store.Read(Keys::ProjFile(n));
        if (name.isEmpty())
            break;
        names << name;
    }
    return names;
}

QStringList ProjectNamesPastGaps(const Settings& store) {
    QStringList names;
    for (int n = 0; n < MaxProjects; ++n) {
        const QString name = store.Read(Keys::ProjFile(n));
        if (!name.isEmpty())
            names << name;
    }
    return names;
}

void StoreProjectNames(Settings& store, const QStringList& names) {
    for (int n = 0; n < MaxProjects; ++n)
        store.Write(Keys::ProjFile(n), names.value(n));
}
