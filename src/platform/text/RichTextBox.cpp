#include "platform/text/RichTextBox.h"

#include "platform/text/RichTextAccessible.h"
#include "platform/text/RtfReader.h"
#include "platform/text/RtfWriter.h"
#include "platform/text/StretchMeasure.h"
#include "platform/text/TextPrinter.h"

#include <algorithm>
#include <QApplication>
#include <QClipboard>
#include <QPalette>

namespace {

/// How many stretches of text the base class keeps the measures of: the words of a page of some megabytes.
constexpr int stretchesRemembered = 1 << 16;

} // namespace

RichTextBox::RichTextBox(QWidget* parent)
    : QsciScintillaBase(parent),
      keys_(*this, buffer_, editing_,
            {.keyDown = [this](int& KeyCode, int Shift) { Outside([&] { Q_EMIT KeyDown(KeyCode, Shift); }); },
             .keyPress = [this](int& KeyAscii) { Outside([&] { Q_EMIT KeyPress(KeyAscii); }); }}),
      inputMethod_(*viewport()), font_(QStringLiteral("Arial"), 10),
#ifdef Q_OS_WIN
      rawLineEnds_(RawLineEnds::Skip)
#else
      rawLineEnds_(RawLineEnds::Keep)
#endif
{
    UseStretchMeasure();
    // Found before that of the base class, since it goes by the name of the derived class.
    RichTextAccessible::Install();
    editing_.takeIncoming = [this] { TakeIncoming(); };
    ApplyStyles();
    ApplyPalette();
    SetUp();
    // The control tells of a change before it happens: telling of it afterwards makes the base class count
    // all characters for assistive technology at each key.
    connect(this, &QsciScintillaBase::SCN_MODIFIED, this,
            [this](int position, int type, const char*, int length) {
                BeforeModification(position, type, length);
            });
}

RichTextBox::~RichTextBox() = default;

long RichTextBox::Sci(unsigned int message, long wParam, long lParam) const {
    return SendScintilla(message, static_cast<unsigned long>(wParam), lParam);
}

void RichTextBox::SetUp() {
    buffer_.SetUp();
    Sci(SCI_SETMODEVENTMASK, SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE);
    Sci(SCI_CLEARALLCMDKEYS);
    Sci(SCI_USEPOPUP, 0);
    Sci(SCI_SETMULTIPLESELECTION, 0);
    Sci(SCI_SETMOUSESELECTIONRECTANGULARSWITCH, 0);
    // A pressed button holds the mouse by itself; to grab it besides is refused by some desktops.
    Sci(SCI_SETMOUSEDOWNCAPTURES, 0);
    Sci(SCI_SETMARGINS, 0);
    Sci(SCI_SETWRAPMODE, SC_WRAP_WHITESPACE);
    Sci(SCI_SETSCROLLWIDTHTRACKING, 1);
    Sci(SCI_SETENDATLASTLINE, 1);
    Sci(SCI_SETTABWIDTH, 8);
    Sci(SCI_SETLAYOUTCACHE, SC_CACHE_PAGE);
    Sci(SCI_SETPOSITIONCACHE, stretchesRemembered);
    Sci(SCI_SETIDLESTYLING, SC_IDLESTYLING_NONE);
    // Last of all, since it is the one call that loads the fonts: what changes the look behind it would make
    // them load twice.
    Sci(SCI_SETSCROLLWIDTH, 1);
    setAttribute(Qt::WA_InputMethodEnabled);
    setAccessibleName(tr("Text"));
}

void RichTextBox::ApplyStyles() {
    const QByteArray family = font_.family().toUtf8();
    SendScintilla(SCI_STYLESETFONT, STYLE_DEFAULT, family.constData());
    Sci(SCI_STYLESETSIZEFRACTIONAL, STYLE_DEFAULT,
        qRound(ZoomedFont().pointSizeF() * int{SC_FONT_SIZE_MULTIPLIER}));
    Sci(SCI_STYLESETWEIGHT, STYLE_DEFAULT, font_.bold() ? SC_WEIGHT_BOLD : SC_WEIGHT_NORMAL);
    Sci(SCI_STYLESETITALIC, STYLE_DEFAULT, font_.italic());
    Sci(SCI_STYLESETUNDERLINE, STYLE_DEFAULT, font_.underline());
    Sci(SCI_STYLESETFORE, STYLE_DEFAULT, 0);
    Sci(SCI_STYLESETBACK, STYLE_DEFAULT, backColor_);
    Sci(SCI_STYLECLEARALL);
    colors_.ShowStyles();
    Sci(SCI_SETCARETFORE, qGray(ToQColor(backColor_).rgb()) < 128 ? 0xffffff : 0);
    aids_.SuitLook(backColor_);
}

