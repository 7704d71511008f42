#include "styles/sheet/SheetBox.h"

#include <QScrollBar>

QString SheetBox::Text() const {
    // The raw text: the plain one turns blanks that don't break into common ones.
    QString text = document()->toRawText();
    for (const auto lineEnd : {QChar::ParagraphSeparator, QChar::LineSeparator})
        text.replace(QChar(lineEnd), u'\n');
    return text.replace(u'\n', QStringLiteral("\r\n"));
}

void SheetBox::AppendLine(const QString& line) {
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(line + u'\n');
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}
