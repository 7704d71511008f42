// Searching a text where it lies, and no further than needed.
#pragma once

#include <optional>
#include <QChar>
#include <QString>

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

  private:
    bool IsWholeWord(ByteRange match) const;

    const TextBuffer& buffer_;
};
