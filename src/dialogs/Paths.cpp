#include "dialogs/Paths.h"

#include "platform/values/Path.h"

#include <algorithm>
#include <QDir>

namespace {

/// How many characters of a path's front are its root, drive or not: all that stands there is taken for one.
qsizetype RootOf(QChar separator) {
    return separator == u'/' ? 1 : 3;
}

/// False for a path that no disk of this computer holds: with a drive where there are none, or without a
/// root.
bool IsOnDisk(const QString& path) {
    return QDir::separator() == u'\\' || path.startsWith(u'/');
}

QString NameOnThisDisk(const QString& folder, const QString& name) {
    return Path::FindName(folder, name);
}

/// Takes the root away; false, and the path stays, where it has none.
bool DropRoot(QString& path, QChar separator) {
    const bool rooted = separator == u'/' ? path.startsWith(u'/') : path.size() >= RootOf(separator);
    if (rooted)
        path.remove(0, RootOf(separator));
    return rooted;
}

/// A path's next component with its separator; empty where no separator is left.
QStringView Component(const QString& path, qsizetype from, QChar separator) {
    const qsizetype end = path.indexOf(separator, from);
    return end < 0 ? QStringView() : QStringView(path).mid(from, end + 1 - from);
}

/// The folders from a place on. A separator at the very front of the rest is not counted.
int CountFolders(const QString& path, qsizetype from, QChar separator) {
    const QStringView rest = QStringView(path).mid(std::min(from + 1, path.size()));
    return static_cast<int>(rest.count(separator));
}

RelativeResult Relate(QString document, QString target, QChar documentSeparator, QChar targetSeparator) {
    RelativeResult result;
    const bool targetFailed = !DropRoot(target, targetSeparator);
    const bool documentFailed = !DropRoot(document, documentSeparator);
    result.failed = targetFailed || documentFailed;

    qsizetype shared = 0; // equal front of the two: as long in one as in the other
    int up = 0;
    for (;;) {
        const QStringView a = Component(target, shared, targetSeparator);
        const QStringView b = Component(document, shared, documentSeparator);
        if (a != b) {
            up = CountFolders(document, shared, documentSeparator);
            break;
        }
        if (a.isEmpty())
            break;
        shared += a.size();
    }
    result.path = (QStringLiteral("..") + targetSeparator).repeated(up) + target.mid(shared);
    return result;
}

} // namespace

QString ExactCasePath(const QString& path) {
    return IsOnDisk(path) ? ExactCasePath(path, NameOnThisDisk) : path;
}

QString ExactCasePath(const QString& path, const NameLookUp& lookUp) {
    const QChar separator = Path::Separator(path);
    if (separator == u'/' && !path.startsWith(u'/'))
        return path;
    const qsizetype root = RootOf(separator);
    QString result = path.left(root).toUpper();
    result.reserve(path.size());
    bool missing = false; // below a folder that is not there nothing is
    const auto append = [&](const QString& name) {
        if (missing || name.isEmpty())
            return;
        const QString exact = lookUp(result, name);
        missing = exact.isEmpty();
        result += exact;
    };
    qsizetype from = root;
    for (qsizetype end; (end = path.indexOf(separator, from)) >= 0; from = end + 1) {
        append(path.mid(from, end - from));
        result += separator;
    }
    append(path.mid(from));
    return result;
}

RelativeResult RelativePath(const QString& documentPath, const QString& targetPath,
                            const NameLookUp& lookUp) {
    const QString document = documentPath.isEmpty() ? documentPath : ExactCasePath(documentPath, lookUp);
    return Relate(document, ExactCasePath(targetPath, lookUp), Path::Separator(documentPath),
                  Path::Separator(targetPath));
}

RelativeResult RelativePath(const QString& documentPath, const QString& targetPath) {
    return Relate(ExactCasePath(documentPath), ExactCasePath(targetPath), Path::Separator(documentPath),
                  Path::Separator(targetPath));
}

void ReplaceChar(QString& text, QChar findChar, QChar newChar) {
    if (findChar != newChar)
        text.replace(findChar, newChar);
}
