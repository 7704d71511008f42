// The box of the complete style sheet.
#pragma once

#include <QPlainTextEdit>

class SheetBox final : public QPlainTextEdit {
    Q_OBJECT

  public:
    using QPlainTextEdit::QPlainTextEdit;

    /// The text with CR LF at each line's end.
    QString Text() const;
    /// Puts a line at the text's end.
    void AppendLine(const QString& line);
};
