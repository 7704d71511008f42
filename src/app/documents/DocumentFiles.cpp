#include "app/documents/DocumentFiles.h"

#include "platform/store/WholeFile.h"
#include "platform/values/Cp1252.h"
#include "platform/values/Values.h"

namespace DocumentFiles {

namespace {

constexpr char endOfText = 26;

} // namespace

std::optional<QString> ReadUpToEndOfText(const QString& path) {
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    if (!bytes)
        return std::nullopt;
    const qsizetype end = bytes->indexOf(endOfText);
    return Cp1252::FromBytes(QByteArrayView(*bytes).first(end < 0 ? bytes->size() : end));
}

std::optional<QString> ReadInOneGo(const QString& path) {
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    if (!bytes || bytes->contains(endOfText))
        return std::nullopt;
    return Cp1252::FromBytes(*bytes);
}

bool Save(const QString& path, const QString& text) {
    QByteArray bytes = Cp1252::ToBytes(Values::Trim(text));
    bytes += "\r\n";
    return WholeFile::Write(path, bytes);
}

} // namespace DocumentFiles
