#include "platform/text/InputMethod.h"

#include "platform/text/AccessibleText.h"

#include <algorithm>
#include <QPainter>
#include <QWidget>

namespace {

constexpr int context = 256;

/// The end of the selection that stays as keys move the other one.
int Anchor(const AccessibleText& text) {
    const int start = text.SelStart();
    return text.CaretPosition() == start ? start + text.SelLength() : start;
}

} // namespace

void InputMethod::SetPreedit(const QString& text) {
    if (text == preedit_)
        return;
    preedit_ = text;
    viewport_.update();
}

void InputMethod::Paint(QRect caret, const QFont& font) const {
    QPainter painter(&viewport_);
    QFont underlined = font;
    underlined.setUnderline(true);
    painter.setFont(underlined);
    const QRect line(caret.topLeft(),
                     QSize(painter.fontMetrics().horizontalAdvance(preedit_), caret.height()));
    const QPalette& palette = viewport_.palette();
    painter.fillRect(line, palette.color(QPalette::Highlight));
    painter.setPen(palette.color(QPalette::HighlightedText));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, preedit_);
}

QVariant InputMethod::Answer(const AccessibleText& text, Qt::InputMethodQuery query) {
    const int caret = text.CaretPosition();
    const int start = std::max(0, caret - context);
    switch (query) {
    case Qt::ImEnabled:
        return text.Enabled();
    case Qt::ImHints:
        return static_cast<int>(Qt::ImhMultiLine | Qt::ImhNoPredictiveText);
    case Qt::ImFont:
        return text.Font();
    case Qt::ImCursorPosition:
        return caret - start;
    case Qt::ImAnchorPosition:
        return Anchor(text) - start;
    case Qt::ImSurroundingText:
        return text.TextRange(start, 2 * context);
    case Qt::ImTextBeforeCursor:
        return text.TextRange(start, caret - start);
    case Qt::ImTextAfterCursor:
        return text.TextRange(caret, context);
    case Qt::ImCurrentSelection:
        return text.TextRange(text.SelStart(), std::min(text.SelLength(), context));
    default:
        return {};
    }
}
