// Random elements, values, sheets, pages and carets: what the style sheet builder and the layer dialog write
// is what plain text work makes of them, and one undo takes it back.
#include "FuzzApplication.h"
#include "platform/values/Cp1252.h"
#include "styles/layers/LayerInsertion.h"
#include "styles/layers/LayerText.h"
#include "styles/sheet/PreviewPage.h"
#include "styles/sheet/PrintedLine.h"
#include "styles/sheet/Rule.h"
#include "styles/sheet/SheetBox.h"
#include "styles/sheet/SheetInsertion.h"
#include "support/TestFrame.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

void CheckRule(const QStringList& parts) {
    const QString rule = Rule(parts.front(), parts.mid(1));
    QString expected = parts.front() + QStringLiteral(" { ");
    for (const QString& declaration : parts.mid(1))
        expected += declaration + QStringLiteral("; ");
    Demand(rule == expected + QStringLiteral(" }"));
    const QString page = PreviewPage(parts.front(), rule);
    Demand(page.contains(rule) && page.startsWith(QStringLiteral("<HTML>")));
    const QByteArray bytes = PrintedLine(page);
    Demand(bytes.endsWith("</HTML>\r\n") && bytes.size() >= page.size() + 2);
}

/// Characters of all planes, of which some are no characters at all.
void CheckEscapes(const uint8_t* data, size_t size) {
    QString text(static_cast<qsizetype>(size / 2), Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i)
        text[i] = QChar(static_cast<char16_t>(data[2 * i] * 256 + data[2 * i + 1]));
    const QString escaped = WithEscapes(text, CharacterSet::CodePage1252);
    Demand(std::ranges::all_of(escaped, [](QChar c) { return Cp1252::ToCode(c) >= 0; }));
    Demand(WithEscapes(escaped, CharacterSet::CodePage1252) == escaped);
    SheetBox box;
    box.AppendLine(text);
    Demand(box.Text().endsWith(QStringLiteral("\r\n")));
    Demand(box.Text().count(u'\r') == box.Text().count(u'\n'));
}

/// Made once: a frame's settings are files, and those take longer than all the rest.
TestFrame& OneFrame() {
    StartFuzzApplication();
    static auto* const frame = new TestFrame;
    return *frame;
}

/// Writes into a page at a caret, compares, and takes it back.
template <typename Write>
void CheckWritten(const QString& page, int caret, const Write& write, const QString& expected) {
    TestFrame& frame = OneFrame();
    frame.SetText(page);
    frame.Box().SetSelStart(caret);
    frame.Box().EmptyUndoBuffer();
    write(frame);
    Demand(frame.Box().Text() == expected);
    frame.Box().Send(RichTextBox::Message::Undo);
    Demand(frame.Box().Text() == page);
    Demand(frame.Box().Send(RichTextBox::Message::CanUndo) == 0);
}

void CheckPage(const QString& page, int caret, const QString& sheet) {
    const qsizetype head = page.indexOf(QStringLiteral("<HEAD>"), 0, Qt::CaseInsensitive);
    const qsizetype place = std::min(head < 0 ? 5 : head + 6, page.size());
    CheckWritten(
        page, caret, [&](TestFrame& frame) { AddToHeader(frame, sheet); },
        QString(page).insert(place, HeadBlock(sheet, TagCase::AsWritten)));
    const QString bare = sheet.size() < 2 ? QString() : sheet.chopped(2);
    CheckWritten(
        page, caret, [&](TestFrame& frame) { AddToLocation(frame, sheet); },
        QString(page).insert(caret, bare));
    const qsizetype headEnd = page.indexOf(QStringLiteral("</HEAD>"), 1, Qt::CaseInsensitive);
    const LayerClass layer = {.name = sheet, .position = QStringLiteral("static"), .addStyle = true};
    const QString block = ClassText(layer, TagCase::Lower);
    CheckWritten(
        page, caret, [&](TestFrame& frame) { InsertClass(frame, block, ClassPlace::HeadEnd); },
        QString(page).replace(headEnd < 0 ? caret : headEnd, 7, block));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2)
        return 0;
    StartFuzzApplication();
    CheckEscapes(data, size);
    const QString text =
        Cp1252::FromBytes({reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1});
    CheckRule(text.split(u'|'));
    const qsizetype cut = text.indexOf(u'|');
    const QString page = text.left(cut < 0 ? text.size() : cut);
    TestFrame& frame = OneFrame();
    frame.SetText(page);
    if (frame.Box().Text() != page)
        return 0; // not a text that a document holds
    CheckPage(page, static_cast<int>(data[0] % (static_cast<size_t>(page.size()) + 1)),
              text.mid(page.size()));
    return 0;
}
