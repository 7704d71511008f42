// Words in the encoding of a dictionary, and back.
#pragma once

#include <memory>
#include <optional>
#include <QString>
#include <string>

class DictionaryText {
  public:
    /// Nothing where the encoding ("UTF-8", "ISO8859-2", "microsoft-cp1251") is unknown.
    static std::unique_ptr<DictionaryText> For(const std::string& encoding);
    ~DictionaryText();
    DictionaryText(const DictionaryText&) = delete;
    DictionaryText& operator=(const DictionaryText&) = delete;

    /// Nothing for a word with a letter that the encoding does not have.
    std::optional<std::string> Encoded(const QString& word) const;
    QString Decoded(const std::string& word) const;

  private:
    DictionaryText();

    class Converter;
    std::unique_ptr<Converter> to_;
    std::unique_ptr<Converter> from_;
};
