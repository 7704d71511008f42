#include "app/help/ChmFile.h"

#include <chm_lib.h>
#include <QFile>

namespace {

// No page or picture of a help file comes near; what claims to be larger is damage.
constexpr quint64 largest = 64u << 20;

int TakePath(chmFile*, chmUnitInfo* unit, void* context) {
    static_cast<QStringList*>(context)->append(QString::fromUtf8(unit->path));
    return CHM_ENUMERATOR_CONTINUE;
}

} // namespace

ChmFile::ChmFile(const QString& path) : file_(chm_open(QFile::encodeName(path).constData())) {}

void ChmFile::Closer::operator()(chmFile* file) const {
    chm_close(file);
}

std::optional<QByteArray> ChmFile::Read(const QString& path) const {
    chmUnitInfo unit;
    if (!file_ || chm_resolve_object(file_.get(), path.toUtf8().constData(), &unit) != CHM_RESOLVE_SUCCESS ||
        unit.length > largest)
        return std::nullopt;
    QByteArray bytes(static_cast<qsizetype>(unit.length), Qt::Uninitialized);
    const auto read = chm_retrieve_object(file_.get(), &unit, reinterpret_cast<unsigned char*>(bytes.data()),
                                          0, bytes.size());
    if (read != bytes.size())
        return std::nullopt;
    return bytes;
}

QStringList ChmFile::Paths() const {
    QStringList paths;
    if (file_)
        chm_enumerate(file_.get(), CHM_ENUMERATE_NORMAL | CHM_ENUMERATE_FILES, TakePath, &paths);
    return paths;
}
