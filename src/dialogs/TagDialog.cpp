#include "dialogs/TagDialog.h"

#include "editor/color/InsertTag.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"

#include <QPushButton>

TagDialog::TagDialog(Frame& frame, QWidget* owner) : QDialog(owner ? owner : frame.Window()), frame_(frame) {}

TagDialog::~TagDialog() = default;

void TagDialog::Wire(QPushButton& ok, QPushButton& cancel) {
    ok.setDefault(true);
    connect(&ok, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(&cancel, &QPushButton::clicked, this, &TagDialog::reject);
}

void TagDialog::reject() {
    Unload();
}

void TagDialog::Insert(const QString& open, const QString& close) {
    InsertTag(frame_, open, close, KeepCase::Yes);
}

void TagDialog::Unload() {
    frame_.LoadedForms().Unload(*this);
}
