#include "styles/sheet/SheetInsertion.h"

#include "editor/frame/ActiveText.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "styles/sheet/PrintedLine.h"

#include <optional>

namespace {

const QString lineEnd = QStringLiteral("\r\n");

std::optional<QString> WithoutLastLineEnd(const QString& sheet) {
    if (sheet.size() < lineEnd.size())
        return std::nullopt;
    return sheet.chopped(lineEnd.size());
}

} // namespace

QString HeadBlock(const QString& sheet, TagCase tagCase) {
    const auto rules = WithoutLastLineEnd(sheet);
    if (!rules)
        return lineEnd;
    return lineEnd + u'<' + InCase(QStringLiteral("STYLE "), tagCase) +
           QStringLiteral("type=\"text/css\">\r\n<!--\r\n") + *rules + QStringLiteral("\r\n-->\r\n<") +
           InCase(QStringLiteral("/STYLE>"), tagCase) + lineEnd;
}

void AddToHeader(Frame& frame, const QString& sheet) {
    RichTextBox* txtInput = ActiveText(frame);
    if (!txtInput)
        return;
    const QString head = QStringLiteral("<HEAD>");
    // Where there is no such tag the search gives -1, and the block goes in at 5.
    txtInput->SetSelStart(txtInput->Find(head) + static_cast<int>(head.size()));
    txtInput->SetSelText(WithEscapes(HeadBlock(sheet, TagCaseOf(frame.Store())), txtInput->Holds()));
}

void AddToLocation(Frame& frame, const QString& sheet) {
    RichTextBox* txtInput = ActiveText(frame);
    const auto rules = WithoutLastLineEnd(sheet);
    if (txtInput && rules)
        txtInput->SetSelText(WithEscapes(*rules, txtInput->Holds()));
}
