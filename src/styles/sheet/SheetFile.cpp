#include "styles/sheet/SheetFile.h"

#include "dialogs/DialogState.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/PathField.h"
#include "editor/color/InsertTag.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Frame.h"
#include "editor/frame/TellFailedSave.h"
#include "platform/store/Settings.h"
#include "platform/store/WholeFile.h"
#include "platform/text/RichTextBox.h"
#include "styles/sheet/PrintedLine.h"

namespace {

const QString sheetFilter = QStringLiteral("CSS Files (*.css)|*.css|All files (*.*)|*.*");

} // namespace

bool SaveToExternalFile(Frame& frame, QWidget* owner, const QString& sheet) {
    const FileAnswer answer =
        PickFileToSave(frame, owner, {.filter = sheetFilter, .defaultExtension = QStringLiteral("css")});
    if (answer.Cancelled())
        return false;
    if (const WriteResult written = WholeFile::Write(answer.Path(), PrintedLine(sheet)); !written)
        TellFailedSave(frame, answer.Path(), written.Reason());
    frame.State<DialogState>().LastDir = answer.folder;
    return true;
}

QString LinkTag(const QString& target, TagCase tagCase) {
    return u'<' + InCase(QStringLiteral("LINK "), tagCase) +
           QStringLiteral("rel=\"stylesheet\" type=\"text/css\" href=\"") + target +
           QStringLiteral("\"title=\" style1\">\r\n");
}

void ImportFile(Frame& frame, QWidget* owner) {
    QString target;
    if (const auto path = PickFile(frame, owner, {.filter = sheetFilter}))
        target =
            FieldPath(frame, *path, {.absolute = false, .forwardSlash = true}, owner).value_or(QString());
    RichTextBox* txtInput = ActiveText(frame);
    if (!txtInput)
        return;
    const QString headEnd = QStringLiteral("</HEAD>");
    // Where there is no such tag the search gives -1, which the control refuses.
    txtInput->SetSelStart(txtInput->Find(headEnd));
    txtInput->SetSelLength(static_cast<int>(headEnd.size()));
    InsertTag(frame, LinkTag(target, TagCaseOf(frame.Store())), QString(), KeepCase::Yes);
}
