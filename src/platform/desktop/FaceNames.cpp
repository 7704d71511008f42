#include "platform/desktop/FaceNames.h"

#include <algorithm>
#include <QFontDatabase>
#ifdef TARNWICK_FONTCONFIG
#include <fontconfig/fontconfig.h>
#include <memory>
#endif

namespace {

/// What pages and settings have always named, installed or not.
const QStringList& WellKnownNames() {
    static const QStringList names = {
        QStringLiteral("Arial"),   QStringLiteral("Arial Narrow"),    QStringLiteral("Calibri"),
        QStringLiteral("Cambria"), QStringLiteral("Courier"),         QStringLiteral("Courier New"),
        QStringLiteral("Georgia"), QStringLiteral("Helvetica"),       QStringLiteral("Palatino"),
        QStringLiteral("Times"),   QStringLiteral("Times New Roman"), QStringLiteral("Verdana"),
    };
    return names;
}

QStringList Installed() {
    QStringList families = QFontDatabase::families();
    families.removeIf([](const QString& family) { return QFontDatabase::isPrivateFamily(family); });
    return SortedFaceNames(families);
}

/// The families by which the system would show one, the best first, itself included.
QStringList Substitutes(const QString& family) {
    QStringList names;
#ifdef TARNWICK_FONTCONFIG
    const std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)> pattern(FcPatternCreate(),
                                                                          FcPatternDestroy);
    const QByteArray utf8 = family.toUtf8();
    FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(utf8.constData()));
    FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
    FcChar8* name = nullptr;
    for (int n = 0; FcPatternGetString(pattern.get(), FC_FAMILY, n, &name) == FcResultMatch; ++n)
        names << QString::fromUtf8(reinterpret_cast<const char*>(name));
#else
    names << family;
#endif
    return names;
}

bool HasStandIn(const QString& family, const QStringList& installed) {
    if (family.isEmpty())
        return false;
    // Behind a name that it knows nothing of, the system puts the families for whatever is unknown.
    const QStringList unknown = Substitutes(QStringLiteral("no such family"));
    for (const QString& name : Substitutes(family)) {
        if (unknown.size() > 1 && name == unknown[1])
            return false;
        if (installed.contains(name, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

} // namespace

QStringList FaceNames(const QString& inUse) {
    const QStringList installed = Installed();
    QStringList names = installed;
    for (const QString& name : WellKnownNames() + QStringList{inUse})
        if (HasStandIn(name, installed))
            names << name;
    return SortedFaceNames(names);
}

bool HasStandIn(const QString& family) {
    return HasStandIn(family, Installed());
}

QStringList SortedFaceNames(const QStringList& families) {
    QStringList names;
    names.reserve(families.size());
    for (const QString& family : families) {
        const qsizetype maker = family.lastIndexOf(QStringLiteral(" ["));
        names << (maker > 0 && family.endsWith(u']') ? family.left(maker) : family);
    }
    std::ranges::sort(names, [](const QString& a, const QString& b) {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a < b;
    });
    names.removeDuplicates();
    return names;
}
