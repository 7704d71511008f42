#include "builders/page/frmBody.h"

#include "builders/page/BodyTag.h"
#include "dialogs/DialogState.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/FormFields.h"
#include "dialogs/PathField.h"
#include "dialogs/PictureFile.h"
#include "editor/color/PickColor.h"
#include "editor/color/TagEnds.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Frame.h"
#include "platform/text/RichTextBox.h"
#include "platform/text/UndoAction.h"
#include "ui_frmBody.h"

namespace {

constexpr int ColorCount = 5;

/// Deletes the body tag that the selection holds or, with nothing selected, the document's first one; with
/// none there the selection goes. Where one never closes the caret goes in front of it, and nothing is
/// deleted.
void DeleteBodyTag(RichTextBox& txtInput) {
    if (const int open = txtInput.Find(QStringLiteral("<body")); open >= 0) {
        const auto tag = TagFrom(open, ReaderOf(txtInput));
        txtInput.SetSelStart(open);
        txtInput.SetSelLength(tag ? tag->length : 0);
    }
    txtInput.SetSelText(QString());
}

} // namespace

frmBody::frmBody(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmBody>()) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    QPushButton* const buttons[] = {ui_->cmdShowColor_0, ui_->cmdShowColor_1, ui_->cmdShowColor_2,
                                    ui_->cmdShowColor_3, ui_->cmdShowColor_4};
    for (int index = 0; index < ColorCount; ++index) {
        QPushButton* button = buttons[index];
        ShowColorIcon(button, QString());
        connect(ColorField(index), &QLineEdit::textChanged, button,
                [button](const QString& text) { ShowColorIcon(button, text); });
        connect(button, &QPushButton::clicked, this, [this, index] { cmdShowColor_Click(index); });
    }
    ClickLabel* const doubleClicked[] = {ui_->lblBG, ui_->lblText, ui_->lblLink, ui_->lblVlink};
    for (int index = 0; index < ColorCount - 1; ++index)
        connect(doubleClicked[index], &ClickLabel::DblClick, this,
                [this, index] { cmdShowColor_Click(index); });
    // The last one has always taken a single click.
    connect(ui_->lblAlink, &ClickLabel::Click, this, [this] { cmdShowColor_Click(4); });
    ShowBrowseIcon(ui_->Command1);
    connect(ui_->Command1, &QPushButton::clicked, this, &frmBody::Command1_Click);
    connect(ui_->txtBackground, &QLineEdit::textChanged, this, &frmBody::txtBackground_Change);
    ConvertSlashesOnClick(*ui_->chkForwardSlash, {ui_->txtBackground});
    // What a new page looks like where it names no colours; the desktop's own may be light on dark.
    const QColor first[] = {Qt::white, Qt::black, QColor(0, 0, 255), QColor(128, 0, 128), QColor(255, 0, 0)};
    for (int index = 0; index < ColorCount; ++index)
        ShowSample(index, first[index]);
    ReadColors();
}

frmBody::~frmBody() = default;

void frmBody::ReadColors() {
    RichTextBox* txtInput = ActiveText(frame_);
    if (!txtInput)
        return;
    const BodyFields colors = BodyColorsOf(txtInput->Text());
    ui_->txtBG->setText(colors.bg);
    ui_->txtText->setText(colors.text);
    ui_->txtLink->setText(colors.link);
    ui_->txtVlink->setText(colors.vlink);
    ui_->txtAlink->setText(colors.alink);
}

QLineEdit* frmBody::ColorField(int index) const {
    QLineEdit* const fields[] = {ui_->txtBG, ui_->txtText, ui_->txtLink, ui_->txtVlink, ui_->txtAlink};
    return fields[index];
}

void frmBody::ShowSample(int index, const QColor& color) {
    ClickLabel* const labels[] = {nullptr, ui_->lblText, ui_->lblLink, ui_->lblVlink, ui_->lblAlink};
    if (index > 0) {
        labels[index]->SetForeColor(color);
        return;
    }
    ui_->Picture1->SetBackColor(color);
    // Its own name stays readable on any page.
    ui_->lblBG->SetForeColor(qGray(color.rgb()) < 128 ? Qt::white : Qt::black);
}

void frmBody::cmdShowColor_Click(int index) {
    if (index < 0 || index >= ColorCount)
        return;
    const QString color = u'#' + ColorHex(PickColorOrBlack(frame_.Ask(), this));
    ColorField(index)->setText(color);
    ShowSample(index, QColor(color));
}

void frmBody::Command1_Click() {
    PictureBrowse browse(frame_);
    const auto path = browse.Show(this, {.filter = FileFilter::Picture});
    if (!path)
        return;
    // A file that is no picture leaves the sample as it is.
    if (const QPixmap picture = ReadPicture(*path); !picture.isNull())
        ui_->Picture1->SetPicture(picture);
    PickIntoField(
        frame_, *ui_->txtBackground, *path,
        {.absolute = ui_->chkAbsolute->isChecked(), .forwardSlash = ui_->chkForwardSlash->isChecked()});
}

void frmBody::txtBackground_Change() {
    if (ui_->txtBackground->text().isEmpty())
        ui_->Picture1->SetPicture(QPixmap());
}

void frmBody::cmdOK_Click() {
    const QString tag = BodyTag({.bg = FieldText(ui_->txtBG),
                                 .text = FieldText(ui_->txtText),
                                 .link = FieldText(ui_->txtLink),
                                 .vlink = FieldText(ui_->txtVlink),
                                 .alink = FieldText(ui_->txtAlink),
                                 .background = FieldText(ui_->txtBackground)},
                                TagCaseOf(frame_.Store()));
    if (RichTextBox* txtInput = ActiveText(frame_)) {
        const UndoAction step(*txtInput);
        DeleteBodyTag(*txtInput);
        Insert(tag);
    }
    frame_.State<DialogState>().TellBuilt(tag);
    Unload();
}
