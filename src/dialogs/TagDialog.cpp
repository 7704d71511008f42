// What all tag dialogs have in common: owner, OK, Cancel, and an end that leaves nothing behind.
#include "dialogs/TagDialog.h"

#include "editor/Forms.h"
#include "editor/Frame.h"
#include "editor/InsertTag.h"

#include <QPushButton>

TagDialog::TagDialog(Frame& frame, QWidget* owner) : QDialog(owner ? owner : frame.Window()), frame_(frame) {}

TagDialog::~TagDialog() = default;

void TagDialog::Wire() {
    if (auto* cmdOK = findChild<QPushButton*>(QStringLiteral("cmdOK"))) {
        cmdOK->setDefault(true);
        connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    }
    if (auto* cmdCancel = findChild<QPushButton*>(QStringLiteral("cmdCancel")))
        connect(cmdCancel, &QPushButton::clicked, this, &TagDialog::reject);
}

void TagDialog::reject() {
    Unload();
}

void TagDialog::Insert(const QString& open, const QString& close) {
    InsertTag(frame_, open, close, true);
}

void TagDialog::Unload() {
    // A form that was unloaded has no name any more; another of its name may be up.
    if (!objectName().isEmpty())
        frame_.LoadedForms().Unload(objectName());
}
