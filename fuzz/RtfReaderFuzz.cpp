// Reads any text as RTF, in both modes: the runs cover the text, and no character comes from outside the code
// page.
#include "platform/text/RtfReader.h"

#include "platform/values/Cp1252.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

void Check(const RtfText& read) {
    qsizetype covered = 0;
    for (std::size_t i = 0; i < read.runs.size(); ++i) {
        const RtfRun& run = read.runs[i];
        Demand(run.length > 0);
        Demand(run.color >= -1 && run.color <= 0xffffff);
        Demand(i == 0 || run.color != read.runs[i - 1].color);
        covered += run.length;
    }
    Demand(covered == read.text.size());
    const QString text = QString::fromUtf8(read.text);
    Demand(text.toUtf8() == read.text);
    for (const QChar c : text)
        Demand(Cp1252::ToCode(c) >= 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString rtf = Cp1252::FromBytes(QByteArrayView(data, static_cast<qsizetype>(size)));
    const RtfText kept = ReadRtf(rtf, RawLineEnds::Keep);
    const RtfText skipped = ReadRtf(rtf, RawLineEnds::Skip);
    Check(kept);
    Check(skipped);

    // What is escaped comes back as it was, whatever it is.
    QString escaped = rtf;
    escaped.replace(QStringLiteral("\\"), QStringLiteral("\\\\"));
    escaped.replace(QStringLiteral("{"), QStringLiteral("\\{"));
    escaped.replace(QStringLiteral("}"), QStringLiteral("\\}"));
    const RtfText back = ReadRtf(
        QStringLiteral("{{\\colortbl ;\\red255;}\\cf1 ") + escaped + QLatin1Char('}'), RawLineEnds::Keep);
    Check(back);
    Demand(QString::fromUtf8(back.text) == rtf);
    return 0;
}
