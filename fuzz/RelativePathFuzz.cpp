// Random document and target paths, in both forms, over a file system that knows some names and not others.
#include "dialogs/Paths.h"
#include "platform/values/Cp1252.h"
#include "platform/values/Path.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

/// Names whose first character is a digit are not there; all others are known in lower case.
QString LookUp(const QString&, const QString& name) {
    return name.front().isDigit() ? QString() : name.toLower();
}

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

void DropRoot(QString& path, QChar separator) {
    if (separator == u'\\' && path.size() >= 3)
        path.remove(0, 3);
    else if (separator == u'/' && path.startsWith(u'/'))
        path.remove(0, 1);
}

/// The comparison step by step: what two paths share goes from the front of both, and each folder that is
/// left of the document is one step up.
QString PlainRelation(const QString& documentPath, const QString& targetPath) {
    const QChar documentSeparator = Path::Separator(documentPath);
    const QChar separator = Path::Separator(targetPath);
    QString document = ExactCasePath(documentPath, LookUp);
    QString target = ExactCasePath(targetPath, LookUp);
    DropRoot(document, documentSeparator);
    DropRoot(target, separator);
    QString up;
    for (bool more = true; more;) {
        more = target.contains(separator);
        const QString a = target.left(target.indexOf(separator) + 1);
        const QString b = document.left(document.indexOf(documentSeparator) + 1);
        if (a == b) {
            target.remove(0, a.size());
            document.remove(0, b.size());
            continue;
        }
        // The first character is not looked at: a separator there is no folder.
        for (qsizetype p = 0; (p = document.indexOf(documentSeparator, p + 1)) > 0;)
            up += QStringLiteral("..") + separator;
        break;
    }
    return up + target;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString text =
        Cp1252::FromBytes({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
    const qsizetype cut = text.indexOf(u'\n');
    const QString document = text.left(cut < 0 ? 0 : cut);
    const QString target = text.mid(cut + 1);

    // A root may grow in upper case (a sharp s); nothing else makes a path longer.
    Demand(ExactCasePath(target, LookUp).size() <= target.size() + 3);
    const RelativeResult result = RelativePath(document, target, LookUp);
    Demand(result.path == PlainRelation(document, target));
    // From a document that lies in the root there is no way up.
    if (document == u"/a.htm")
        Demand(!result.path.startsWith(u"../") || target.startsWith(u"/../") || !target.startsWith(u'/'));

    QString slashes = target;
    ReplaceChar(slashes, u'\\', u'/');
    Demand(slashes.size() == target.size() && !slashes.contains(u'\\'));
    return 0;
}
