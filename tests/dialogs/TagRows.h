// Row tables of tags: what a function of a dialog's fields gives in each case of the tag words.
#pragma once

#include "dialogs/TagPair.h"
#include "editor/color/TagCase.h"
#include "support/Text.h"

#include <functional>
#include <gtest/gtest.h>

struct Row {
    std::function<QString(TagCase)> tag;
    const char16_t* asWritten;
    const char16_t* lowered;
};

inline void Check(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(row.tag(TagCase::AsWritten), QString::fromUtf16(row.asWritten));
        EXPECT_EQ(row.tag(TagCase::Lower), QString::fromUtf16(row.lowered));
    }
}

/// A pair as rows show it: open, "|", close.
inline QString Shown(const TagPair& pair) {
    return pair.open + u'|' + pair.close;
}

inline QString T(const char16_t* text) {
    return QString::fromUtf16(text);
}
