// Row tables of tags: what a function of a dialog's fields gives with LowerCaseTags off and on.
#pragma once

#include "builders/TagPair.h"
#include "support/TestFrame.h"

#include <functional>
#include <gtest/gtest.h>

struct Row {
    std::function<QString(Frame&)> tag;
    const char16_t* asWritten;
    const char16_t* lowered;
};

inline void Check(const std::vector<Row>& rows) {
    TestFrame frame;
    for (const Row& row : rows) {
        frame.Store().WriteFlag(Keys::LowerCaseTags, false);
        EXPECT_EQ(row.tag(frame), QString::fromUtf16(row.asWritten));
        frame.Store().WriteFlag(Keys::LowerCaseTags, true);
        EXPECT_EQ(row.tag(frame), QString::fromUtf16(row.lowered));
    }
}

/// A pair as rows show it: open, "|", close.
inline QString Shown(const TagPair& pair) {
    return pair.open + u'|' + pair.close;
}

inline QString T(const char16_t* text) {
    return QString::fromUtf16(text);
}
