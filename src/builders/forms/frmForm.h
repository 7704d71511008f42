// The Form dialog: writes the elements of an HTML form, one kind on each tab, and stays open for the next
// one.
#pragma once

#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmForm;
}

class frmForm final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmForm(Frame& frame);
    ~frmForm() override;

    /// The builders: each inserts one element from the fields of its frame, around the selection where the
    /// element has an end tag. Those of several tabs take the word for TYPE.
    void AddTextArea();
    void AddText(const QString& type);
    void AddForm();
    void AddRadio(const QString& type);
    void AddSubmit(const QString& type);
    void AddHidden();
    void AddList();

  protected:
    /// Enter in the field of a new item adds it; everywhere else it is cmdApply.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void WireTabs();
    void TabStrip_Click();
    void cmdAddItem_Click();
    void cmdRemoveItem_Click();
    void chkMultiple_Click();
    /// cmdApply is this form's OK; it leaves the form open.
    void cmdOK_Click() override;
    /// The place of the list's selected item, counted from 0; -1 with none selected.
    int ListIndex() const;

    std::unique_ptr<Ui::frmForm> ui_;
};
