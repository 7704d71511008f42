#include "editor/color/WriteColoredText.h"

#include "editor/color/ColoredTags.h"
#include "editor/color/ColorStream.h"
#include "editor/frame/Document.h"
#include "editor/frame/EditorOptions.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace {

struct ColorRule {
    std::string_view found;
    QStringView word;
};

// The first row that is found decides, wherever in the tag it stands: no tag name is parsed.
constexpr ColorRule rules[] = {
    {"embed", u"\\cf5 "},  {"img", u"\\cf4 "}, {"href", u"\\cf3 "}, {"meta", u"\\cf6 "},
    {"a name", u"\\cf3 "}, {"/a", u"\\cf3 "},  {"!--", u"\\cf6 "},
};

/// No character outside ASCII has a lower form within it.
constexpr char16_t Lower(QChar c) {
    const char16_t unit = c.unicode();
    return unit >= u'A' && unit <= u'Z' ? unit + 32 : unit;
}

/// For each ASCII character the rows, one bit each, whose text begins with it: most characters of a tag begin
/// none.
constexpr auto beginnings = [] {
    std::array<unsigned, 128> rows{};
    for (std::size_t row = 0; row < std::size(rules); ++row) {
        for (std::size_t c = 0; c < rows.size(); ++c) {
            if (Lower(static_cast<char16_t>(c)) == static_cast<char16_t>(rules[row].found.front()))
                rows[c] |= 1U << row;
        }
    }
    return rows;
}();

bool StartsWith(QStringView text, std::string_view lower) {
    if (text.size() < static_cast<qsizetype>(lower.size()))
        return false;
    const auto same = [](char a, QChar b) { return static_cast<char16_t>(a) == Lower(b); };
    return std::equal(lower.begin(), lower.end(), text.begin(), same);
}

/// Puts a backslash before every such character. One pass from the end however many there are: replacing them
/// one by one would move the rest of the text again and again, and a script is made of braces.
void Escape(QString& text, QChar character) {
    // Mostly there is none, and a look for one is many times as fast as a count.
    if (!text.contains(character))
        return;
    const qsizetype size = text.size();
    text.resize(size + text.count(character));
    QChar* to = text.data() + text.size();
    const QChar* from = text.constData() + size;
    while (from != to) {
        *--to = *--from;
        if (*from == character)
            *--to = u'\\';
    }
}

void Flush(Frame& frame, ColorStream& stream, RichTextBox& txtInput) {
    const QString rtf = stream.TakeDocument(RtfHeader(frame));
    {
        const RichTextBox::PaintHold hold(txtInput);
        txtInput.SetSelRTF(rtf);
        // What the user types next has the text colour.
        txtInput.SetSelColor(frame.Store().ReadNumber(Keys::TextColor[0]));
    }
    txtInput.SetFocus();
}

} // namespace

QString RtfHeader(Frame& frame) {
    QString header = QStringLiteral("{{\\colortbl ;");
    for (const QString& entry : frame.State<EditorOptions>().ColorTable) {
        header += entry;
        header += QLatin1Char(';');
    }
    return header + QLatin1Char('}');
}

QStringView TagColorCode(QStringView tag) {
    // One walk through the tag for all rows: what is found moves the row that decides up.
    std::size_t row = std::size(rules);
    for (qsizetype i = 0; i < tag.size(); ++i) {
        const char16_t c = tag[i].unicode();
        const unsigned rows = c < beginnings.size() ? beginnings[c] : 0;
        for (std::size_t better = 0; better < row && rows >> better != 0; ++better) {
            if ((rows >> better & 1) != 0 && StartsWith(tag.sliced(i), rules[better].found))
                row = better;
        }
    }
    return row < std::size(rules) ? rules[row].word : QStringView(u"\\cf2 ");
}

void EscapeBackslashes(QString& text) {
    Escape(text, u'\\');
}

void EscapeOpenBraces(QString& text) {
    Escape(text, u'{');
}

void EscapeCloseBraces(QString& text) {
    Escape(text, u'}');
}

QString WriteColoredText(Frame& frame, Document* document, QString text, QStringView colorWord) {
    if (!document)
        return text;
    if (!WritesColored(frame.Store())) {
        document->txtInput().SetSelText(text);
        return text;
    }
    auto& stream = frame.State<ColorStream>();
    text = WithParagraphs(text);
    stream.Add(text, colorWord);
    if (stream.RtfFlushNow())
        Flush(frame, stream, document->txtInput());
    return text;
}

void ResetColoredText(Frame& frame, Document& document) {
    if (WritesColored(frame.Store()))
        frame.State<ColorStream>().Reset();
    else
        document.txtInput().SetSelText(QString());
}
