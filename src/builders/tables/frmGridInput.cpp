#include "builders/tables/frmGridInput.h"

#include "builders/tables/CurrentCell.h"
#include "builders/tables/TableTag.h"
#include "dialogs/DialogState.h"
#include "dialogs/FormFields.h"
#include "dialogs/frmImage.h"
#include "dialogs/PathField.h"
#include "editor/color/PickColor.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "ui_frmGridInput.h"

#include <QEvent>

frmGridInput::frmGridInput(Frame& frame, QWidget& table, CurrentCell& cell)
    : TagDialog(frame, &table), ui_(std::make_unique<Ui::frmGridInput>()), table_(table), cell_(cell) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    FillLists();
    ShowBrowseIcon(ui_->cmdGetFile);
    ui_->txtGridInput->setText(cell.CellText());
    ui_->txtGridInput->installEventFilter(this);
    connect(ui_->Label2, &ColorSample::DblClick, this, &frmGridInput::Label2_DblClick);
    connect(ui_->cmdGetFile, &QPushButton::clicked, this, &frmGridInput::cmdGetFile_Click);
    connect(&frame.LoadedForms(), &Forms::Unloading, this, [this](const QWidget* form) {
        if (form == &table_)
            Unload();
    });
}

frmGridInput::~frmGridInput() = default;

void frmGridInput::FillLists() {
    for (QComboBox* list : {ui_->cboColSpan, ui_->cboRowSpan}) {
        list->addItem(QString());
        for (int number = 1; number <= 75; ++number)
            list->addItem(QString::number(number));
    }
    PrepareComboBoxes(*this);
}

bool frmGridInput::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        ui_->txtGridInput->setFocus();
    return TagDialog::event(event);
}

bool frmGridInput::eventFilter(QObject* watched, QEvent* event) {
    const bool handled = TagDialog::eventFilter(watched, event);
    if (watched == ui_->txtGridInput && event->type() == QEvent::FocusIn)
        ui_->txtGridInput->selectAll();
    return handled;
}

void frmGridInput::Label2_DblClick() {
    const ColorNumber color = PickColorOrBlack(frame_.Ask(), this);
    ui_->Label2->SetBackNumber(color);
    color_ = ColorHex(color);
}

void frmGridInput::cmdGetFile_Click() {
    auto& pictures = frame_.LoadedForms().Load<frmImage>(frame_, this);
    pictures.LookIn(frame_.State<DialogState>().LastDir);
    connect(&pictures, &QDialog::finished, this, &frmGridInput::TakePicture, Qt::UniqueConnection);
    pictures.setWindowModality(Qt::ApplicationModal);
    pictures.show();
}

void frmGridInput::TakePicture() {
    const auto* pictures = frame_.LoadedForms().Find<frmImage>();
    const QString picked = pictures ? pictures->Tag : QString();
    frame_.LoadedForms().Unload<frmImage>();
    if (picked.isEmpty())
        return;
    // While the picture window goes no window has the keys: a box belongs to this one.
    const auto path = FieldPath(
        frame_, picked,
        {.absolute = ui_->chkAbsolute->isChecked(), .forwardSlash = ui_->chkForwardSlash->isChecked()}, this);
    if (path)
        ui_->txtGridInput->setText(QStringLiteral("<IMG SRC=") + *path + u'>');
}

void frmGridInput::cmdOK_Click() {
    const QString text = FieldText(ui_->txtGridInput);
    cell_.SetCell(CellTag({.text = text,
                           .header = ui_->chkHeader->isChecked(),
                           .wrapText = ui_->chkWrapText->isChecked(),
                           .colSpan = FieldText(ui_->cboColSpan),
                           .rowSpan = FieldText(ui_->cboRowSpan),
                           .align = FieldText(ui_->cboAlign),
                           .vAlign = FieldText(ui_->cboVAlign),
                           .color = color_},
                          TagCaseOf(frame_.Store())),
                  text);
    Unload();
}
