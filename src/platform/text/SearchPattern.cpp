#include "platform/text/SearchPattern.h"

#include <algorithm>
#include <QHash>

namespace {

QByteArray BytesOf(char32_t character) {
    return QStringView(QChar::fromUcs4(character)).toUtf8();
}

/// All letters that have a case, by the form that they have in common. Made at the first search that needs
/// it; no letter with a case lies behind the second plane.
const QHash<char32_t, std::vector<char32_t>>& SameButForCase() {
    static const auto table = [] {
        QHash<char32_t, std::vector<char32_t>> same;
        constexpr char32_t end = 0x20000;
        for (char32_t character = 0; character < end; ++character) {
            const char32_t folded = QChar::toCaseFolded(character);
            if (folded != character)
                same[folded].push_back(character);
        }
        return same;
    }();
    return table;
}

/// The character itself comes first.
std::vector<char32_t> FormsOf(char32_t character, bool matchCase) {
    std::vector<char32_t> forms{character};
    if (matchCase)
        return forms;
    const char32_t folded = QChar::toCaseFolded(character);
    const auto others = SameButForCase().value(folded);
    forms.push_back(folded);
    forms.insert(forms.end(), others.begin(), others.end());
    std::sort(forms.begin() + 1, forms.end());
    forms.erase(std::unique(forms.begin() + 1, forms.end()), forms.end());
    const auto again = std::find(forms.begin() + 1, forms.end(), character);
    if (again != forms.end())
        forms.erase(again);
    return forms;
}

} // namespace

SearchPattern::SearchPattern(const QString& text, bool matchCase) {
    bool plain = true;
    for (const char32_t character : text.toUcs4()) {
        Forms forms;
        for (const char32_t form : FormsOf(character, matchCase))
            forms.push_back(BytesOf(form));
        const auto [least, most] = std::minmax_element(
            forms.begin(), forms.end(), [](const auto& a, const auto& b) { return a.size() < b.size(); });
        shortest_ += static_cast<int>(least->size());
        longest_ += static_cast<int>(most->size());
        plain = plain && forms.size() == 1;
        only_ += forms.front();
        characters_.push_back(std::move(forms));
    }
    if (!plain)
        only_.clear();
    for (const QByteArray& form : characters_.front())
        starts_[static_cast<unsigned char>(form[0])] = true;
}

std::optional<SearchPattern::Match> SearchPattern::FirstIn(QByteArrayView bytes, qsizetype from) const {
    if (!only_.isEmpty()) {
        const qsizetype found = bytes.indexOf(only_, from);
        return found < 0 ? std::nullopt : std::optional(Match{found, only_.size()});
    }
    for (qsizetype i = from; i + shortest_ <= bytes.size(); ++i) {
        if (!starts_[static_cast<unsigned char>(bytes[i])])
            continue;
        if (const qsizetype length = LengthAt(bytes.sliced(i)); length >= 0)
            return Match{i, length};
    }
    return std::nullopt;
}

qsizetype SearchPattern::LengthAt(QByteArrayView bytes) const {
    qsizetype at = 0;
    for (const Forms& forms : characters_) {
        const QByteArrayView rest = bytes.sliced(at);
        const auto form = std::find_if(forms.begin(), forms.end(), [rest](const QByteArray& one) {
            return one[0] == (rest.isEmpty() ? '\0' : rest[0]) && rest.startsWith(one);
        });
        if (form == forms.end())
            return -1;
        at += form->size();
    }
    return at;
}
