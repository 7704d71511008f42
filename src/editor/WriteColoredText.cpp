// The one routine through which every coloured piece of text goes, and the rule that picks a tag's colour.
#include "editor/WriteColoredText.h"

#include "editor/Document.h"
#include "editor/EditorState.h"
#include "editor/Frame.h"
#include "platform/RichTextBox.h"
#include "platform/Settings.h"

#include <QVarLengthArray>
#include <string_view>
#include <utility>

namespace {

struct ColorRule {
    std::string_view found;
    const char* word;
};

// The first hit decides, wherever in the tag it stands: no tag name is parsed.
constexpr ColorRule rules[] = {
    {"embed", "\\cf5 "},  {"img", "\\cf4 "}, {"href", "\\cf3 "}, {"meta", "\\cf6 "},
    {"a name", "\\cf3 "}, {"/a", "\\cf3 "},  {"!--", "\\cf6 "},
};

/// Puts a backslash before every such character. One pass however many there are: replacing them in place
/// would move the rest of the text again and again, and a script is made of braces.
void Escape(QString& text, QChar character) {
    // Mostly there is none, and a look for one is many times as fast as a count.
    if (!text.contains(character))
        return;
    QString escaped(text.size() + text.count(character), Qt::Uninitialized);
    QChar* to = escaped.data();
    for (const QChar c : std::as_const(text)) {
        if (c == character)
            *to++ = u'\\';
        *to++ = c;
    }
    text = std::move(escaped);
}

void Flush(Frame& frame, EditorState& state, RichTextBox& txtInput) {
    QString rtf = RtfHeader(frame);
    rtf.reserve(rtf.size() + state.RtfBuffer.size() + 1);
    rtf += state.RtfBuffer;
    rtf += QLatin1Char('}');
    // A page of many megabytes stands in both now: let go of the one that is done with.
    state.RtfBuffer = QString();
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
    for (const QString& entry : frame.State<EditorState>().ColorTable) {
        header += entry;
        header += QLatin1Char(';');
    }
    return header + QLatin1Char('}');
}

QString TagColorCode(QStringView tag) {
    // No character outside ASCII has a lower form within it, so bytes are enough to search in.
    QVarLengthArray<char, 512> lower(tag.size());
    for (qsizetype i = 0; i < tag.size(); ++i) {
        const char16_t c = tag[i].unicode();
        lower[i] = c >= u'A' && c <= u'Z' ? static_cast<char>(c + 32)
                   : c < 128              ? static_cast<char>(c)
                                          : '\x80';
    }
    const std::string_view text(lower.constData(), static_cast<size_t>(lower.size()));
    for (const ColorRule& rule : rules) {
        if (text.find(rule.found) != std::string_view::npos)
            return QString::fromLatin1(rule.word);
    }
    return QStringLiteral("\\cf2 ");
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

void GatherPiece(QString& buffer, QStringView text, QStringView colorWord) {
    buffer += colorWord;
    qsizetype done = 0;
    for (qsizetype end = text.indexOf(u'\r'); end >= 0; end = text.indexOf(u'\r', end + 1)) {
        if (end + 1 == text.size() || text[end + 1] != u'\n')
            continue;
        buffer += text.sliced(done, end - done);
        buffer += QLatin1StringView("\\par ");
        done = end + 2;
    }
    buffer += text.sliced(done);
}

void WriteColoredText(Frame& frame, QString& text, const QString& colorWord, bool resetOnly) {
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    WriteColoredText(frame, *document, text, colorWord, resetOnly);
}

void WriteColoredText(Frame& frame, Document& document, QString& text, const QString& colorWord,
                      bool resetOnly) {
    if (frame.Store().ReadNumber(Keys::ColoredTags) == 0) {
        document.txtInput().SetSelText(text);
        return;
    }
    auto& state = frame.State<EditorState>();
    if (resetOnly) {
        state.RtfBuffer = QString();
        return;
    }
    QString rtf;
    GatherPiece(rtf, text, {});
    text = std::move(rtf);
    state.RtfBuffer += colorWord;
    state.RtfBuffer += text;
    if (state.RtfFlushNow)
        Flush(frame, state, document.txtInput());
}
