#include "editor/frame/TellFailedSave.h"

#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/values/Path.h"

namespace {

void Tell(Frame& frame, const QString& what, const QString& reason) {
    if (frame.Store().ReadFlag(Keys::TellFailedSaves))
        frame.ShowNotice(QStringLiteral("Could not save %1: %2").arg(what, reason));
}

} // namespace

void TellFailedSave(Frame& frame, const QString& path, const QString& reason) {
    Tell(frame, Path::FileName(path), reason);
}

void FailedSaves::Add(const QString& path, const QString& why) {
    if (++count == 1) {
        first = path;
        reason = why;
    }
}

void TellFailedSaves(Frame& frame, const FailedSaves& failed) {
    if (failed.count == 1)
        TellFailedSave(frame, failed.first, failed.reason);
    else if (failed.count > 1)
        Tell(frame,
             QStringLiteral("%1 files, the first %2")
                 .arg(QString::number(failed.count), Path::FileName(failed.first)),
             failed.reason);
}
