// One attribute of a tag, as text.
#pragma once

#include "editor/color/TagCase.h"

enum class Quotes { None, Double };

/// One piece of a tag: a bare word or, where that is empty, a name and its value.
struct TagPart {
    QString name{};
    QString value{};
    Quotes quotes = Quotes::None;
    QString bare{};

    /// ` NAME="value"`
    static TagPart Quoted(const QString& name, const QString& value) {
        return {.name = name, .value = value, .quotes = Quotes::Double};
    }
    /// ` NAME=value`
    static TagPart Plain(const QString& name, const QString& value) { return {.name = name, .value = value}; }
    /// A word without a value, its blank in front (" NOSHADE"), if it is on.
    static TagPart Word(const QString& bare, bool on = true) { return {.bare = on ? bare : QString()}; }
    bool operator==(const TagPart&) const = default;
};

struct BuiltAttribute {
    QString text;
    /// The part as the text has it: its words in their case, the value within its quotes.
    TagPart part;
};

/// A bare word as it is, or one blank, the name, "=" and the value; an empty value gives nothing. Values keep
/// their case.
BuiltAttribute BuildAttribute(TagPart part, TagCase tagCase);
