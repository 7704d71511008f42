#include "builders/lists/frmBulletList.h"

#include "dialogs/FormFields.h"
#include "dialogs/ListKeys.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "ui_frmBulletList.h"

frmBulletList::frmBulletList(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmBulletList>()) {
    ui_->setupUi(this);
    connect(ui_->cmdAddItem, &QPushButton::clicked, this, &frmBulletList::cmdAddItem_Click);
    connect(ui_->List1, &QListWidget::itemDoubleClicked, this, &frmBulletList::List1_DblClick);
    OnListKeys(ui_->List1, {Qt::Key_Delete, Qt::Key_Return, Qt::Key_Enter}, [this] { List1_DblClick(); });
    connect(ui_->cmdDone, &QPushButton::clicked, this, &frmBulletList::cmdOK_Click);
}

frmBulletList::~frmBulletList() = default;

void frmBulletList::cmdAddItem_Click() {
    ui_->List1->addItem(FieldText(ui_->txtAddItem));
    ui_->List1->scrollToBottom();
    ui_->txtAddItem->clear();
    ui_->txtAddItem->setFocus();
}

void frmBulletList::List1_DblClick() {
    delete ui_->List1->takeItem(ui_->List1->currentRow());
}

void frmBulletList::cmdOK_Click() {
    QStringList items;
    for (int row = 0; row < ui_->List1->count(); ++row)
        items << ui_->List1->item(row)->text();
    Insert(ListText(kind_, items, TagCaseOf(frame_.Store())));
    Unload();
}

void ShowBulletList(Frame& frame, ListKind kind) {
    frame.LoadedForms().Show<frmBulletList>(frame).SetKind(kind);
}
