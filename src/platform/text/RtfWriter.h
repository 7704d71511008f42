// A stretch of coloured text as RTF.
#pragma once

#include <QString>

class TextBuffer;
class TextColors;
struct ByteRange;

/// What ReadRtf gives back as the same text and colours, line ends included.
QString WriteRtf(const TextBuffer& buffer, const TextColors& colors, ByteRange range);