void RichTextBox::ApplyPalette() {
    SendScintilla(SCI_SETSELBACK, 1UL, palette().color(QPalette::Active, QPalette::Highlight));
    SendScintilla(SCI_SETSELFORE, 1UL, palette().color(QPalette::Active, QPalette::HighlightedText));
}

QString RichTextBox::Text() const {
    return buffer_.Text(buffer_.Whole());
}

void RichTextBox::SetText(const QString& text) {
    const Settling settling(*this);
    const int style = colors_.StyleAtCaret(editing_.Selection());
    const QByteArray bytes = editing_.Held(text);
    editing_.Replace(buffer_.Whole(), bytes, StyleRuns(static_cast<int>(bytes.size()), style));
    GoToStart();
}

void RichTextBox::GoToStart() {
    editing_.MoveCaret(0);
    caretMovedByEdit_ = false;
}

int RichTextBox::TextLength() const {
    return buffer_.Length();
}

QString RichTextBox::TextRange(int start, int length) const {
    return buffer_.TextOfUnits(start, qint64{start} + length);
}

QChar RichTextBox::CharAt(int position) const {
    if (position < 0 || position >= TextLength())
        return QChar();
    const QString one = buffer_.TextOfUnits(position, qint64{position} + 1);
    return one.isEmpty() ? QChar() : one[0];
}

ColorNumber RichTextBox::ColorAt(int position) const {
    if (position < 0 || position >= TextLength())
        return -1;
    return colors_.ColorOf(colors_.StyleAt(buffer_.ByteFromChar(position)));
}

int RichTextBox::SelStart() const {
    return buffer_.CharFromByte(editing_.Selection().start);
}

void RichTextBox::SetSelStart(int position) {
    if (position < 0)
        return;
    const Settling settling(*this);
    editing_.MoveCaret(buffer_.ByteFromChar(position));
}

int RichTextBox::SelLength() const {
    const ByteRange range = editing_.Selection();
    return range.Empty() ? 0 : buffer_.CharFromByte(range.end) - buffer_.CharFromByte(range.start);
}

void RichTextBox::SetSelLength(int length) {
    if (length < 0)
        return;
    const Settling settling(*this);
    const int start = SelStart();
    const ByteRange range = buffer_.FromChars(start, qint64{start} + length);
    editing_.Select(range.start, range.end);
}

QString RichTextBox::SelText() const {
    return buffer_.Text(editing_.Selection());
}

void RichTextBox::SetSelText(const QString& text) {
    const Settling settling(*this);
    editing_.ReplaceSelection(editing_.Held(text));
}

void RichTextBox::Remove(std::span<const CharRange> stretches) {
    if (stretches.empty())
        return;
    const Settling settling(*this);
    editing_.ReplaceEach(buffer_.FromChars(stretches), QByteArray());
    colors_.ForgetTyping();
}

ColorNumber RichTextBox::SelColor() const {
    return colors_.ColorOf(colors_.StyleAtCaret(editing_.Selection()));
}

void RichTextBox::SetSelColor(ColorNumber color) {
    const Settling settling(*this);
    const int style = colors_.StyleFor(color);
    const ByteRange range = editing_.Selection();
    if (range.Empty()) {
        colors_.KeepForTyping(style, range.start);
    } else {
        colors_.SetStyles(range.start, StyleRuns(range.Length(), style));
        changed_ = true;
    }
}

void RichTextBox::SetSelRTF(const QString& rtf) {
    const Settling settling(*this);
    ReplaceByRtf(editing_.Selection(), rtf);
}

QString RichTextBox::SelRTF() const {
    return WriteRtf(buffer_, colors_, editing_.Selection());
}

