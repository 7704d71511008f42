#include "platform/text/TextEditing.h"

#include "platform/text/TextColors.h"
#include "platform/text/UndoAction.h"

#include <QMimeData>
#include <Qsci/qsciscintillabase.h>
#include <utility>

namespace {

using Control = QsciScintillaBase;

} // namespace

long TextEditing::Sci(unsigned int message, long wParam, long lParam) const {
    return control_.SendScintilla(message, static_cast<unsigned long>(wParam), lParam);
}

ByteRange TextEditing::Selection() const {
    return {static_cast<int>(Sci(Control::SCI_GETSELECTIONSTART)),
            static_cast<int>(Sci(Control::SCI_GETSELECTIONEND))};
}

int TextEditing::Caret() const {
    return static_cast<int>(Sci(Control::SCI_GETCURRENTPOS));
}

void TextEditing::Select(int anchor, int caret) {
    Sci(Control::SCI_SETEMPTYSELECTION, anchor);
    Sci(Control::SCI_SETCURRENTPOS, caret);
    ShowCaret();
}

void TextEditing::MoveCaret(int byte) {
    Sci(Control::SCI_SETEMPTYSELECTION, byte);
    ShowCaret();
}

void TextEditing::ShowCaret() {
    caretMovedInHold_ = scrollHolds_ > 0;
    if (caretMovedInHold_)
        return;
    Sci(Control::SCI_SCROLLCARET);
    Sci(Control::SCI_CHOOSECARETX);
}

void TextEditing::ReleaseScrolling() {
    if (--scrollHolds_ == 0 && std::exchange(caretMovedInHold_, false))
        ShowCaret();
}

void TextEditing::Replace(ByteRange range, const QByteArray& text, const StyleRuns& styles) {
    if (range.Empty() && text.isEmpty())
        return;
    takeIncoming();
    {
        const UndoAction step(control_);
        if (!text.isEmpty())
            colors_.NextComes(styles);
        Sci(Control::SCI_SETTARGETRANGE, range.start, range.end);
        control_.SendScintilla(Control::SCI_REPLACETARGET, static_cast<unsigned long>(text.size()),
                               text.constData());
    }
    takeIncoming();
    MoveCaret(range.start + static_cast<int>(text.size()));
}

void TextEditing::ReplaceEach(const std::vector<ByteRange>& stretches, const QByteArray& text) {
    if (stretches.empty())
        return;
    const ByteRange whole{stretches.front().start, stretches.back().end};
    QByteArray result;
    StyleRuns styles;
    int kept = whole.start;
    for (const ByteRange& stretch : stretches) {
        result += buffer_.InPlace({kept, stretch.start});
        styles.Append(colors_.StylesOf({kept, stretch.start}));
        result += text;
        styles.Append(static_cast<int>(text.size()), colors_.StyleAt(stretch.start));
        kept = stretch.end;
    }
    Replace(whole, result, styles);
}

void TextEditing::ReplaceSelection(const QByteArray& text) {
    const ByteRange selection = Selection();
    Replace(selection, text, StyleRuns(static_cast<int>(text.size()), colors_.StyleAtCaret(selection)));
}

void TextEditing::Type(const QByteArray& text) {
    const ByteRange selection = Selection();
    if (!selection.Empty()) {
        ReplaceSelection(text);
        return;
    }
    colors_.NextComes(StyleRuns(static_cast<int>(text.size()), colors_.StyleAtCaret(selection)));
    control_.SendScintilla(Control::SCI_ADDTEXT, static_cast<unsigned long>(text.size()), text.constData());
    takeIncoming();
    Sci(Control::SCI_CHOOSECARETX);
}

void TextEditing::EndTyping() {
    const UndoAction step(control_);
}

QByteArray TextEditing::Incorporate(const QString& text) const {
    // In the code page a letter and its accent are one character, which few are apart. Elsewhere what comes
    // in stays as it is.
    QString accepted = holds_ == CharacterSet::Unicode
                           ? text
                           : HeldBy(holds_, text.normalized(QString::NormalizationForm_C));
    accepted.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    accepted.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    const QString end = buffer_.LineEnd();
    if (end != QStringLiteral("\n"))
        accepted.replace(QLatin1Char('\n'), end);
    return accepted.toUtf8();
}

void TextEditing::PasteFrom(const QMimeData* source) {
    if (!source || !source->hasText())
        return;
    ReplaceSelection(Incorporate(source->text()));
    Sci(Control::SCI_SCROLLCARET);
}
