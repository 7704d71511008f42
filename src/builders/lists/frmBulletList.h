// The Lists dialog: collects the items of a list and writes them all at once.
#pragma once

#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmBulletList;
}

class frmBulletList final : public TagDialog {
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag WRITE SetTag)

  public:
    explicit frmBulletList(Frame& frame);
    ~frmBulletList() override;

    /// The kind of list: "U" bullets, "O" numbers, "D" definitions. Any other kind writes nothing.
    QString Tag() const { return tag_; }
    void SetTag(const QString& kind) { tag_ = kind; }

  private:
    void cmdAddItem_Click();
    /// Removes the selected item. Delete and Enter on the list do it as well.
    void List1_DblClick();
    /// cmdDone writes the list; Enter adds an item.
    void cmdOK_Click() override;

    std::unique_ptr<Ui::frmBulletList> ui_;
    QString tag_;
};

/// Shows the dialog for one kind of list. One that is up already keeps its items and changes its kind.
void ShowBulletList(Frame& frame, const QString& kind);
