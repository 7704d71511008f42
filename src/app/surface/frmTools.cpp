#include "app/surface/frmTools.h"

#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/values/Cp1252.h"
#include "ui_frmTools.h"

#include <QFocusEvent>
#include <QTimer>

frmTools::frmTools(Frame& frame, const UserButton& button)
    : QDialog(frame.Window()), ui_(std::make_unique<Ui::frmTools>()), frame_(frame) {
    ui_->setupUi(this);
    for (QLineEdit* field : {ui_->txtName, ui_->txtFirst, ui_->txtSecond})
        field->installEventFilter(this);
    connect(ui_->cmdOK, &QPushButton::clicked, this, &frmTools::cmdOK_Click);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmTools::cmdCancel_Click);
    ui_->txtName->setText(button.caption);
    ui_->txtFirst->setText(button.first);
    ui_->txtSecond->setText(button.second);
}

frmTools::~frmTools() = default;

void frmTools::cmdOK_Click() {
    // What the button writes stays as it is typed: the document that it goes into may hold it.
    Q_EMIT Edited({Cp1252::Accept(ui_->txtName->text()), ui_->txtFirst->text(), ui_->txtSecond->text()});
    Unload();
}

void frmTools::cmdCancel_Click() {
    Unload();
}

void frmTools::reject() {
    Unload();
}

void frmTools::Unload() {
    frame_.LoadedForms().Unload(*this);
}

// A field selects its whole text when it gets the focus. The mouse sets the caret right after it gave the
// focus, so for a click the selection has to come behind that.
bool frmTools::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        auto* field = static_cast<QLineEdit*>(watched);
        if (static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason)
            QTimer::singleShot(0, field, &QLineEdit::selectAll);
        else
            field->selectAll();
    }
    return QDialog::eventFilter(watched, event);
}
