// Coloured pieces of text on their way into a control.
#pragma once

#include <QString>

/// One for all document windows. Pieces are gathered until somebody takes them as one RTF document.
class ColorStream {
  public:
    /// The pieces gathered so far.
    const QString& RtfBuffer() const { return buffer_; }
    /// While true every piece goes straight into the control.
    bool RtfFlushNow() const { return flushNow_; }

    void Hold() { flushNow_ = false; }
    /// Stays so when the stream is taken, until somebody holds it.
    void LetThrough() { flushNow_ = true; }

    /// Puts a piece at the end: its colour word, then the text with "\par " for each CR LF.
    void Gather(QStringView text, QStringView colorWord);
    /// The same for a text whose line ends are "\par " already.
    void Add(QStringView rtf, QStringView colorWord);
    /// Makes room for that many characters more.
    void Reserve(qsizetype more) { buffer_.reserve(buffer_.size() + more); }
    void Reset() { buffer_ = QString(); }
    /// The pieces as one RTF document behind its header. None are left.
    QString TakeDocument(QStringView header);

  private:
    QString buffer_;
    bool flushNow_ = false;
};

/// A text with "\par " for each CR LF.
QString WithParagraphs(QStringView text);
