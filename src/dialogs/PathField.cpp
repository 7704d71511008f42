#include "dialogs/PathField.h"

#include "dialogs/Paths.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"

#include <QCheckBox>
#include <QLineEdit>

namespace {

void AskToSaveFirst(Prompts& ask, QWidget* owner) {
    ask.MsgBox(
        owner,
        QStringLiteral("I am unable to complete this operation properly.\r\n"
                       "You must save this document before selecting the relative path to an file.\r\n"
                       "If the document is properly saved, please report this error to the maintainers."),
        MsgButtons::OK, MsgIcon::Information, QString());
}

} // namespace

std::optional<QString> FieldPath(Frame& frame, const QString& fullPath, PathForm form, QWidget* owner) {
    QString path = fullPath;
    if (!form.absolute) {
        const Document* document = frame.ActiveForm();
        if (!document)
            return std::nullopt;
        const RelativeResult relative = RelativePath(document->Caption(), fullPath);
        if (relative.failed)
            AskToSaveFirst(frame.Ask(), owner ? owner : frame.Window());
        path = relative.path;
    }
    if (form.forwardSlash)
        ReplaceChar(path, u'\\', u'/');
    return path;
}

void PickIntoField(Frame& frame, QLineEdit& field, const QString& fullPath, PathForm form) {
    if (const auto path = FieldPath(frame, fullPath, form))
        field.setText(*path);
    // The button that was pressed would take the next Enter for itself.
    field.setFocus(Qt::OtherFocusReason);
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
