#include "builders/page/frmFont.h"

#include "builders/page/FontTag.h"
#include "dialogs/FormFields.h"
#include "dialogs/ListKeys.h"
#include "editor/color/PickColor.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/FaceNames.h"
#include "ui_frmFont.h"

frmFont::frmFont(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmFont>()) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    ui_->List1->addItems(FaceNames());
    PrepareComboBoxes(*this);
    ShowColorIcon(ui_->cmdShowColor, QString());
    connect(ui_->txtFontColor, &QLineEdit::textChanged, this,
            [this](const QString& text) { ShowColorIcon(ui_->cmdShowColor, text); });
    connect(ui_->cmdShowColor, &QPushButton::clicked, this, &frmFont::cmdShowColor_Click);
    connect(ui_->List1, &QListWidget::itemDoubleClicked, this, &frmFont::List1_DblClick);
    OnListKeys(ui_->List1, {Qt::Key_Return, Qt::Key_Enter}, [this] { List1_DblClick(); });
}

frmFont::~frmFont() = default;

void frmFont::cmdShowColor_Click() {
    ui_->txtFontColor->setText(u'#' + ColorHex(PickColorOrBlack(frame_.Ask(), this)));
}

void frmFont::List1_DblClick() {
    if (const QListWidgetItem* item = ui_->List1->currentItem())
        ui_->txtFontFace->setText(WithFace(ui_->txtFontFace->text(), item->text()));
}

void frmFont::cmdOK_Click() {
    const auto [open, close] = FontTag({.size = FieldText(ui_->cboFontSize),
                                        .color = FieldText(ui_->txtFontColor),
                                        .face = FieldText(ui_->txtFontFace)},
                                       TagCaseOf(frame_.Store()));
    Insert(open, close);
    Unload();
}
