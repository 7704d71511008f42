// Replacing one text by another in the bytes of files, a byte a character.
#pragma once

#include "editor/color/InsertTag.h"
#include "platform/text/ByteSearch.h"

#include <QByteArray>
#include <QString>
#include <vector>

/// The two texts in code page 1252, characters from outside as references. Letters match without their case
/// as they do in a document. An empty text is found nowhere.
///
/// A field takes a pasted line end as a bare LF. Where a file does not hold such a text as it stands, it is
/// looked for with a CR LF for each LF, and replaced by a text with the same line ends.
class BytesReplacement {
  public:
    BytesReplacement(const QString& find, const QString& replacement, Compare compare);

    /// The text with each match replaced. What came in is not searched again; matches that touch are all
    /// found.
    QByteArray In(const QByteArray& text) const;

  private:
    struct Pair {
        ByteSearch find;
        QByteArray replacement;
    };

    void Add(const QByteArray& find, const QByteArray& replacement);
    QByteArray Comparable(const QByteArray& bytes) const;

    Compare compare_;
    /// As given, and with other line ends.
    std::vector<Pair> pairs_;
};
