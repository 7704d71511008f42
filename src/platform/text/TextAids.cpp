#include "platform/text/TextAids.h"

#include <algorithm>
#include <QByteArray>
#include <QColor>
#include <Qsci/qsciscintillabase.h>

namespace {

using Control = QsciScintillaBase;

// A mark is a ground and, since that must be faint for the text on it, a line at its foot.
constexpr int mark = Control::INDIC_CONTAINER;
constexpr int markFoot = mark + 1;
constexpr int numberMargin = 0;

// How far what is drawn stands out from the background, in percent. Dark needs more to be seen.
constexpr int lineOnLight = 6;
constexpr int lineOnDark = 12;
constexpr int marginBack = 4;
constexpr int marginText = 55;
constexpr int footLine = 65;
// How much the ground of a mark hides of what it is drawn on, of 255.
constexpr int markGround = 26;

constexpr int fewestDigits = 3;

bool IsDark(ColorNumber color) {
    return qGray(ToQColor(color).rgb()) < 128;
}

int DigitsOf(int number) {
    int digits = 1;
    for (; number >= 10; number /= 10)
        ++digits;
    return digits;
}

} // namespace

ColorNumber AwayFrom(ColorNumber background, int percent) {
    const int goal = IsDark(background) ? 255 : 0;
    const auto part = [&](int from) { return from + (goal - from) * percent / 100; };
    const auto [red, green, blue] = PartsOf(background);
    return part(red) | part(green) << 8 | part(blue) << 16;
}

long TextAids::Sci(unsigned int message, long wParam, long lParam) const {
    return control_.SendScintilla(message, static_cast<unsigned long>(wParam), lParam);
}

void TextAids::ShowCurrentLine(bool on) {
    Sci(Control::SCI_SETCARETLINEVISIBLE, on);
}

void TextAids::ShowLineNumbers(bool on) {
    numbers_ = on;
    digits_ = 0;
    if (on) {
        Sci(Control::SCI_SETMARGINS, 1);
        Sci(Control::SCI_SETMARGINTYPEN, numberMargin, Control::SC_MARGIN_NUMBER);
        SuitLength();
    } else {
        // The control makes room for the text at once where a width changes, but not where a margin goes.
        Sci(Control::SCI_SETMARGINWIDTHN, numberMargin, 0);
        Sci(Control::SCI_SETMARGINS, 0);
    }
}

void TextAids::SuitLength() {
    if (!numbers_)
        return;
    const int digits = std::max(DigitsOf(buffer_.LineCount()), fewestDigits);
    if (digits == digits_)
        return;
    digits_ = digits;
    // One more for the distance to the text.
    const QByteArray widest(digits + 1, '9');
    const long width =
        control_.SendScintilla(Control::SCI_TEXTWIDTH, Control::STYLE_LINENUMBER, widest.constData());
    Sci(Control::SCI_SETMARGINWIDTHN, numberMargin, width);
}

void TextAids::SuitLook(ColorNumber background) {
    Sci(Control::SCI_SETCARETLINEBACK, AwayFrom(background, IsDark(background) ? lineOnDark : lineOnLight));
    Sci(Control::SCI_INDICSETSTYLE, mark, Control::INDIC_FULLBOX);
    Sci(Control::SCI_INDICSETUNDER, mark, 1);
    Sci(Control::SCI_INDICSETFORE, mark, AwayFrom(background, 100));
    Sci(Control::SCI_INDICSETALPHA, mark, markGround);
    Sci(Control::SCI_INDICSETOUTLINEALPHA, mark, markGround);
    Sci(Control::SCI_INDICSETSTYLE, markFoot, Control::INDIC_COMPOSITIONTHIN);
    Sci(Control::SCI_INDICSETUNDER, markFoot, 1);
    Sci(Control::SCI_INDICSETFORE, markFoot, AwayFrom(background, footLine));
    Sci(Control::SCI_STYLESETBACK, Control::STYLE_LINENUMBER, AwayFrom(background, marginBack));
    Sci(Control::SCI_STYLESETFORE, Control::STYLE_LINENUMBER, AwayFrom(background, marginText));
    digits_ = 0;
    SuitLength();
}

void TextAids::Mark(std::span<const CharRange> stretches) {
    Unmark();
    for (const int indicator : {mark, markFoot}) {
        Sci(Control::SCI_SETINDICATORCURRENT, indicator);
        for (const CharRange& stretch : stretches) {
            const ByteRange range = buffer_.FromChars(stretch.start, stretch.end);
            Sci(Control::SCI_INDICATORFILLRANGE, range.start, range.Length());
        }
    }
}

bool TextAids::IsMarked(int position) const {
    return position >= 0 && position < buffer_.Length() &&
           Sci(Control::SCI_INDICATORVALUEAT, mark, buffer_.ByteFromChar(position)) != 0;
}

void TextAids::Unmark() {
    UnmarkFrom(0);
}

void TextAids::UnmarkInView() {
    const long top = Sci(Control::SCI_DOCLINEFROMVISIBLE, Sci(Control::SCI_GETFIRSTVISIBLELINE));
    UnmarkFrom(buffer_.LineStart(static_cast<int>(top)));
}

void TextAids::UnmarkFrom(int byte) {
    for (const int indicator : {mark, markFoot}) {
        Sci(Control::SCI_SETINDICATORCURRENT, indicator);
        Sci(Control::SCI_INDICATORCLEARRANGE, byte, buffer_.Bytes() - byte);
    }
}
