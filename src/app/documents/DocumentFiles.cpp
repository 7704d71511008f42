#include "app/documents/DocumentFiles.h"

#include "editor/frame/Document.h"
#include "platform/store/Settings.h"
#include "platform/store/WholeFile.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/Values.h"

namespace DocumentFiles {

namespace {

constexpr char endOfText = 26;

FileText TextOf(const Settings& store, QByteArrayView bytes) {
    const TextEncoding encoding =
        store.ReadFlag(Keys::Utf8Pages) ? EncodingOf(bytes) : TextEncoding::CodePage1252;
    return {Decode(bytes, encoding), encoding};
}

/// With the pages of UTF-8 turned off no document becomes one; one that is open already stays what it is.
TextEncoding EncodingFor(const Settings& store, TextEncoding encoding, const QString& text) {
    if (store.ReadFlag(Keys::Utf8Pages))
        return EncodingToSave(encoding, text);
    return IsUtf8(encoding) ? encoding : TextEncoding::CodePage1252;
}

} // namespace

std::optional<FileText> ReadUpToEndOfText(const Settings& store, const QString& path) {
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    if (!bytes)
        return std::nullopt;
    const qsizetype end = bytes->indexOf(endOfText);
    return TextOf(store, QByteArrayView(*bytes).first(end < 0 ? bytes->size() : end));
}

std::optional<FileText> ReadInOneGo(const Settings& store, const QString& path) {
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    if (!bytes || bytes->contains(endOfText))
        return std::nullopt;
    return TextOf(store, *bytes);
}

bool Save(const Settings& store, const QString& path, Document& document) {
    const QString text = Values::Trim(document.txtInput().Text());
    const TextEncoding encoding = EncodingFor(store, document.Encoding(), text);
    if (!WholeFile::Write(path, Encode(text, encoding) + "\r\n"))
        return false;
    document.SetEncoding(encoding);
    document.SetModified(false);
    return true;
}

void SuitEncoding(const Settings& store, Document& document, const QString& text) {
    const TextEncoding suiting = EncodingFor(store, document.Encoding(), text);
    if (document.Encoding() == TextEncoding::Ascii && IsUtf8(suiting))
        document.SetEncoding(suiting);
}

} // namespace DocumentFiles
