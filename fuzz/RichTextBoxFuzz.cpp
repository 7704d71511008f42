// Edits of every kind in any order: the control agrees with a plain string about its text, undo leads back to
// the start and redo to the end, with the same colours.
#include "FuzzApplication.h"
#include "platform/text/RichTextBox.h"
#include "platform/text/RtfReader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

/// The input as a stream of small numbers; zeros once it is used up.
class Source {
  public:
    Source(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
    bool Empty() const { return at_ >= size_; }
    int Next(int below) { return Empty() ? 0 : data_[at_++] % below; }

  private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

const QString& Piece(int which) {
    static const QString pieces[] = {QString(),
                                     QStringLiteral("a"),
                                     QStringLiteral("\r"),
                                     QStringLiteral("\n"),
                                     QStringLiteral("\r\n"),
                                     QString::fromUtf8("é"),
                                     QString::fromUtf8("x€\r\n"),
                                     QStringLiteral("<b>")};
    return pieces[which];
}

std::vector<ColorNumber> Colors(const RichTextBox& box) {
    std::vector<ColorNumber> colors;
    for (int i = 0; i < box.TextLength(); ++i)
        colors.push_back(box.ColorAt(i));
    return colors;
}

void EditOnce(RichTextBox& box, QString& model, Source& source) {
    const int all = static_cast<int>(model.size());
    const int start = source.Next(all + 1);
    const int length = std::min(source.Next(5), all - start);
    const QString& piece = Piece(source.Next(8));
    box.SetSelStart(start);
    box.SetSelLength(length);
    switch (source.Next(4)) {
    case 0:
        box.SetSelColor(source.Next(256));
        break;
    case 1:
        box.SetSelRTF(QStringLiteral("{{\\colortbl;\\red255;\\green255;}\\cf1 a\\cf2 b}"));
        model.replace(start, length, QStringLiteral("ab"));
        break;
    case 2:
        if (source.Next(8) == 0) {
            box.SetText(piece);
            model = piece;
            break;
        }
        [[fallthrough]];
    default:
        box.SetSelText(piece);
        model.replace(start, length, piece);
    }
    const int probe = source.Next(static_cast<int>(model.size()) + 1);
    Demand(box.TextLength() == model.size());
    Demand(box.TextRange(probe, 3) == model.mid(probe, 3));
    Demand(box.SelStart() <= box.TextLength());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    StartFuzzApplication();

    RichTextBox box;
    box.SetRawLineEndMode(RawLineEnds::Keep);
    QString model;
    Source source(data, std::min<std::size_t>(size, 400));
    while (!source.Empty())
        EditOnce(box, model, source);
    Demand(box.Text() == model);

    const std::vector<ColorNumber> colors = Colors(box);
    while (box.Send(RichTextBox::Message::CanUndo) == 1)
        box.Send(RichTextBox::Message::Undo);
    Demand(box.Text().isEmpty());
    while (box.SendScintilla(QsciScintillaBase::SCI_CANREDO) != 0)
        box.SendScintilla(QsciScintillaBase::SCI_REDO);
    Demand(box.Text() == model);
    box.SetSelStart(0);
    Demand(Colors(box) == colors);
    return 0;
}
