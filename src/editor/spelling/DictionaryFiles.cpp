#include "editor/spelling/DictionaryFiles.h"

#include "editor/spelling/WordList.h"
#include "platform/store/WholeFile.h"

#include <QByteArray>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QString WithoutSuffix(const QString& path) {
    for (const QString& suffix : {u".dic"_s, u".aff"_s})
        if (path.endsWith(suffix, Qt::CaseInsensitive))
            return path.chopped(suffix.size());
    return path;
}

std::optional<QByteArray> ReadText(const QString& path) {
    std::optional<QByteArray> bytes = WholeFile::Read(path);
    return bytes && !bytes->contains('\0') ? bytes : std::nullopt;
}

bool BeginsWithCount(QByteArrayView words) {
    if (words.startsWith("\xef\xbb\xbf"))
        words = words.sliced(3);
    const qsizetype line = words.indexOf('\n');
    bool ok = false;
    return line > 0 && words.first(line).trimmed().toLongLong(&ok) > 0 && ok;
}

std::optional<DictionaryFiles> Pair(const QString& base) {
    const DictionaryFiles files{base + u".aff"_s, base + u".dic"_s, {}};
    const std::optional<QByteArray> words = ReadText(files.dic);
    if (!words || !BeginsWithCount(*words) || !ReadText(files.aff))
        return std::nullopt;
    return files;
}

} // namespace

std::vector<DictionaryFiles> FindDictionaries(const QString& standard) {
    std::vector<DictionaryFiles> found;
    if (const auto named = Pair(WithoutSuffix(standard)))
        found.push_back(*named);
    if (const auto words = WordList::Read(standard);
        words && !words->isEmpty() && !standard.endsWith(u".aff"_s, Qt::CaseInsensitive))
        found.push_back({{}, {}, standard});
    for (const QString& folder : {u"hunspell"_s, u"myspell/dicts"_s, u"myspell"_s})
        for (const QString& words :
             QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, folder + u"/en_US.dic"_s))
            if (const auto pair = Pair(WithoutSuffix(words)))
                found.push_back(*pair);
    return found;
}
