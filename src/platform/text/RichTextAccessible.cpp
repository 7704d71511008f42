#include "platform/text/RichTextAccessible.h"

#include "platform/text/AccessibleText.h"

#include <algorithm>
#include <QAbstractScrollArea>
#include <QTextBoundaryFinder>

namespace {

/// How far to either side words and sentences are looked for: a line may be a megabyte.
constexpr int context = 512;

QAccessibleInterface* Create(const QString& name, QObject* object) {
    // Asked for each class that the object derives from; the object's own comes first.
    if (name != QLatin1String(object->metaObject()->className()))
        return nullptr;
    auto* text = qobject_cast<AccessibleText*>(object);
    auto* area = qobject_cast<QAbstractScrollArea*>(object);
    return text && area ? new RichTextAccessible(area, *text, *area->viewport()) : nullptr;
}

QTextBoundaryFinder::BoundaryType FinderType(QAccessible::TextBoundaryType type) {
    switch (type) {
    case QAccessible::CharBoundary:
        return QTextBoundaryFinder::Grapheme;
    case QAccessible::SentenceBoundary:
        return QTextBoundaryFinder::Sentence;
    default:
        return QTextBoundaryFinder::Word;
    }
}

QString Rgb(ColorNumber color) {
    const auto [red, green, blue] = PartsOf(color);
    return QStringLiteral("rgb(%1,%2,%3)").arg(red).arg(green).arg(blue);
}

} // namespace

RichTextAccessible::RichTextAccessible(QWidget* control, AccessibleText& text, const QWidget& viewport)
    : QAccessibleWidget(control, QAccessible::EditableText), text_(text), viewport_(viewport) {}

void RichTextAccessible::Install() {
    QAccessible::installFactory(Create);
}

void* RichTextAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State RichTextAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.multiLine = true;
    state.selectableText = true;
    state.focusable = true;
    return state;
}

void RichTextAccessible::selection(int index, int* start, int* end) const {
    const bool known = index == 0 && selectionCount() == 1;
    *start = known ? text_.SelStart() : 0;
    *end = known ? *start + text_.SelLength() : 0;
}

int RichTextAccessible::selectionCount() const {
    return text_.SelLength() > 0 ? 1 : 0;
}

void RichTextAccessible::addSelection(int start, int end) {
    setSelection(0, start, end);
}

void RichTextAccessible::removeSelection(int index) {
    if (index == 0)
        text_.SetSelStart(text_.CaretPosition());
}

void RichTextAccessible::setSelection(int index, int start, int end) {
    if (index != 0)
        return;
    const int from = Resolve(start);
    text_.SetSelStart(from);
    text_.SetSelLength(std::max(Resolve(end) - from, 0));
}

int RichTextAccessible::cursorPosition() const {
    return text_.CaretPosition();
}

void RichTextAccessible::setCursorPosition(int position) {
    text_.SetSelStart(Resolve(position));
}

QString RichTextAccessible::text(int start, int end) const {
    const int from = Resolve(start);
    return text_.TextRange(from, Resolve(end) - from);
}

QString RichTextAccessible::text(QAccessible::Text which) const {
    return QAccessibleWidget::text(which);
}

int RichTextAccessible::Resolve(int offset) const {
    if (offset == -2)
        return text_.CaretPosition();
    const int count = text_.TextLength();
    return offset == -1 ? count : std::clamp(offset, 0, count);
}

RichTextAccessible::Stretch RichTextAccessible::StretchAt(int offset,
                                                          QAccessible::TextBoundaryType type) const {
    if (type == QAccessible::NoBoundary)
        return {0, text_.TextLength()};
    const int lineStart = text_.LineStart(offset);
    const int nextLine = text_.NextLineStart(offset);
    if (type == QAccessible::LineBoundary || type == QAccessible::ParagraphBoundary)
        return {lineStart, nextLine};
    const int from = std::max(lineStart, offset - context);
    const int to = std::min(nextLine, offset + context);
    const QString around = text_.TextRange(from, to - from);
    QTextBoundaryFinder finder(FinderType(type), around);
    finder.setPosition(offset - from);
    if (!finder.isAtBoundary())
        finder.toPreviousBoundary();
    const qsizetype start = std::max<qsizetype>(finder.position(), 0);
    const qsizetype end = finder.toNextBoundary();
    return {from + static_cast<int>(start), end < 0 ? to : from + static_cast<int>(end)};
}

bool RichTextAccessible::IsBlank(Stretch stretch) const {
    return text_.TextRange(stretch.start, std::min(stretch.end - stretch.start, context)).trimmed().isEmpty();
}

QString RichTextAccessible::Tell(Stretch stretch, int* start, int* end) const {
    *start = stretch.start;
    *end = stretch.end;
    return text_.TextRange(stretch.start, stretch.end - stretch.start);
}

QString RichTextAccessible::textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                         int* end) const {
    return Tell(StretchAt(Resolve(offset), type), start, end);
}

QString RichTextAccessible::textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                             int* end) const {
    Stretch stretch = StretchAt(Resolve(offset), type);
    do {
        if (stretch.start == 0 || type == QAccessible::NoBoundary)
            return Tell({0, 0}, start, end);
        stretch = StretchAt(stretch.start - 1, type);
    } while (type == QAccessible::WordBoundary && IsBlank(stretch));
    return Tell(stretch, start, end);
}

QString RichTextAccessible::textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                            int* end) const {
    const int count = text_.TextLength();
    Stretch stretch = StretchAt(Resolve(offset), type);
    do {
        if (stretch.end >= count || type == QAccessible::NoBoundary)
            return Tell({count, count}, start, end);
        stretch = StretchAt(stretch.end, type);
    } while (type == QAccessible::WordBoundary && IsBlank(stretch));
    return Tell(stretch, start, end);
}

int RichTextAccessible::characterCount() const {
    return text_.TextLength();
}

QRect RichTextAccessible::characterRect(int offset) const {
    const QRect inside = text_.CharacterRect(Resolve(offset));
    return {viewport_.mapToGlobal(inside.topLeft()), inside.size()};
}

int RichTextAccessible::offsetAtPoint(const QPoint& point) const {
    const QPoint inside = viewport_.mapFromGlobal(point);
    return viewport_.rect().contains(inside) ? text_.PositionAt(inside) : -1;
}

void RichTextAccessible::scrollToSubstring(int start, int end) {
    text_.ScrollTo(Resolve(start), Resolve(end));
}

QString RichTextAccessible::attributes(int offset, int* start, int* end) const {
    const int at = Resolve(offset);
    const ColorNumber color = text_.ColorAt(at);
    *start = *end = at;
    if (color < 0)
        return QString();
    while (*start > std::max(at - context, 0) && text_.ColorAt(*start - 1) == color)
        --*start;
    while (*end < at + context && text_.ColorAt(*end) == color)
        ++*end;
    return QStringLiteral("color:%1;background-color:%2;font-family:\"%3\";font-size:%4pt;")
        .arg(Rgb(color), Rgb(text_.BackColor()), text_.Font().family())
        .arg(text_.Font().pointSizeF());
}

void RichTextAccessible::deleteText(int start, int end) {
    replaceText(start, end, QString());
}

void RichTextAccessible::insertText(int offset, const QString& text) {
    replaceText(offset, offset, text);
}

void RichTextAccessible::replaceText(int start, int end, const QString& text) {
    if (!text_.Enabled())
        return;
    setSelection(0, start, end);
    text_.InsertForeign(text);
}
