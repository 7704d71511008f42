// The toolbar: one table of its buttons, and the strip that shows them in as many rows as they need.
#pragma once

#include <QWidget>
#include <span>
#include <vector>

class Frame;
class QShortcut;
class QToolButton;
struct FormRow;

/// A button: its key, which names its command "tb_<key>" and its icon, and its tool tip.
struct ToolbarRow {
    const char* key;
    const char* toolTip;
};

/// All buttons, in their order, with those that the forms of the program bring.
std::span<const ToolbarRow> ToolbarTable();
/// The same with those of other forms: new buttons stand at the end.
std::vector<ToolbarRow> ToolbarTable(std::span<const FormRow> forms);

/// The strip of buttons. It wraps to further rows: its height follows from its width (heightForWidth). It is
/// one stop of the Tab key; the arrow keys, Home and End move among its buttons, F6 moves into it from the
/// window, and Esc back.
class Toolbar1 final : public QWidget {
    Q_OBJECT

  public:
    explicit Toolbar1(Frame& frame, QWidget* parent = nullptr);

    /// Gives the focus to the button that had it last, or to the first.
    void TakeFocus();
    /// F6 is another's from now on.
    void LeaveF6();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void AddButton(const ToolbarRow& row);
    void MoveFocus(qsizetype from, int step);

    Frame& frame_;
    QList<QToolButton*> buttons_;
    QShortcut* reach_ = nullptr;
};
