#include "platform/text/Clusters.h"

#include "platform/text/TextBuffer.h"
#include "platform/text/TextEditing.h"
#include "platform/values/Utf8.h"

#include <algorithm>
#include <QTextBoundaryFinder>

namespace {

/// How far to either side, in bytes.
constexpr int reach = 256;

bool IsContinuation(char byte) {
    return (byte & 0xC0) == 0x80;
}

/// The clusters in the line around a byte.
class ClustersAround {
  public:
    ClustersAround(const TextBuffer& buffer, int byte) {
        start_ = std::max(byte - reach, buffer.LineStart(buffer.LineOf(byte)));
        const int end = std::min(byte + reach, buffer.Bytes());
        bytes_ = buffer.InPlace({start_, end}).toByteArray();
        // The first may be cut.
        while (start_ < byte && IsContinuation(bytes_[0])) {
            bytes_.remove(0, 1);
            ++start_;
        }
        before_ = Utf8::ToText(QByteArrayView(bytes_).first(byte - start_)).size();
        text_ = Utf8::ToText(bytes_);
        finder_ = QTextBoundaryFinder(QTextBoundaryFinder::Grapheme, text_);
        finder_.setPosition(before_);
    }

    int End() {
        const qsizetype next = finder_.toNextBoundary();
        return ByteOf(next < 0 ? text_.size() : next);
    }
    int Start() {
        if (finder_.isAtBoundary())
            return ByteOf(before_);
        return ByteOf(std::max<qsizetype>(finder_.toPreviousBoundary(), 0));
    }

  private:
    int ByteOf(qsizetype unit) const {
        return start_ + static_cast<int>(QStringView(text_).first(unit).toUtf8().size());
    }

    int start_ = 0;
    QByteArray bytes_;
    qsizetype before_ = 0;
    QString text_;
    QTextBoundaryFinder finder_;
};

/// Before a character of ASCII there is always a boundary.
bool MayLieInside(const TextBuffer& buffer, int byte) {
    return byte > 0 && byte < buffer.Bytes() && !Utf8::IsAscii(buffer.InPlace({byte, byte + 1}));
}

} // namespace

int ClusterEnd(const TextBuffer& buffer, int byte) {
    const ByteRange first = buffer.CharacterAt(byte);
    return MayLieInside(buffer, first.end) ? ClustersAround(buffer, byte).End() : first.end;
}

int ClusterStart(const TextBuffer& buffer, int byte) {
    return MayLieInside(buffer, byte) ? ClustersAround(buffer, byte).Start() : byte;
}

void LeaveCluster(const TextBuffer& buffer, TextEditing& editing, ClusterEdge to) {
    const int caret = editing.Caret();
    const int start = ClusterStart(buffer, caret);
    if (start == caret)
        return;
    const int target = to == ClusterEdge::Start ? start : ClusterEnd(buffer, caret);
    const ByteRange selection = editing.Selection();
    if (selection.Empty())
        editing.MoveCaret(target);
    else
        editing.Select(selection.start == caret ? selection.end : selection.start, target);
}
