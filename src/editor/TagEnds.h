// Where the tag around a caret starts and ends.
#pragma once

#include <functional>
#include <optional>
#include <QString>

/// A stretch of a document: where it starts (0-based) and how long it is, in characters.
struct TagPlace {
    int start;
    int length;
    bool operator==(const TagPlace&) const = default;
};

/// The characters [start, start + length) of a document, cut to what there is.
using TextReader = std::function<QString(int start, int length)>;

/// The tag around a caret (0-based): from the nearest "<" left of it through the next ">". Where the text's
/// start comes first the place is the caret, with length 0. Nothing where a ">" comes first, or where the "<"
/// has no ">" behind it. Quotes are not looked at. Reads no further than it must.
std::optional<TagPlace> FindTagAround(int caret, const TextReader& read);
