// The text control of a document: its text, its selection and what it looks like.
#include "platform/RichTextBox.h"

#include "platform/RichTextAccessible.h"
#include "platform/UndoAction.h"

#include <algorithm>
#include <QPalette>

namespace {

/// How many stretches of text the base class keeps the measures of: the words of a page of some megabytes.
constexpr int stretchesRemembered = 1 << 16;

} // namespace

RichTextBox::RichTextBox(QWidget* parent)
    : QsciScintillaBase(parent), font_(QStringLiteral("Arial"), 10),
#ifdef Q_OS_WIN
      rawLineEnds_(RawLineEnds::Skip)
#else
      rawLineEnds_(RawLineEnds::Keep)
#endif
{
    // Found before that of the base class, since it goes by the name of the derived class.
    RichTextAccessible::Install();
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
    Sci(SCI_SETCODEPAGE, SC_CP_UTF8);
    Sci(SCI_ALLOCATELINECHARACTERINDEX, SC_LINECHARACTERINDEX_UTF32);
    Sci(SCI_SETMODEVENTMASK, SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE);
    Sci(SCI_CLEARALLCMDKEYS);
    Sci(SCI_USEPOPUP, 0);
    Sci(SCI_SETMULTIPLESELECTION, 0);
    Sci(SCI_SETMOUSESELECTIONRECTANGULARSWITCH, 0);
    // A pressed button holds the mouse by itself; to grab it besides is refused by some desktops.
    Sci(SCI_SETMOUSEDOWNCAPTURES, 0);
    Sci(SCI_SETMARGINS, 0);
    Sci(SCI_SETWRAPMODE, SC_WRAP_WORD);
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
    const double points = font_.pointSizeF() > 0 ? font_.pointSizeF() : 10;
    Sci(SCI_STYLESETSIZEFRACTIONAL, STYLE_DEFAULT, qRound(points * int{SC_FONT_SIZE_MULTIPLIER}));
    Sci(SCI_STYLESETWEIGHT, STYLE_DEFAULT, font_.bold() ? SC_WEIGHT_BOLD : SC_WEIGHT_NORMAL);
    Sci(SCI_STYLESETITALIC, STYLE_DEFAULT, font_.italic());
    Sci(SCI_STYLESETUNDERLINE, STYLE_DEFAULT, font_.underline());
    Sci(SCI_STYLESETFORE, STYLE_DEFAULT, 0);
    Sci(SCI_STYLESETBACK, STYLE_DEFAULT, backColor_);
    Sci(SCI_STYLECLEARALL);
    for (int style = 1; style < styles_.End(); ++style)
        ShowStyle(style);
    Sci(SCI_SETCARETFORE, qGray(ToQColor(backColor_).rgb()) < 128 ? 0xffffff : 0);
}

void RichTextBox::ApplyPalette() {
    SendScintilla(SCI_SETSELBACK, 1UL, palette().color(QPalette::Active, QPalette::Highlight));
    SendScintilla(SCI_SETSELFORE, 1UL, palette().color(QPalette::Active, QPalette::HighlightedText));
}

QString RichTextBox::Text() const {
    return TextOf({0, ByteLength()});
}

void RichTextBox::SetText(const QString& text) {
    const Settling settling(*this);
    const int style = StyleAtCaret();
    const QByteArray bytes = text.toUtf8();
    Replace({0, ByteLength()}, bytes, StyleRuns(static_cast<int>(bytes.size()), style));
    GoToStart();
}

void RichTextBox::GoToStart() {
    MoveCaret(0);
    caretMovedByEdit_ = false;
}

QString RichTextBox::TextRange(int start, int length) const {
    const int all = TextLength();
    const int from = std::clamp(start, 0, all);
    const int to = static_cast<int>(std::clamp<qint64>(qint64{start} + length, from, all));
    return TextOf({ByteFromChar(from), ByteFromChar(to)});
}

QChar RichTextBox::CharAt(int position) const {
    if (position < 0 || position >= TextLength())
        return QChar();
    const int byte = ByteFromChar(position);
    const QString one = TextOf({byte, static_cast<int>(Sci(SCI_POSITIONRELATIVE, byte, 1))});
    return one.isEmpty() ? QChar() : one[0];
}

