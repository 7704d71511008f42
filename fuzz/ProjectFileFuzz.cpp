// Reads any bytes as a project file: as many lines as there are whole records, and what is saved of them is
// read as the same lines again.
#include "support/FreshUser.h"
#include "tools/projects/ProjectFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <QFile>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

void Put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    Demand(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    [[maybe_unused]] static const bool started = (FreshUser(), true);
    static const QString path = TestFolder() + QStringLiteral("/fuzz.tnw");
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    Put(path, bytes);
    const QStringList lines = LoadProjectFile(path);
    Demand(lines.size() == bytes.size() / ProjectRecordLength);
    for (const QString& line : lines)
        Demand(line.size() == ProjectRecordLength);
    Demand(SaveProjectFile(path, lines));
    Demand(LoadProjectFile(path) == lines);
    return 0;
}
