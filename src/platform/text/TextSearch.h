// Searching a text where it lies, and no further than needed.
#pragma once

#include <optional>
#include <QChar>
#include <QString>
#include <vector>

class SearchPattern;
class TextBuffer;
struct ByteRange;

class TextSearch {
  public:
    /// Combined by OR.
    enum Option { WholeWord = 2, MatchCase = 4 };

    explicit TextSearch(const TextBuffer& buffer) : buffer_(buffer) {}

    /// The first match that lies in the range whole. Case is ignored without MatchCase, in all scripts
    /// that have one: a match may have more or fewer characters than the text. With WholeWord no
    /// letter, digit or "_" joins on to the match. The text must not be empty.
    std::optional<ByteRange> Forward(const QString& text, ByteRange range, int options) const;
    /// The matches in order. The search goes on so many characters behind each as gap says.
    std::vector<ByteRange> Each(const QString& text, ByteRange range, int gap, int options) const;

  private:
    std::optional<ByteRange> Forward(const SearchPattern& pattern, ByteRange range, int options) const;
    int LengthAt(int byte) const;
    bool IsWholeWord(ByteRange match) const;

    const TextBuffer& buffer_;
};
