// A page's source text, and how a page edited as it looks becomes source again.
#pragma once

#include "web/PageEncoding.h"

/// What the engine knows of an edited page is its tree. The source that can be kept is kept: all up to the
/// body's start tag and all from its end tag on, the doctype, the head and the spelling of its tags included.
class PageSource {
  public:
    explicit PageSource(const QByteArray& bytes, TextEncoding document = TextEncoding::Ascii);

    const QByteArray& Bytes() const { return bytes_; }
    const QString& Text() const { return text_; }
    /// Where the body's content begins and ends in Text(). Begin is -1 for a page whose body has no start tag
    /// of its own, or has something before it that belongs into the body.
    qsizetype BodyBegin() const { return bodyBegin_; }
    qsizetype BodyEnd() const { return bodyEnd_; }

    /// The file's bytes with other content of the body; line ends become the file's own.
    QByteArray WithBody(const QString& body) const;
    /// The file's bytes with all from the html tag on replaced; what stood before that, the doctype, is kept.
    QByteArray WithDocument(const QString& html) const;

  private:
    void FindBody();
    QString OwnLineEnds(QString text) const;

    QByteArray bytes_;
    PageEncoding encoding_;
    QString text_;
    qsizetype bodyBegin_ = -1;
    qsizetype bodyEnd_ = -1;
};
