#include "platform/text/TextSearch.h"

#include "platform/text/TextBuffer.h"

#include <algorithm>
#include <array>
#include <QByteArray>
#include <vector>

namespace {

/// The first chunk is small, since most searches end soon; each further one doubles up to this.
constexpr int firstChunk = 1 << 9;
constexpr int longestChunk = 1 << 18;

/// A text as a search compares it: for each of its characters the bytes of its two cases. All letters of the
/// code page have the same number of bytes in both cases, so a match is as long as the pattern.
class Pattern {
  public:
    Pattern(const QString& text, bool matchCase) {
        for (const QChar c : text) {
            lower_ += (matchCase ? c : c.toLower());
            upper_ += (matchCase ? c : SameLengthUpper(c));
        }
        lowerBytes_ = lower_.toUtf8();
        upperBytes_ = upper_.toUtf8();
        for (const QByteArray* bytes : {&lowerBytes_, &upperBytes_})
            starts_[static_cast<unsigned char>((*bytes)[0])] = true;
        // Where each character starts, so that the cases are compared character by character.
        int at = 0;
        for (const QChar c : lower_) {
            const int size = static_cast<int>(QString(c).toUtf8().size());
            characters_.push_back({at, size});
            at += size;
        }
    }

    int Size() const { return static_cast<int>(lowerBytes_.size()); }

    /// The first match in the bytes, or -1.
    qsizetype IndexIn(QByteArrayView bytes) const {
        if (lowerBytes_ == upperBytes_)
            return bytes.indexOf(lowerBytes_);
        const qsizetype last = bytes.size() - Size();
        for (qsizetype i = 0; i <= last; ++i) {
            if (starts_[static_cast<unsigned char>(bytes[i])] && MatchesAt(bytes.data() + i))
                return i;
        }
        return -1;
    }

  private:
    struct Character {
        int at;
        int size;
    };

    static QChar SameLengthUpper(QChar c) {
        const QChar upper = c.toUpper();
        return QString(upper).toUtf8().size() == QString(c.toLower()).toUtf8().size() ? upper : c.toLower();
    }

    bool MatchesAt(const char* bytes) const {
        return std::all_of(characters_.begin(), characters_.end(), [&](const Character& one) {
            const char* here = bytes + one.at;
            return std::equal(here, here + one.size, lowerBytes_.constData() + one.at) ||
                   std::equal(here, here + one.size, upperBytes_.constData() + one.at);
        });
    }

    QString lower_;
    QString upper_;
    QByteArray lowerBytes_;
    QByteArray upperBytes_;
    std::vector<Character> characters_;
    std::array<bool, 256> starts_{};
};

bool IsWordCharacter(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

} // namespace

std::optional<ByteRange> TextSearch::Forward(const QString& text, ByteRange range, int options) const {
    const Pattern pattern(text, (options & MatchCase) != 0);
    int from = range.start;
    int chunk = std::max(firstChunk, 2 * pattern.Size());
    while (range.end - from >= pattern.Size()) {
        const int to = static_cast<int>(std::min<qint64>(qint64{from} + chunk, range.end));
        // A copy: looking at the characters around a match may move what lies in place.
        const QByteArray bytes = buffer_.InPlace({from, to}).toByteArray();
        qsizetype found = pattern.IndexIn(bytes);
        while (found >= 0) {
            const int at = from + static_cast<int>(found);
            const ByteRange match{at, at + pattern.Size()};
            if ((options & WholeWord) == 0 || IsWholeWord(text, match))
                return match;
            const qsizetype next = pattern.IndexIn(QByteArrayView(bytes).sliced(found + 1));
            found = next < 0 ? next : found + 1 + next;
        }
        if (to == range.end)
            break;
        from = to - pattern.Size() + 1;
        chunk = std::max(std::min(2 * chunk, longestChunk), 2 * pattern.Size());
    }
    return std::nullopt;
}

bool TextSearch::IsWholeWord(const QString& text, ByteRange match) const {
    const QString before = buffer_.Text(buffer_.CharacterBefore(match.start));
    const QString behind = buffer_.Text(buffer_.CharacterAt(match.end));
    const bool joinedBefore =
        !before.isEmpty() && IsWordCharacter(before.back()) && IsWordCharacter(text.front());
    const bool joinedBehind =
        !behind.isEmpty() && IsWordCharacter(behind.front()) && IsWordCharacter(text.back());
    return !joinedBefore && !joinedBehind;
}
