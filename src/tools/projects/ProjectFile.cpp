#include "tools/projects/ProjectFile.h"

#include "platform/store/ProgramFolder.h"
#include "platform/store/WholeFile.h"
#include "platform/values/Cp1252.h"

#include <algorithm>
#include <QByteArray>
#include <QStringDecoder>

namespace {

QString WithoutPadding(QString line) {
    while (line.endsWith(u' '))
        line.chop(1);
    return line;
}

/// The longest beginning that fits into a record and ends with a whole character.
QByteArray CutToRecord(QByteArray utf8) {
    qsizetype length = std::min<qsizetype>(utf8.size(), ProjectRecordLength);
    while (length < utf8.size() && (utf8[length] & 0xC0) == 0x80)
        --length;
    return utf8.first(length);
}

/// A path is written with a byte a character. One that has other characters could not be found again without
/// them, so it is written in UTF-8.
QByteArray RecordOf(const QString& line) {
    const QString path = WithoutPadding(line);
    const QByteArray bytes = Cp1252::Holds(path) ? Cp1252::ToBytes(path) : CutToRecord(path.toUtf8());
    return bytes.leftJustified(ProjectRecordLength, ' ', true);
}

/// UTF-8 is known by the characters that it is there for.
QString LineOf(QByteArrayView record) {
    QStringDecoder decode(QStringDecoder::Utf8,
                          QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decode(record);
    const QString line = decode.hasError() || Cp1252::Holds(text) ? Cp1252::FromBytes(record) : text;
    return line.leftJustified(ProjectRecordLength);
}

} // namespace

QString ProjectPath(const QString& name) {
    return name.isEmpty() ? QString() : InProgramFolder(name + QStringLiteral(".tnw"));
}

QStringList LoadProjectFile(const QString& path) {
    const qint64 size = WholeFile::Size(path);
    if (size < 0)
        WholeFile::Write(path, {});
    if (size / ProjectRecordLength > MaxProjectRecords)
        return {};
    const QByteArray records = WholeFile::Read(path).value_or(QByteArray());
    QStringList lines;
    for (qsizetype at = 0; at + ProjectRecordLength <= records.size(); at += ProjectRecordLength)
        lines << LineOf(QByteArrayView(records).sliced(at, ProjectRecordLength));
    return lines;
}

bool SaveProjectFile(const QString& path, const QStringList& lines) {
    if (WholeFile::Size(path) < 0)
        return false;
    QByteArray records;
    records.reserve(lines.size() * ProjectRecordLength);
    for (const QString& line : lines.first(std::min<qsizetype>(lines.size(), MaxProjectRecords)))
        records += RecordOf(line);
    return WholeFile::Write(path, records);
}
