#include "app/documents/DialogFolders.h"

#include "app/documents/RecentFiles.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/values/Path.h"

QStringList DialogFolders(Frame& frame) {
    if (!frame.Store().ReadFlag(Keys::FileDialogFolders))
        return {};
    QStringList files;
    for (int i = 0; i < frame.LoadedForms().Count(); ++i)
        if (const auto* document = dynamic_cast<const Document*>(frame.LoadedForms().At(i)))
            files << document->Caption();
    for (int n = 0; n < RecentFiles::Count; ++n)
        files << RecentFiles::Caption(frame, n);
    QStringList folders;
    for (const QString& file : std::as_const(files))
        if (const QString folder = Path::Folder(file); !folder.isEmpty() && !folders.contains(folder))
            folders << folder;
    return folders;
}
