#include "app/recovery/RunCopies.h"

#include "app/recovery/RecoveryFolder.h"
#include "platform/store/ProcessLock.h"
#include "platform/values/Path.h"

#include <map>
#include <QDir>
#include <QRandomGenerator>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString NewName() {
    return u"run-%1"_s.arg(QRandomGenerator::system()->generate64(), 16, 16, QChar(u'0'));
}

/// A file of a run: its lock, which has no number, or one of its copies.
struct RunFile {
    QString run;
    int number = 0;
    QString path;
};

std::vector<RunFile> FilesLike(const QString& pattern) {
    static const QRegularExpression form(u"\\A(run-[0-9a-f]{16})(?:\\.lock|-([1-9][0-9]{0,8})\\.copy)\\z"_s);
    const QString folder = RecoveryFolder();
    std::vector<RunFile> files;
    for (const QString& name : QDir(folder).entryList({pattern}, QDir::Files))
        if (const auto match = form.match(name); match.hasMatch())
            files.push_back({match.captured(1), match.captured(2).toInt(), Path::Join(folder, name)});
    return files;
}

/// The copies of a run by their numbers.
std::map<int, QString> CopiesOf(const QString& base) {
    std::map<int, QString> copies;
    for (const RunFile& file : FilesLike(Path::FileName(base) + u"-*.copy"_s))
        copies[file.number] = file.path;
    return copies;
}

} // namespace

RunCopies::RunCopies(QString base, std::unique_ptr<ProcessLock> lock)
    : base_(std::move(base)), lock_(std::move(lock)) {
    // Looked for under the lock: whoever had it before may have taken some away since they were seen.
    if (const auto copies = CopiesOf(base_); !copies.empty())
        last_ = copies.rbegin()->first;
}

RunCopies::~RunCopies() = default;

std::shared_ptr<RunCopies> RunCopies::Take(const QString& base) {
    auto lock = ProcessLock::Take(base + u".lock"_s);
    if (!lock)
        return nullptr;
    return std::shared_ptr<RunCopies>(new RunCopies(base, std::move(lock)));
}

std::shared_ptr<RunCopies> RunCopies::Begin() {
    return Take(Path::Join(MakeRecoveryFolder(), NewName()));
}

std::vector<std::shared_ptr<RunCopies>> RunCopies::TakeLeft() {
    std::map<QString, QString> runs;
    for (const RunFile& file : FilesLike(u"run-*"_s))
        runs[file.run] = Path::Folder(file.path) + file.run;
    std::vector<std::shared_ptr<RunCopies>> left;
    for (const auto& [name, base] : runs)
        // One that is over and left nothing but its lock goes with it.
        if (auto run = Take(base); run && run->last_ > 0)
            left.push_back(std::move(run));
    return left;
}

QString RunCopies::NewFile() {
    return base_ + u"-%1.copy"_s.arg(++last_);
}

QStringList RunCopies::Files() const {
    QStringList paths;
    for (const auto& [number, path] : CopiesOf(base_))
        paths << path;
    return paths;
}
