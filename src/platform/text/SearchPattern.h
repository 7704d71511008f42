// A text that is searched for in UTF-8, with its case or without.
#pragma once

#include "platform/text/ByteSearch.h"

#include <optional>
#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <utility>
#include <vector>

/// Without case a character stands for all those that Unicode takes for the same one but for case, whatever
/// their number of bytes: a match may be shorter or longer than the pattern. The time grows with the two
/// lengths, never with their product.
class SearchPattern {
  public:
    /// The text must not be empty.
    SearchPattern(const QString& text, bool matchCase);

    /// A stretch of text as the pattern is compared with it.
    class Stretch {
      public:
        /// Where a place in the folded bytes lies in the stretch.
        qsizetype Source(qsizetype folded) const;

      private:
        friend class SearchPattern;
        QByteArray bytes_;
        /// Behind each character whose folded one has another number of bytes: the place in the folded bytes
        /// and in the stretch.
        std::vector<std::pair<qsizetype, qsizetype>> moved_;
    };
    /// A copy; the stretch may begin and end within a character.
    Stretch Comparable(QByteArrayView utf8) const;

    /// Where a match lies in a stretch, in bytes.
    struct Match {
        qsizetype at;
        qsizetype size;
        qsizetype next; ///< from here the search goes on for the next one
    };
    /// The first match; with the next of a match, the first that begins behind that one's beginning.
    std::optional<Match> FirstIn(const Stretch& stretch, qsizetype next = 0) const;

    /// Bounds of the bytes that a match can have.
    int Shortest() const { return shortest_; }
    int Longest() const { return longest_; }

  private:
    bool matchCase_;
    ByteSearch search_;
    int shortest_;
    int longest_;
};