ColorNumber RichTextBox::ColorAt(int position) const {
    if (position < 0 || position >= TextLength())
        return -1;
    return styles_.ColorOf(StyleAt(ByteFromChar(position)));
}

int RichTextBox::SelStart() const {
    return CharFromByte(Selection().start);
}

void RichTextBox::SetSelStart(int position) {
    if (position < 0)
        return;
    const Settling settling(*this);
    MoveCaret(ByteFromChar(std::min(position, TextLength())));
}

int RichTextBox::SelLength() const {
    const ByteRange range = Selection();
    return range.Empty() ? 0 : CharFromByte(range.end) - CharFromByte(range.start);
}

void RichTextBox::SetSelLength(int length) {
    if (length < 0)
        return;
    const Settling settling(*this);
    const int start = Selection().start;
    const qint64 end = qint64{CharFromByte(start)} + length;
    Select(start, ByteFromChar(static_cast<int>(std::min<qint64>(end, TextLength()))));
}

QString RichTextBox::SelText() const {
    return TextOf(Selection());
}

void RichTextBox::SetSelText(const QString& text) {
    const Settling settling(*this);
    ReplaceSelection(text.toUtf8());
}

ColorNumber RichTextBox::SelColor() const {
    return styles_.ColorOf(StyleAtCaret());
}

void RichTextBox::SetSelColor(ColorNumber color) {
    const Settling settling(*this);
    const int style = StyleFor(color);
    const ByteRange range = Selection();
    if (range.Empty()) {
        typingStyle_ = style;
        typingCaret_ = range.start;
    } else {
        SetStyles(range.start, StyleRuns(range.end - range.start, style));
        changed_ = true;
    }
}

int RichTextBox::RightMargin() const {
    return rightMargin_;
}

void RichTextBox::SetRightMargin(int twips) {
    rightMargin_ = twips;
    Sci(SCI_SETWRAPMODE, twips == 0 ? SC_WRAP_WORD : SC_WRAP_NONE);
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
    return static_cast<int>(Sci(SCI_LINEFROMPOSITION, ByteFromChar(std::clamp(position, 0, TextLength()))));
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
        Cut();
        break;
    case Message::Copy:
        Sci(SCI_COPY);
        break;
    case Message::Paste:
        Paste();
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
    undoColors_.Clear();
}

QString RichTextBox::LineEnd() const {
    if (Sci(SCI_GETLINECOUNT) < 2)
        return QStringLiteral("\r\n");
    return TextOf(
        {static_cast<int>(Sci(SCI_GETLINEENDPOSITION, 0)), static_cast<int>(Sci(SCI_POSITIONFROMLINE, 1))});
}

int RichTextBox::LineHeight() const {
    return static_cast<int>(Sci(SCI_TEXTHEIGHT, 0));
}

RichTextBox::PaintHold::PaintHold(RichTextBox& box) : box_(box) {
    if (box_.holds_++ == 0)
        box_.setUpdatesEnabled(false);
}

RichTextBox::PaintHold::~PaintHold() {
    if (--box_.holds_ > 0)
        return;
    if (std::exchange(box_.caretMovedInHold_, false))
        box_.ShowCaret();
    box_.setUpdatesEnabled(true);
}

void RichTextBox::Replace(ByteRange range, const QByteArray& text, const StyleRuns& styles) {
    if (range.Empty() && text.isEmpty())
        return;
    TakeIncoming();
    {
        const UndoAction step(*this);
        if (!text.isEmpty())
            nextStyles_ = styles;
        Sci(SCI_SETTARGETRANGE, range.start, range.end);
        SendScintilla(SCI_REPLACETARGET, static_cast<unsigned long>(text.size()), text.constData());
    }
    TakeIncoming();
    MoveCaret(range.start + static_cast<int>(text.size()));
}

void RichTextBox::ReplaceSelection(const QByteArray& text) {
    Replace(Selection(), text, StyleRuns(static_cast<int>(text.size()), StyleAtCaret()));
}
