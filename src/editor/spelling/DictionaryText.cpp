#include "editor/spelling/DictionaryText.h"

#include <iconv.h>
#include <QByteArray>

namespace {

constexpr const char* unicode = "UTF-8";

bool IsUnicode(const std::string& encoding) {
    return QByteArray::fromStdString(encoding).compare(unicode, Qt::CaseInsensitive) == 0;
}

/// Dictionaries name the code pages of one maker in a way of their own.
std::string SystemName(const std::string& encoding) {
    const std::string prefix = "microsoft-";
    return encoding.starts_with(prefix) ? encoding.substr(prefix.size()) : encoding;
}

} // namespace

class DictionaryText::Converter {
  public:
    Converter(const std::string& to, const std::string& from)
        : handle_(iconv_open(to.c_str(), from.c_str())) {}
    ~Converter() {
        if (IsOpen())
            iconv_close(handle_);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool IsOpen() const { return handle_ != iconv_t(-1); }

    std::optional<std::string> Convert(std::string in) const {
        // No encoding of dictionaries needs more bytes than this for what another holds in one.
        std::string out(in.size() * 4 + 8, '\0');
        char* from = in.data();
        char* to = out.data();
        std::size_t left = in.size();
        std::size_t room = out.size();
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        if (iconv(handle_, &from, &left, &to, &room) == static_cast<std::size_t>(-1))
            return std::nullopt;
        out.resize(out.size() - room);
        return out;
    }

  private:
    iconv_t handle_;
};

DictionaryText::DictionaryText() = default;
DictionaryText::~DictionaryText() = default;

std::unique_ptr<DictionaryText> DictionaryText::For(const std::string& encoding) {
    std::unique_ptr<DictionaryText> text(new DictionaryText);
    if (IsUnicode(encoding))
        return text;
    text->to_ = std::make_unique<Converter>(SystemName(encoding), unicode);
    text->from_ = std::make_unique<Converter>(unicode, SystemName(encoding));
    return text->to_->IsOpen() && text->from_->IsOpen() ? std::move(text) : nullptr;
}

std::optional<std::string> DictionaryText::Encoded(const QString& word) const {
    const std::string bytes = word.toStdString();
    return to_ ? to_->Convert(bytes) : std::optional(bytes);
}

QString DictionaryText::Decoded(const std::string& word) const {
    return QString::fromStdString(from_ ? from_->Convert(word).value_or(std::string()) : word);
}
