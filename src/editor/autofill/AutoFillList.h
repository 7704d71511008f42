// What all documents share of the auto-fill list.
#pragma once

#include <QObject>
#include <utility>

/// The list is one for the whole program: so are its flags and the news that a row was picked in it.
class AutoFillList : public QObject {
    Q_OBJECT

  public:
    /// A list is on its way or on the screen: Enter takes its row. Its window may be hidden.
    bool DropDownOpen() const { return dropDownOpen_; }
    /// Changes of the text move the list to the caret.
    bool DropDownFollowsCaret() const { return dropDownFollowsCaret_; }
    /// A row was picked in the list itself, and no change of the text has found a row since.
    bool ListPickPending() const { return listPickPending_; }
    /// Where the caret stood when the user went into the list by Down.
    int ListReturnCaret() const { return listReturnCaret_; }

    /// A document window opens.
    void DocumentOpened() {
        dropDownOpen_ = false;
        dropDownFollowsCaret_ = true;
    }
    void Open() { dropDownOpen_ = true; }
    void Close() { dropDownOpen_ = false; }
    void StopFollowing() { dropDownFollowsCaret_ = false; }
    void RememberCaret(int caret) { listReturnCaret_ = caret; }
    void MarkPick() { listPickPending_ = true; }
    /// Returns whether a pick was pending; it is no longer.
    bool TakePick() { return std::exchange(listPickPending_, false); }

  Q_SIGNALS:
    /// The user picked the selected row in the list, for the active document. The text has the focus again.
    void RowPicked();

  private:
    bool dropDownOpen_ = false;
    bool dropDownFollowsCaret_ = false;
    bool listPickPending_ = false;
    int listReturnCaret_ = 0;
};
