// The Lists dialog: collects the items of a list and writes them all at once.
#pragma once

#include "builders/lists/ListText.h"
#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmBulletList;
}

class frmBulletList final : public TagDialog {
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag)

  public:
    explicit frmBulletList(Frame& frame);
    ~frmBulletList() override;

    /// The kind of list as its letter.
    QString Tag() const { return QString(QLatin1Char(static_cast<char>(kind_))); }
    void SetKind(ListKind kind) { kind_ = kind; }

  private:
    void cmdAddItem_Click();
    /// Removes the selected item. Delete and Enter on the list do it as well.
    void List1_DblClick();
    /// cmdDone writes the list; Enter adds an item.
    void cmdOK_Click() override;

    std::unique_ptr<Ui::frmBulletList> ui_;
    ListKind kind_ = ListKind::Bullets;
};

/// Shows the dialog for one kind of list. One that is up already keeps its items and changes its kind.
void ShowBulletList(Frame& frame, ListKind kind);
