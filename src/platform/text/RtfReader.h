// Turns an RTF text into plain text and the colours of its stretches.
#pragma once

#include "platform/text/ColorNumber.h"
#include "platform/values/CharacterSet.h"

#include <QByteArray>
#include <QString>
#include <vector>

/// How the bytes 13 and 10 standing raw in an RTF text are taken.
enum class RawLineEnds {
    Skip, ///< white space, as RTF has it: they vanish
    Keep  ///< text: no file loses its lines where text files end lines with a bare LF
};

struct RtfRun {
    int length;        ///< in bytes
    ColorNumber color; ///< -1 for the empty entry of the colour table: the control's own text colour
    bool operator==(const RtfRun&) const = default;
};

struct RtfText {
    QByteArray text; ///< UTF-8, as the text control holds it; only characters that its document holds
    std::vector<RtfRun> runs; ///< cover the text without a gap; neighbours differ in colour, none is empty
};

/// Reads groups, \colortbl, \cfN, \par, \line (both CR LF), \tab, \'hh, \uN (a character that the
/// document does not hold comes as its decimal reference), \\ \{ \}. Unknown words are skipped with the one
/// blank behind them, a raw tab is a tab, an unbalanced } ends the document. One pass, linear in the text.
RtfText ReadRtf(const QString& rtf, RawLineEnds rawLineEnds,
                CharacterSet characters = CharacterSet::CodePage1252);
