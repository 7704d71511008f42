// A text as a search compares it with bytes of UTF-8.
#pragma once

#include <array>
#include <optional>
#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <vector>

/// Without case a character stands for all those that Unicode takes for the same one but for case, whatever
/// their number of bytes: a match may be shorter or longer than the pattern.
class SearchPattern {
  public:
    SearchPattern(const QString& text, bool matchCase);

    /// Where a match lies, in bytes.
    struct Match {
        qsizetype at;
        qsizetype size;
    };
    /// The first match that begins at a byte or behind it.
    std::optional<Match> FirstIn(QByteArrayView bytes, qsizetype from) const;

    /// The fewest and the most bytes that a match can have.
    int Shortest() const { return shortest_; }
    int Longest() const { return longest_; }

  private:
    /// The forms that one character may have in the text.
    using Forms = std::vector<QByteArray>;

    /// How many bytes of those that come next match, or -1.
    qsizetype LengthAt(QByteArrayView bytes) const;

    std::vector<Forms> characters_;
    QByteArray only_; ///< the pattern itself, where no character has a second form
    std::array<bool, 256> starts_{};
    int shortest_ = 0;
    int longest_ = 0;
};