void RichTextBox::SetTextRTF(const QString& rtf) {
    const Settling settling(*this);
    ReplaceByRtf(buffer_.Whole(), rtf);
    GoToStart();
}

QString RichTextBox::TextRTF() const {
    return WriteRtf(buffer_, colors_, buffer_.Whole());
}

void RichTextBox::ReplaceByRtf(ByteRange range, const QString& rtf) {
    const RtfText content = ReadRtf(rtf, rawLineEnds_, editing_.Holds());
    StyleRuns styles;
    for (const RtfRun& run : content.runs)
        styles.Append(run.length, colors_.StyleFor(run.color));
    editing_.Replace(range, content.text, styles);
    colors_.ForgetTyping();
}

int RichTextBox::RightMargin() const {
    return rightMargin_;
}

void RichTextBox::SetRightMargin(int twips) {
    rightMargin_ = twips;
    Sci(SCI_SETWRAPMODE, twips == 0 ? SC_WRAP_WHITESPACE : SC_WRAP_NONE);
}

ColorNumber RichTextBox::BackColor() const {
    return backColor_;
}

void RichTextBox::SetBackColor(ColorNumber color) {
    // Each activation of a document assigns it anew, and applying styles lays the whole text out again.
    if (backColor_ == (color & 0xffffff))
        return;
    backColor_ = color & 0xffffff;
    ApplyStyles();
}

QFont RichTextBox::Font() const {
    return font_;
}

void RichTextBox::SetFont(const QFont& font) {
    if (font_ == font)
        return;
    font_ = font;
    ApplyStyles();
}

QFont RichTextBox::ZoomedFont() const {
    // A glyph beyond the largest size costs more memory than it shows.
    constexpr double largestPoints = 1638;
    const double points = font_.pointSizeF() > 0 ? font_.pointSizeF() : 10;
    QFont font = font_;
    font.setPointSizeF(std::min(points * zoom_ / 100, std::max(points, largestPoints)));
    return font;
}

bool RichTextBox::CaretInView() const {
    const int top = CaretPixel().y();
    return top >= 0 && top + LineHeight() <= viewport()->height();
}

void RichTextBox::SetZoom(int percent) {
    if (zoom_ == percent)
        return;
    const bool caretInView = isVisible() && CaretInView();
    zoom_ = percent;
    ApplyStyles();
    // The width that the longest line had so far is not that of the lines as they are now.
    Sci(SCI_SETSCROLLWIDTH, 1);
    if (!caretInView)
        return;
    // Painting wraps the lines in view, and only then is it known where the caret is; the lines that
    // scrolling brings up are to be wrapped in turn.
    constexpr int mostTurns = 8;
    for (int turn = 0; turn < mostTurns; ++turn) {
        viewport()->repaint();
        if (CaretInView())
            return;
        Sci(SCI_SCROLLCARET);
    }
}

bool RichTextBox::Enabled() const {
    return enabled_;
}

void RichTextBox::SetEnabled(bool enabled) {
    enabled_ = enabled;
}

void RichTextBox::SetFocus() {
    setFocus(Qt::OtherFocusReason);
}

int RichTextBox::GetLineFromChar(int position) const {
    return buffer_.LineOf(buffer_.ByteFromChar(std::max(position, 0)));
}

int RichTextBox::LineStart(int position) const {
    return buffer_.CharFromByte(buffer_.LineStart(GetLineFromChar(position)));
}

int RichTextBox::NextLineStart(int position) const {
    return buffer_.NextLine(std::max(position, 0));
}

int RichTextBox::Find(const QString& text, std::optional<int> start, std::optional<int> end, int options) {
    if (text.isEmpty())
        return -1;
    const Settling settling(*this);
    ByteRange range = editing_.Selection();
    if (start || end) {
        if (start)
            range.start = buffer_.ByteFromChar(std::max(*start, 0));
        range.end = end ? buffer_.ByteFromChar(std::max(*end, 0)) : buffer_.Bytes();
    } else if (range.Empty()) {
        range = buffer_.Whole();
    }
    const std::optional<ByteRange> match = search_.Forward(text, range, options);
    if (!match)
        return -1;
    editing_.Select(match->start, match->end);
    return buffer_.CharFromByte(match->start);
}

