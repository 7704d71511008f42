// A list with a header and one column, and what a person does in it as events.
#pragma once

#include <QSet>
#include <QTreeWidget>

/// A row is selected whole; typing jumps to the row that begins so.
class ListView : public QTreeWidget {
    Q_OBJECT

  public:
    explicit ListView(QWidget* parent = nullptr);

    /// A new row at the list's end.
    void AddRow(const QString& text);
    void AddRows(const QStringList& texts);
    /// The text of the selected row; empty with none selected.
    QString SelectedText() const;
    /// Null with none selected.
    QTreeWidgetItem* SelectedRow() const;

  Q_SIGNALS:
    /// The left button came up over a row, or behind a drag that selected another one.
    void Click();
    /// A double click on a row, or Enter with one selected.
    void DblClick();
    /// A key that went down in this list came up: not one that merely brought the focus or closed a box, and
    /// no key that does nothing by itself, such as Shift.
    void KeyUp();
    /// The same of a key by which rows are searched: more of the word may be to come.
    void LetterUp();
    /// The right button went down, or the keyboard asked for a context menu.
    void RightDown();

  protected:
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    QSet<int> keysDown_;
    const QTreeWidgetItem* atPress_ = nullptr; ///< what was selected; only ever compared
    bool secondPress_ = false;
};
