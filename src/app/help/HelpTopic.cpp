#include "app/help/HelpTopic.h"

#include "app/help/HelpBook.h"
#include "editor/color/TagEnds.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Frame.h"
#include "platform/text/RichTextBox.h"

#include <QWidget>

namespace {

// No word of a tag is longer.
constexpr int longestWord = 40;

/// The word of the tag around the caret: "<hr>" of <HR SIZE=2>, "<hr>" of </HR> too. Empty outside of tags.
QString TagWordAround(const RichTextBox& text) {
    const TextReader read = ReaderOf(text);
    const auto bracket = BracketBefore(text.SelStart(), read);
    if (!bracket || bracket->kind != Bracket::Open)
        return {};
    const QString tag = read(bracket->place + 1, longestWord);
    const qsizetype start = tag.startsWith(u'/') ? 1 : 0;
    qsizetype end = start;
    while (end < tag.size() && (tag.at(end).isLetterOrNumber() || tag.at(end) == u'!'))
        ++end;
    return u'<' + tag.mid(start, end - start) + u'>';
}

} // namespace

QString HelpTopicOf(Frame& frame, const QWidget* at, const HelpBook& book) {
    const RichTextBox* text = ActiveText(frame);
    for (const QWidget* widget = at; widget; widget = widget->parentWidget()) {
        if (widget == text) {
            const QString page = book.PageOf(TagWordAround(*text));
            return page.isEmpty() ? FirstHelpPage : page;
        }
        const QString page = widget->objectName() + QStringLiteral(".html");
        if (!widget->objectName().isEmpty() && book.Has(page))
            return page;
    }
    return FirstHelpPage;
}
