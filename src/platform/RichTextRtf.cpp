// The text control: the selection or the whole text as RTF, in and out.
#include "platform/RichTextBox.h"

#include "platform/RtfReader.h"

void RichTextBox::SetSelRTF(const QString& rtf) {
    const Settling settling(*this);
    ReplaceByRtf(Selection(), rtf);
}

QString RichTextBox::SelRTF() const {
    return RtfOf(Selection());
}

void RichTextBox::SetTextRTF(const QString& rtf) {
    const Settling settling(*this);
    ReplaceByRtf({0, ByteLength()}, rtf);
    GoToStart();
}

QString RichTextBox::TextRTF() const {
    return RtfOf({0, ByteLength()});
}

void RichTextBox::ReplaceByRtf(ByteRange range, const QString& rtf) {
    const RtfText content = ReadRtf(rtf, rawLineEnds_);
    StyleRuns styles;
    for (const RtfRun& run : content.runs)
        styles.Append(run.length, StyleFor(run.color));
    Replace(range, content.text, styles);
    typingStyle_.reset();
}

QString RichTextBox::RtfOf(ByteRange range) const {
    const StyleRuns styles = StylesOf(range.start, range.end - range.start);
    QString table = QStringLiteral("{{\\colortbl ;");
    for (int style = 1; style < styles_.End(); ++style)
        table += RtfColor(styles_.ColorOf(style)) + u';';
    QString rtf = table + QLatin1Char('}');
    int from = range.start;
    for (std::size_t run = 0; run < styles.Count(); ++run) {
        QString piece = TextOf({from, from + styles.LengthOf(run)});
        piece.replace(QStringLiteral("\\"), QStringLiteral("\\\\"));
        piece.replace(QStringLiteral("{"), QStringLiteral("\\{"));
        piece.replace(QStringLiteral("}"), QStringLiteral("\\}"));
        piece.replace(QStringLiteral("\r"), QStringLiteral("\\'0d"));
        piece.replace(QStringLiteral("\n"), QStringLiteral("\\'0a"));
        rtf += QStringLiteral("\\cf%1 ").arg(styles.StyleOf(run)) + piece;
        from += styles.LengthOf(run);
    }
    return rtf + QLatin1Char('}');
}
