// The sentence that a word stands in, for a reader to judge it by.
#pragma once

#include <QString>

struct Sentence {
    QString text;        ///< on one line: line ends and blanks are one blank each
    qsizetype wordStart; ///< where the word stands in it, 0-based
    qsizetype wordLength;
};

/// The sentence around a word of a text: from behind the last full stop, question or exclamation mark or
/// empty line to the next one, cut where it gets long.
Sentence SentenceAround(QStringView text, qsizetype start, qsizetype length);
