#include "styles/layers/frmDHTML.h"

#include "dialogs/FormFields.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "styles/layers/LayerInsertion.h"
#include "styles/layers/LayerText.h"
#include "ui_frmDHTML.h"

#include <QApplication>

namespace {

constexpr int highestLayer = 500;

} // namespace

frmDHTML::frmDHTML(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmDHTML>()) {
    ui_->setupUi(this);
    Wire(*ui_->txtOK, *ui_->txtCancel);
    connect(ui_->Command1, &QPushButton::clicked, this, &frmDHTML::Command1_Click);
    ui_->cboZIndex->addItem(QStringLiteral("auto"));
    for (int index = 0; index <= highestLayer; ++index)
        ui_->cboZIndex->addItem(QString::number(index));
    for (QComboBox* combo : findChildren<QComboBox*>()) {
        combo->setCompleter(nullptr);
        NamePartsOf(*combo);
    }
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* now) { FocusMoved(now); });
}

frmDHTML::~frmDHTML() {
    // The focus moves once more as the controls go, when this is no more than a widget.
    disconnect(qApp, nullptr, this, nullptr);
}

void frmDHTML::FocusMoved(const QWidget* now) {
    if (now && isAncestorOf(now))
        (ui_->frameLayer->isAncestorOf(now) ? ui_->Command1 : ui_->txtOK)->setDefault(true);
}

void frmDHTML::cmdOK_Click() {
    const LayerClass layer = {.name = FieldText(ui_->txtName),
                              .position = FieldText(ui_->cboPosition),
                              .top = FieldText(ui_->txtTop),
                              .left = FieldText(ui_->txtLeft),
                              .right = FieldText(ui_->txtRight),
                              .addStyle = ui_->chkAddStyle->isChecked()};
    if (const QString missing = MissingIn(layer); !missing.isEmpty()) {
        frame_.Ask().MsgBox(this, missing, MsgButtons::OK, MsgIcon::None, QString());
        return;
    }
    InsertClass(frame_, ClassText(layer, TagCaseOf(frame_.Store())),
                layer.addStyle ? ClassPlace::HeadEnd : ClassPlace::Selection);
    ui_->txtDivName->setText(ui_->txtName->text());
}

void frmDHTML::Command1_Click() {
    const auto [open, close] = LayerTag({.className = FieldText(ui_->txtDivName),
                                         .id = FieldText(ui_->txtID),
                                         .visibility = FieldText(ui_->cboVisibility),
                                         .zIndex = FieldText(ui_->cboZIndex)},
                                        TagCaseOf(frame_.Store()));
    Insert(open, close);
}
