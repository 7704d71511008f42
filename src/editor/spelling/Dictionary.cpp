#include "editor/spelling/Dictionary.h"

#include "editor/spelling/DictionaryFiles.h"
#include "editor/spelling/DictionaryText.h"
#include "editor/spelling/WordList.h"

#include <hunspell/hunspell.hxx>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// The memory that the words of a page may take.
constexpr qsizetype mostSeen = 100'000;
/// A longer word would only cost time.
constexpr qsizetype longestToSuggest = 40;

bool WriteNew(const QString& path, const QByteArray& content) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.write(content) == content.size();
}

std::unique_ptr<Hunspell> Engine(const QString& aff, const QString& dic) {
    return std::make_unique<Hunspell>(QFile::encodeName(aff).constData(), QFile::encodeName(dic).constData());
}

/// A word list as an engine takes it: a pair of files, which it has read when it is made.
std::unique_ptr<Hunspell> EngineOf(const QStringList& words) {
    const QTemporaryDir folder;
    const QString aff = folder.filePath(u"list.aff"_s);
    const QString dic = folder.filePath(u"list.dic"_s);
    const QString content = QString::number(words.size()) + u'\n' + words.join(u'\n') + u'\n';
    if (!WriteNew(aff, "SET UTF-8\nTRY esianrtolcdugmphbyfvkwz'ESIANRTOLCDUGMPHBYFVKWZ\nWORDCHARS '\n") ||
        !WriteNew(dic, content.toUtf8()))
        return nullptr;
    return Engine(aff, dic);
}

} // namespace

Dictionary::Dictionary(std::unique_ptr<Hunspell> engine, std::unique_ptr<DictionaryText> text)
    : engine_(std::move(engine)), text_(std::move(text)) {}

Dictionary::~Dictionary() = default;

std::unique_ptr<Dictionary> Dictionary::Load(const DictionaryFiles& files) {
    std::unique_ptr<Hunspell> engine = files.words.isEmpty()
                                           ? Engine(files.aff, files.dic)
                                           : EngineOf(WordList::Read(files.words).value_or(QStringList()));
    if (!engine)
        return nullptr;
    std::unique_ptr<DictionaryText> text = DictionaryText::For(engine->get_dict_encoding());
    if (!text)
        return nullptr;
    return std::unique_ptr<Dictionary>(new Dictionary(std::move(engine), std::move(text)));
}

std::unique_ptr<Dictionary> Dictionary::LoadBest(const QString& standard, const QString& custom) {
    for (const DictionaryFiles& files : FindDictionaries(standard)) {
        std::unique_ptr<Dictionary> dictionary = Load(files);
        if (!dictionary)
            continue;
        for (const QString& word : WordList::Read(custom).value_or(QStringList()))
            dictionary->Add(word);
        return dictionary;
    }
    return nullptr;
}

bool Dictionary::Knows(const QString& word) {
    if (seen_.contains(word))
        return true;
    const std::optional<std::string> bytes = text_->Encoded(word);
    if (!bytes || !engine_->spell(*bytes))
        return false;
    if (seen_.size() >= mostSeen)
        seen_.clear();
    seen_.insert(word);
    return true;
}

QStringList Dictionary::Suggestions(const QString& word) {
    QStringList suggestions;
    if (word.size() > longestToSuggest)
        return suggestions;
    if (const std::optional<std::string> bytes = text_->Encoded(word))
        for (const std::string& suggestion : engine_->suggest(*bytes))
            suggestions << text_->Decoded(suggestion);
    suggestions.removeAll(QString());
    return suggestions;
}

void Dictionary::Add(const QString& word) {
    if (const std::optional<std::string> bytes = text_->Encoded(word))
        engine_->add(*bytes);
}