int RichTextBox::ReplaceEach(const QString& text, const QString& replacement, int start, int gap,
                             int options) {
    if (text.isEmpty())
        return 0;
    const Settling settling(*this);
    const ByteRange range{buffer_.ByteFromChar(std::max(start, 0)), buffer_.Bytes()};
    const std::vector<ByteRange> matches = search_.Each(text, range, gap, options);
    editing_.ReplaceEach(matches, editing_.Held(replacement));
    return static_cast<int>(matches.size());
}

int RichTextBox::FindForward(QChar character, int from) const {
    const ByteRange range = buffer_.FromChars(from, TextLength());
    const std::optional<ByteRange> match = search_.Forward(QString(character), range, MatchCase);
    return match ? buffer_.CharFromByte(match->start) : -1;
}

int RichTextBox::Send(Message message) {
    if (message == Message::CanUndo)
        return Sci(SCI_CANUNDO) != 0 ? 1 : 0;
    const Settling settling(*this);
    switch (message) {
    case Message::Undo:
        Sci(SCI_UNDO);
        break;
    case Message::Cut:
        Sci(SCI_CUT);
        break;
    case Message::Copy:
        Sci(SCI_COPY);
        break;
    case Message::Paste:
        editing_.PasteFrom(QApplication::clipboard()->mimeData());
        break;
    case Message::LeftButtonUp:
        ReleaseLeftButton();
        break;
    case Message::CanUndo:
        break;
    }
    return 0;
}

void RichTextBox::EmptyUndoBuffer() {
    Sci(SCI_EMPTYUNDOBUFFER);
    colors_.ForgetUndo();
}

QString RichTextBox::LineEnd() const {
    return buffer_.LineEnd();
}

void RichTextBox::InsertForeign(const QString& text) {
    const Settling settling(*this);
    editing_.ReplaceSelection(editing_.Incorporate(text));
}

QString RichTextBox::Incorporated(const QString& text) const {
    return QString::fromUtf8(editing_.Incorporate(text));
}

int RichTextBox::FormatRange(bool draw, QPainter& painter, const QRectF& page, int from) {
    return TextPrinter(buffer_, colors_, font_).FormatRange(draw, painter, page, from);
}

int RichTextBox::LineHeight() const {
    return static_cast<int>(Sci(SCI_TEXTHEIGHT, 0));
}

int RichTextBox::CaretPosition() const {
    return buffer_.CharFromByte(editing_.Caret());
}

QPoint RichTextBox::PixelOfByte(int byte) const {
    return {static_cast<int>(Sci(SCI_POINTXFROMPOSITION, 0, byte)),
            static_cast<int>(Sci(SCI_POINTYFROMPOSITION, 0, byte))};
}

QPoint RichTextBox::CaretPixel() const {
    return PixelOfByte(editing_.Caret());
}

QRect RichTextBox::CharacterRect(int position) const {
    const ByteRange character = buffer_.CharacterAt(buffer_.ByteFromChar(std::max(position, 0)));
    const QPoint here = PixelOfByte(character.start);
    const QPoint next = PixelOfByte(character.end);
    // The last character of a line is followed by one on the next line.
    const int width = next.y() == here.y() ? next.x() - here.x() : 1;
    return {here, QSize(std::max(width, 1), LineHeight())};
}

int RichTextBox::PositionAt(QPoint pixel) const {
    return buffer_.CharFromByte(static_cast<int>(Sci(SCI_CHARPOSITIONFROMPOINT, pixel.x(), pixel.y())));
}

void RichTextBox::ScrollTo(int start, int end) {
    Sci(SCI_SCROLLRANGE, buffer_.ByteFromChar(std::max(end, 0)), buffer_.ByteFromChar(std::max(start, 0)));
}

RichTextBox::PaintHold::PaintHold(RichTextBox& box) : box_(box) {
    box_.editing_.HoldScrolling();
    if (box_.holds_++ == 0)
        box_.setUpdatesEnabled(false);
}

RichTextBox::PaintHold::~PaintHold() {
    box_.editing_.ReleaseScrolling();
    if (--box_.holds_ == 0)
        box_.setUpdatesEnabled(true);
}
