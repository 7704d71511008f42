// Picking a file into a field of a tag dialog: filters, a form's file dialog, the picture browse.
#include "dialogs/FileDialogs.h"

#include "dialogs/DialogState.h"
#include "dialogs/frmImage.h"
#include "dialogs/Paths.h"
#include "editor/Document.h"
#include "editor/Forms.h"
#include "editor/Frame.h"

#include <QCheckBox>
#include <QLineEdit>
#include <utility>

void FileDialog::SetFilter(const QString& filter, int index) {
    filter_ = filter;
    filterIndex_ = index;
}

std::optional<QString> FileDialog::ShowOpen(QWidget* owner) {
    return ShowOpen(owner, nullptr, {});
}

std::optional<QString> FileDialog::ShowOpen(QWidget* owner, QWidget* panel,
                                            std::function<void(const QString&)> selectionChanged) {
    FileRequest request;
    request.filter = filter_;
    request.filterIndex = filterIndex_;
    request.folder = frame_.State<DialogState>().LastDir;
    request.panel = panel;
    request.selectionChanged = std::move(selectionChanged);
    const FileAnswer answer = frame_.Ask().OpenFile(owner, request);
    if (answer.Cancelled() || answer.names.first().isEmpty())
        return std::nullopt;
    return answer.folder + answer.names.first();
}

PictureBrowse::PictureBrowse(Frame& frame) : frame_(frame) {
    frame_.LoadedForms().Load<frmImage>(frame_);
}

PictureBrowse::~PictureBrowse() {
    frame_.LoadedForms().Unload<frmImage>();
}

std::optional<QString> PictureBrowse::Show(FileDialog& dialog, QWidget* owner) {
    QWidget* panel = frame_.LoadedForms().Load<frmImage>(frame_).Frame1();
    QString shown;
    const auto selectionChanged = [this, &shown](const QString& path) {
        shown = path;
        ShowImagePreview(frame_, path);
    };
    auto picked = dialog.ShowOpen(owner, panel, selectionChanged);
    // A name that was typed was never selected in the list.
    if (picked && *picked != shown)
        ShowImagePreview(frame_, *picked);
    return picked;
}

QSize PictureBrowse::PictureSize() const {
    return frame_.LoadedForms().Load<frmImage>(frame_).PictureSize();
}

std::optional<QString> FieldPath(Frame& frame, const QString& fullPath, bool absolute, bool forwardSlash) {
    QString path = fullPath;
    if (!absolute) {
        Document* document = frame.ActiveForm();
        if (!document)
            return std::nullopt;
        path = RelativePath(frame, document->Caption(), fullPath);
    }
    if (forwardSlash)
        ReplaceChar(path, u'\\', u'/');
    return path;
}

void PickIntoField(Frame& frame, QLineEdit& field, const QString& fullPath, bool absolute,
                   bool forwardSlash) {
    if (const auto path = FieldPath(frame, fullPath, absolute, forwardSlash))
        field.setText(*path);
}

void ConvertSlashes(QLineEdit& field, bool forward) {
    QString text = field.text();
    if (forward)
        ReplaceChar(text, u'\\', u'/');
    else
        ReplaceChar(text, u'/', u'\\');
    field.setText(text);
}

void ConvertSlashesOnClick(QCheckBox& chkForwardSlash, std::initializer_list<QLineEdit*> fields) {
    for (QLineEdit* field : fields)
        QObject::connect(&chkForwardSlash, &QCheckBox::toggled, field,
                         [field](bool forward) { ConvertSlashes(*field, forward); });
}
