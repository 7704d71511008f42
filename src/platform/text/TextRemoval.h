// Many stretches cut out of a coloured text at once.
#pragma once

#include "platform/text/RichTextColors.h"
#include "platform/text/TextBuffer.h"

#include <QByteArray>
#include <span>

/// Bytes of UTF-8 text and the styles of all of them.
struct StyledText {
    QByteArray text;
    StyleRuns styles;
    bool operator==(const StyledText&) const = default;
};

/// A text without the given stretches of it, which come in their order and don't overlap; the rest keeps its
/// styles. One pass.
StyledText Without(const StyledText& whole, std::span<const ByteRange> gone);
