// Where a tag starts and ends in a text. Quotes are not looked at: a bracket counts wherever it stands.
#pragma once

#include <functional>
#include <limits>
#include <optional>
#include <QString>

class RichTextBox;

/// A stretch of a document: where it starts (0-based) and how long it is, in characters.
struct TagPlace {
    int start;
    int length;
    bool operator==(const TagPlace&) const = default;
};

enum class Bracket { Open, Close };

struct BracketPlace {
    Bracket kind;
    int place;
    bool operator==(const BracketPlace&) const = default;
};

/// The characters [start, start + length) of a document, cut to what there is.
using TextReader = std::function<QString(int start, int length)>;

/// Reads a control's text, which must outlive the reader.
TextReader ReaderOf(const RichTextBox& text);

/// The nearest angle bracket left of a caret (0-based), no more than reach characters away.
std::optional<BracketPlace> BracketBefore(int caret, const TextReader& read,
                                          int reach = std::numeric_limits<int>::max());

/// The tag that a "<" opens: through the next ">". Nothing where none follows.
std::optional<TagPlace> TagFrom(int open, const TextReader& read);

/// The tag around a caret: from the nearest "<" left of it through the next ">". Where the text's start comes
/// first the place is the caret, with length 0. Nothing where a ">" comes first, or where the "<" has no ">"
/// behind it. Reads no further than it must.
std::optional<TagPlace> FindTagAround(int caret, const TextReader& read);
