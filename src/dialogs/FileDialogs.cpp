#include "dialogs/FileDialogs.h"

#include "dialogs/DialogState.h"
#include "dialogs/frmImage.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/WholeFile.h"

#include <limits>

namespace {

bool MayOverwrite(Frame& frame, QWidget* owner, const QString& path) {
    const qint64 size = WholeFile::Size(path);
    if (size < 2 || size > std::numeric_limits<qint16>::max())
        return true;
    return frame.Ask().MsgBox(owner, QStringLiteral("Overwrite File?"), MsgButtons::YesNo, MsgIcon::Question,
                              QStringLiteral("Overwrite")) != MsgAnswer::No;
}

} // namespace

std::optional<QString> PickFile(Frame& frame, QWidget* owner, FileRequest request) {
    request.folder = frame.State<DialogState>().LastDir;
    const FileAnswer answer = frame.Ask().OpenFile(owner, request);
    return answer.Cancelled() ? std::nullopt : std::optional(answer.Path());
}

FileAnswer PickFileToSave(Frame& frame, QWidget* owner, FileRequest request) {
    for (;;) {
        request.folder = frame.State<DialogState>().LastDir;
        FileAnswer answer = frame.Ask().SaveFile(owner, request);
        if (answer.Cancelled() || MayOverwrite(frame, owner, answer.Path()))
            return answer;
    }
}

PictureBrowse::PictureBrowse(Frame& frame) : frame_(frame) {
    frame_.LoadedForms().Load<frmImage>(frame_);
}

PictureBrowse::~PictureBrowse() {
    frame_.LoadedForms().Unload<frmImage>();
}

std::optional<QString> PictureBrowse::Show(QWidget* owner, FileRequest request) {
    QString shown;
    request.panel = frame_.LoadedForms().Load<frmImage>(frame_).Frame1();
    request.selectionChanged = [this, &shown](const QString& path) {
        shown = path;
        ShowImagePreview(frame_, path);
    };
    auto picked = PickFile(frame_, owner, std::move(request));
    // A name that was typed was never selected in the list.
    if (picked && *picked != shown)
        ShowImagePreview(frame_, *picked);
    return picked;
}

QSize PictureBrowse::PictureSize() const {
    return frame_.LoadedForms().Load<frmImage>(frame_).PictureSize();
}
