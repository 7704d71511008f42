// Random document and target paths, in both forms, over a file system that knows some names and not others.
#include "builders/Paths.h"
#include "platform/Cp1252.h"

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
    Demand(result.path.size() <= target.size() + 3 + 3 * document.size());
    // From a document that lies in the root there is no way up.
    if (document == u"/a.htm")
        Demand(!result.path.startsWith(u"../") || target.startsWith(u"/../") || !target.startsWith(u'/'));

    QString slashes = target;
    ReplaceChar(slashes, u'\\', u'/');
    Demand(slashes.size() == target.size() && !slashes.contains(u'\\'));
    return 0;
}
