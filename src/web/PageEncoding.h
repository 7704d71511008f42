// The encoding of a page's file: found, decoded, and encoded back with nothing lost.
#pragma once

#include "platform/values/TextEncoding.h"

#include <QByteArray>
#include <QString>

/// A page names its encoding by a byte order mark or in a meta tag; one that does neither, and one whose
/// bytes don't fit the name, has code page 1252, which fits any bytes.
class PageEncoding {
  public:
    /// The encoding of these bytes. A page whose document is in UTF-8 is, whatever it names.
    static PageEncoding Of(const QByteArray& bytes, TextEncoding document = TextEncoding::Ascii);

    /// As the web names it, in small letters: "utf-8", "windows-1252".
    const QString& Name() const { return name_; }
    /// The text without the mark.
    QString Decode(const QByteArray& bytes) const;
    /// The bytes, with the mark where the page had one. A character that the encoding lacks becomes its
    /// decimal reference.
    QByteArray Encode(const QString& text) const;

  private:
    PageEncoding(QString name, QByteArray mark) : name_(std::move(name)), mark_(std::move(mark)) {}
    bool Fits(const QByteArray& bytes) const;
    QByteArray EncodePlain(const QString& text) const;
    QString DecodePlain(const QByteArray& bytes) const;
    QString WithReferences(const QString& text) const;

    QString name_;
    QByteArray mark_;
};
