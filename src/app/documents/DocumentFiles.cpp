#include "app/documents/DocumentFiles.h"

#include "editor/frame/Document.h"
#include "platform/store/Settings.h"
#include "platform/store/WholeFile.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/Utf8.h"
#include "platform/values/Values.h"

namespace DocumentFiles {

namespace {

constexpr char endOfText = 26;

FileText TextOf(const Settings& store, QByteArrayView bytes) {
    const TextEncoding encoding =
        store.ReadFlag(Keys::Utf8Pages) ? EncodingOf(bytes) : TextEncoding::CodePage1252;
    return {.text = Decode(bytes, encoding), .encoding = encoding, .mark = {}};
}

bool MarksAreAskedFor(const Settings& store) {
    return store.ReadFlag(Keys::AskBeforeOverwrite) || store.ReadFlag(Keys::TellChangedFiles);
}

FileMark MarkOf(const Settings& store, const FileStatus& status, QByteArrayView bytes) {
    return MarksAreAskedFor(store) ? FileMark(status, bytes) : FileMark();
}

/// With the pages of UTF-8 turned off no document becomes one; one that is open already stays what it is.
TextEncoding EncodingFor(const Settings& store, TextEncoding encoding, const QString& text) {
    if (store.ReadFlag(Keys::Utf8Pages))
        return EncodingToSave(encoding, text);
    return IsUtf8(encoding) ? encoding : TextEncoding::CodePage1252;
}

} // namespace

std::optional<FileText> ReadUpToEndOfText(const Settings& store, const QString& path) {
    // First, so that what is written meanwhile shows as a change.
    const FileStatus status = FileStatus::Of(path);
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    if (!bytes)
        return std::nullopt;
    const qsizetype end = bytes->indexOf(endOfText);
    FileText file = TextOf(store, QByteArrayView(*bytes).first(end < 0 ? bytes->size() : end));
    file.mark = MarkOf(store, status, *bytes);
    file.part = end < 0 ? ReadPart::Whole : ReadPart::UpToEndOfText;
    return file;
}

std::optional<FileText> ReadInOneGo(const Settings& store, const QString& path) {
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    if (!bytes || bytes->contains(endOfText))
        return std::nullopt;
    return TextOf(store, *bytes);
}

FileText ReadOrNothing(const Settings& store, const QString& path) {
    const FileStatus status = FileStatus::Of(path);
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    FileText file;
    if (bytes && !bytes->contains(endOfText))
        file = TextOf(store, *bytes);
    else
        file.part = bytes ? ReadPart::NothingForEndOfText : ReadPart::Nothing;
    if (bytes)
        file.mark = MarkOf(store, status, *bytes);
    return file;
}

void TakeAsKnown(const Settings& store, const QString& path, Document& document) {
    document.OnDisk() = {.mark = MarksAreAskedFor(store) ? FileMark::Of(path) : FileMark(), .told = {}};
}

WriteResult Save(const Settings& store, const QString& path, Document& document) {
    const QString text = Values::Trim(document.txtInput().Text());
    const TextEncoding encoding = EncodingFor(store, document.Encoding(), text);
    const QByteArray bytes = Encode(text, encoding) + "\r\n";
    const WriteResult written = WholeFile::Write(path, bytes);
    if (!written)
        return written;
    document.OnDisk() = {.mark = MarkOf(store, FileStatus::Of(path), bytes), .told = {}};
    document.SetEncoding(encoding);
    document.SetModified(false);
    return written;
}

void SuitEncoding(const Settings& store, Document& document, const QString& text) {
    const TextEncoding suiting = EncodingFor(store, document.Encoding(), text);
    if (document.Encoding() == TextEncoding::Ascii && IsUtf8(suiting))
        document.SetEncoding(suiting);
}

KeptText Keep(Document& document) {
    const KnownFile& file = document.OnDisk();
    return {document.txtInput().Utf8Text(), document.Encoding(), file.mark, file.wasReadWhole};
}

FileText TakeBack(const KeptText& kept) {
    return {.text = Utf8::ToText(kept.utf8),
            .encoding = kept.encoding,
            .mark = kept.mark,
            .part = kept.wasReadWhole ? ReadPart::Whole : ReadPart::UpToEndOfText};
}

KeptText KeepBytes(const Settings& store, QByteArrayView bytes) {
    const FileText file = TextOf(store, bytes);
    return {.utf8 = file.text.toUtf8(), .encoding = file.encoding, .mark = {}};
}

} // namespace DocumentFiles
