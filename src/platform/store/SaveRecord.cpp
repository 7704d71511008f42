#include "platform/store/SaveRecord.h"

#ifdef Q_OS_UNIX

#include "platform/store/FileCalls.h"
#include "platform/store/InterruptedSave.h"
#include "platform/store/ProgramFolder.h"

#include <filesystem>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <system_error>

namespace {

/// The folder of the records; with a separator at its end.
QByteArray Folder() {
    const QString folder = InProgramFolder(QStringLiteral("saves"));
    QDir().mkdir(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return QFile::encodeName(folder) + '/';
}

/// Whoever settles it may be at work in another folder.
QByteArray Absolute(const QByteArray& path) {
    std::error_code failed;
    const std::filesystem::path full = std::filesystem::absolute(path.toStdString(), failed);
    return failed ? path : QByteArray::fromStdString(full.string());
}

QByteArray NewName() {
    return Folder() + QByteArray::number(QRandomGenerator::system()->generate64(), 16) + ".save";
}

} // namespace

SaveRecord::SaveRecord(const QByteArray& path)
    : path_(Absolute(path)), name_(NewName()), file_(name_, O_RDWR | O_CREAT | O_EXCL, 0600) {}

SaveRecord::~SaveRecord() {
    if (file_.IsOpen() && !isLeft_)
        Calls().unlink(name_.constData());
}

bool SaveRecord::Keep(const QByteArray& content) const {
    // Before it is locked it is anyone's to settle.
    return file_.IsOpen() && file_.Lock() && file_.Write(content);
}

std::unique_ptr<SaveRecord> SaveRecord::OfNewFile(const QByteArray& path) {
    std::unique_ptr<SaveRecord> record(new SaveRecord(path));
    return record->Keep(InterruptedSave::OfNewFile(record->path_, 0).Bytes()) ? std::move(record) : nullptr;
}

std::unique_ptr<SaveRecord> SaveRecord::OfOverwriting(const QByteArray& path, const QByteArray& old,
                                                      QByteArrayView content) {
    std::unique_ptr<SaveRecord> record(new SaveRecord(path));
    const bool kept =
        record->Keep(InterruptedSave::OfOverwriting(record->path_, old, content.toByteArray()).Bytes());
    return kept && record->file_.Flush() && FlushFolderOf(record->name_) ? std::move(record) : nullptr;
}

bool SaveRecord::SetFile(const struct stat& status) {
    // Behind what is there: were it cut short, that would still count.
    return file_.Write(InterruptedSave::OfNewFile(path_, 0).Bytes() +
                       InterruptedSave::OfNewFile(path_, status.st_ino).Bytes());
}

QList<QByteArray> SaveRecord::SettleAll(const QByteArray& path) {
    QList<QByteArray> unsettled;
    const QByteArray folder = Folder();
    for (const QString& entry :
         QDir(QFile::decodeName(folder)).entryList({QStringLiteral("*.save")}, QDir::Files)) {
        const QByteArray name = folder + QFile::encodeName(entry);
        const OpenFile file(name, O_RDONLY | O_NOFOLLOW);
        if (!file.IsOpen() || !file.Lock())
            continue;
        const std::optional<QByteArray> content = file.Read();
        if (!content)
            continue;
        const std::optional<InterruptedSave> save = InterruptedSave::FromBytes(*content);
        // A record that is cut short is older than the first step of its save.
        if (save ? save->Settle() : InterruptedSave::IsBegunBy(*content))
            Calls().unlink(name.constData());
        else if (save && save->Path() == Absolute(path))
            unsettled << name;
    }
    return unsettled;
}

#endif
