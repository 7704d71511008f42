#include "editor/frame/TellFailedSave.h"

#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/values/Path.h"

void TellFailedSave(Frame& frame, const QString& path, const QString& reason) {
    if (frame.Store().ReadFlag(Keys::TellFailedSaves))
        frame.ShowNotice(QStringLiteral("Could not save %1: %2").arg(Path::FileName(path), reason));
}
