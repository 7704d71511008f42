#include "editor/color/ColorStream.h"

#include <algorithm>
#include <utility>

namespace {

void Append(QString& buffer, QStringView text, QStringView colorWord) {
    const QStringView lineEnd = u"\\par ";
    // Room for the worst, a text of nothing but line ends: a page is thousands of pieces, and one step of
    // growing and shrinking for each is cheaper than to grow by every part of it.
    const qsizetype start = buffer.size();
    buffer.resize(start + colorWord.size() + text.size() / 2 * lineEnd.size() + 1);
    QChar* to = std::copy(colorWord.begin(), colorWord.end(), buffer.data() + start);
    for (auto at = text.begin(); at != text.end(); ++at) {
        if (*at == u'\r' && at + 1 != text.end() && at[1] == u'\n') {
            to = std::copy(lineEnd.begin(), lineEnd.end(), to);
            ++at;
        } else {
            *to++ = *at;
        }
    }
    buffer.truncate(to - buffer.constData());
}

} // namespace

QString WithParagraphs(QStringView text) {
    QString rtf;
    Append(rtf, text, {});
    return rtf;
}

void ColorStream::Gather(QStringView text, QStringView colorWord) {
    Append(buffer_, text, colorWord);
}

void ColorStream::Add(QStringView rtf, QStringView colorWord) {
    buffer_ += colorWord;
    buffer_ += rtf;
}

QString ColorStream::TakeDocument(QStringView header) {
    // In the buffer's own memory: a page of many megabytes stands in it.
    QString rtf = std::exchange(buffer_, QString());
    const qsizetype size = rtf.size();
    rtf.resize(header.size() + size + 1);
    std::copy_backward(rtf.cbegin(), rtf.cbegin() + size, rtf.end() - 1);
    std::copy(header.begin(), header.end(), rtf.begin());
    rtf.back() = u'}';
    return rtf;
}
