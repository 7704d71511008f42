// The road back from a tag to its dialog.
#include "builders/EditTag.h"

#include "builders/frmBody.h"
#include "builders/frmEmbed.h"
#include "builders/frmGraphicLink.h"
#include "builders/TagParser.h"
#include "editor/Commands.h"
#include "editor/Document.h"
#include "editor/Forms.h"
#include "editor/Frame.h"
#include "platform/RichTextBox.h"

#include <algorithm>
#include <initializer_list>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <utility>

namespace {

const QString ImageForm = QStringLiteral("frmGraphicLink");
const QString BodyForm = QStringLiteral("frmBody");
const QString EmbedForm = QStringLiteral("frmEmbed");

void SetField(const QWidget& form, const QString& name, const QString& value) {
    auto* combo = form.findChild<QComboBox*>(name);
    QLineEdit* field = combo ? combo->lineEdit() : form.findChild<QLineEdit*>(name);
    if (!field)
        return;
    // The old tag is gone once the dialog is up: a long value must not lose its end.
    field->setMaxLength(std::max(field->maxLength(), static_cast<int>(value.size())));
    field->setText(value);
}

/// Sets the fields in the order given from the rows of a table; an attribute that the tag lacks empties its
/// field.
void SetFields(const QWidget& form, const QString& tag, const QVector<TagKey>& keys,
               std::initializer_list<const char*> order) {
    for (const char* name : order) {
        const QString field = QString::fromLatin1(name);
        const auto row =
            std::find_if(keys.begin(), keys.end(), [&](const TagKey& key) { return key.field == field; });
        if (row != keys.end())
            SetField(form, field, TagValue(tag, *row));
    }
}

void CutSelection(Frame& frame) {
    if (Document* document = frame.ActiveForm())
        document->txtInput().SetSelText(QString());
}

void FillImage(Frame& frame, const QString& tag) {
    auto& form = frame.LoadedForms().Load<frmGraphicLink>(ImageForm, frame);
    // A dialog that is open already keeps a box that was checked before.
    if (auto* chkISMAP = form.findChild<QCheckBox*>(QStringLiteral("chkISMAP")); chkISMAP && HasIsMap(tag))
        chkISMAP->setChecked(true);
    frame.LoadedForms().Show<frmGraphicLink>(ImageForm, frame);
    SetFields(form, tag, ImageKeys(),
              {"txtURL", "txtLowSRC", "txtALT", "txtWidth", "txtHeight", "txtHSpace", "txtVSpace",
               "txtBorder", "cboAlign", "txtUseMap"});
    CutSelection(frame);
}

void FillEmbed(Frame& frame, const QString& tag) {
    auto& form = frame.LoadedForms().Show<frmEmbed>(EmbedForm, frame);
    SetFields(form, tag, EmbedKeys(), {"txtWidth", "txtHeight", "cboPalette", "txtURL"});
    CutSelection(frame);
}

} // namespace

void EditTag(Frame& frame) {
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    RichTextBox& txtInput = document->txtInput();
    const auto place = FindTagAround(txtInput.SelStart(), [&txtInput](int start, int length) {
        return txtInput.TextRange(start, length);
    });
    if (!place)
        return;
    const QString tag = txtInput.TextRange(place->start, place->length);
    txtInput.SetSelStart(place->start);
    txtInput.SetSelLength(place->length);
    FillTagDialog(frame, tag);
}

void FillTagDialog(Frame& frame, const QString& tag) {
    switch (KindOfTag(tag)) {
    case TagKind::Image:
        FillImage(frame, tag);
        break;
    case TagKind::Body:
        // It reads the document by itself, and its OK finds the tag by itself.
        frame.LoadedForms().Show<frmBody>(BodyForm, frame);
        break;
    case TagKind::Embed:
        FillEmbed(frame, tag);
        break;
    case TagKind::None:
        break;
    }
}

void FillEditTagCommand(Frame& frame) {
    frame.Commands().Set(QStringLiteral("mnuEditTag"), [&frame] { EditTag(frame); });
}
