// The one routine through which every coloured piece of text goes, and the rule that picks a tag's colour.
#include "editor/WriteColoredText.h"

#include "editor/Document.h"
#include "editor/EditorState.h"
#include "editor/Frame.h"
#include "platform/RichTextBox.h"
#include "platform/Settings.h"

namespace {

struct ColorRule {
    QLatin1StringView found;
    QLatin1StringView word;
};

// The first hit decides, wherever in the tag it stands: no tag name is parsed.
constexpr ColorRule rules[] = {
    {QLatin1StringView("embed"), QLatin1StringView("\\cf5 ")},
    {QLatin1StringView("img"), QLatin1StringView("\\cf4 ")},
    {QLatin1StringView("href"), QLatin1StringView("\\cf3 ")},
    {QLatin1StringView("meta"), QLatin1StringView("\\cf6 ")},
    {QLatin1StringView("a name"), QLatin1StringView("\\cf3 ")},
    {QLatin1StringView("/a"), QLatin1StringView("\\cf3 ")},
    {QLatin1StringView("!--"), QLatin1StringView("\\cf6 ")},
};

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
    const QString lower = tag.toString().toLower();
    for (const ColorRule& rule : rules) {
        if (lower.contains(rule.found))
            return QString(rule.word);
    }
    return QStringLiteral("\\cf2 ");
}

void EscapeBackslashes(QString& text) {
    text.replace(QStringLiteral("\\"), QStringLiteral("\\\\"));
}

void EscapeOpenBraces(QString& text) {
    text.replace(QStringLiteral("{"), QStringLiteral("\\{"));
}

void EscapeCloseBraces(QString& text) {
    text.replace(QStringLiteral("}"), QStringLiteral("\\}"));
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
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\\par "));
    state.RtfBuffer += colorWord;
    state.RtfBuffer += text;
    if (state.RtfFlushNow)
        Flush(frame, state, document.txtInput());
}
