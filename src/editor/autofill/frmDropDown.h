// The auto-fill list: attributes or values at the caret, while the keyboard stays in the text.
#pragma once

#include "editor/autofill/AutoFillTables.h"

#include <memory>
#include <optional>
#include <QFrame>
#include <QPoint>
#include <QRect>

class Frame;

namespace Ui {
class frmDropDown;
}

/// A pane over the frame's window rather than a window of its own: it can so be put at the caret on every
/// desktop, can't take the keyboard by being shown, and can take it within the window when the user goes into
/// the list. Loading it puts it, hidden, at the caret of the active document.
class frmDropDown final : public QFrame {
    Q_OBJECT

  public:
    explicit frmDropDown(Frame& frame);
    ~frmDropDown() override;

    /// Replaces the rows, the first of which becomes the selected one. called is what a screen reader says of
    /// the list.
    void Fill(const AutoFillRows& rows, const QString& called);
    int RowCount() const;
    QString RowText(int row) const;
    void SelectRow(int row);
    void ScrollToSelected();
    /// What the selected row writes; nothing in an empty list.
    std::optional<QString> SelectedKey() const;

    /// Shows it without giving it the focus. A list without rows stays hidden.
    void Open();
    /// Gives ListView1 the focus, with its selected row in view. Returns false, and does nothing, while it is
    /// hidden.
    bool FocusList();

    /// Puts it at the caret of the active document.
    void MoveToCaret();
    /// The place it reckons for itself, in twips.
    QPoint Place() const { return place_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ListView1_DblClick();
    /// KeyAscii of a key that the list keeps for itself becomes 0.
    void ListView1_KeyPress(int& KeyAscii);
    void ListView1_KeyDown(int KeyCode);
    void Form_Unload();
    /// Leaves the list and hands the selected row to the active document.
    void PickRow();
    void Unload();
    void Arrange();

    Frame& frame_;
    std::unique_ptr<Ui::frmDropDown> ui_;
    QPoint place_;
    QRect caretLine_;
};
