#include "dialogs/CDialog.h"

#include "dialogs/DialogState.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"

#include <algorithm>
#include <numeric>
#include <QApplication>
#include <QFileInfo>

namespace {

/// What the answer takes in the dialog's buffer: a single full path, or the folder and each name; each text
/// is followed by one separator, the whole by another.
qsizetype BufferUse(const FileAnswer& answer) {
    if (answer.names.size() == 1)
        return answer.folder.size() + answer.names.first().size() + 1;
    return std::accumulate(answer.names.begin(), answer.names.end(), answer.folder.size() + 2,
                           [](qsizetype sum, const QString& name) { return sum + name.size() + 1; });
}

void Append(QString& filter, const QString& more) {
    if (!filter.isEmpty() && !more.isEmpty() && !filter.endsWith(u'|'))
        filter += u'|';
    filter += more;
}

bool CanBeWritten(const QString& path) {
    const QFileInfo file(path);
    return file.exists() ? file.isWritable() : QFileInfo(file.absolutePath()).isWritable();
}

} // namespace

bool CDialog::Action(int action, QWidget* owner) {
    switch (action) {
    case 1:
        return ShowOpen(owner);
    case 2:
        return ShowSave(owner);
    default:
        return false;
    }
}

void CDialog::SetMultiSelect(int multi) {
    multiSelect_ = multi == Multiple || multi == Explorer ? multi : Off;
}

void CDialog::SetFilter(const QString& filter) {
    request_.filter = filter;
    request_.filterIndex = 1;
}

void CDialog::AddFilter(const QString& name, const QString& patterns) {
    Append(request_.filter, name + u'|' + patterns + u'|');
}

void CDialog::AddDefaultFilters(const DialogTarget& target) {
    Append(request_.filter, target.DefaultFilters());
}

QString CDialog::SelectedFile(int n) const {
    return n >= 1 && n <= SelectedFileCount() ? selected_[n - 1] : QString();
}

bool CDialog::ShowOpen(QWidget* owner, const DialogTarget& target) {
    if (!Show(true, owner, target))
        return false;
    if (target)
        LoadInto(target);
    return true;
}

bool CDialog::ShowSave(QWidget* owner, const DialogTarget& target) {
    if (!Show(false, owner, target))
        return false;
    if (target)
        SaveFrom(target);
    return true;
}

bool CDialog::SaveFrom(const DialogTarget& target) const {
    return SelectedFileCount() > 0 && target.Save(SelectedFile(1));
}

bool CDialog::LoadInto(const DialogTarget& target) const {
    return SelectedFileCount() > 0 && target.Load(SelectedFile(1));
}

bool CDialog::Show(bool open, QWidget* owner, const DialogTarget& target) {
    if (request_.filter.isEmpty())
        AddDefaultFilters(target);
    FileRequest request = request_;
    request.folder = frame_.State<DialogState>().LastDir;
    request.multiSelect = open && multiSelect_ != Off;
    if (!owner)
        owner = QApplication::activeWindow();
    if (!owner)
        owner = frame_.Window();
    for (;;) {
        const FileAnswer answer =
            open ? frame_.Ask().OpenFile(owner, request) : frame_.Ask().SaveFile(owner, request);
        if (!Take(answer))
            return false;
        if (!fileMustBeWritable_ || std::all_of(selected_.begin(), selected_.end(), CanBeWritten))
            return true;
    }
}

bool CDialog::Take(const FileAnswer& answer) {
    selected_.clear();
    errorCode_ = 0;
    if (answer.Cancelled())
        return false;
    if (BufferUse(answer) > BufferSize) {
        errorCode_ = BufferTooSmall;
        return false;
    }
    selected_ = answer.Paths();
    return true;
}
