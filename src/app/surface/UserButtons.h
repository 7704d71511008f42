// The strip of user buttons: two pages of fifteen buttons, each with two tags of the user's own.
#pragma once

#include "app/surface/UserButton.h"

#include <array>
#include <QWidget>

class Frame;
class QPushButton;
class QTabBar;

/// The strip Picture2. The tags are UserButtonTexts'; the captions are the buttons' own.
/// A right press on a button brings up the dialog that edits it; the store is written when the program stops.
class UserButtons final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int Tag READ Tag)

  public:
    static constexpr int Count = 30;

    explicit UserButtons(Frame& frame, QWidget* parent = nullptr);

    /// The index of the button under edit, from the press on; -1 before the first.
    int Tag() const { return tag_; }

    /// The caption of Command1(index), 0 to 29; one outside is empty, and setting it does nothing.
    QString Caption(int index) const;
    void SetCaption(int index, const QString& caption);

    /// Gives the focus to the first button of the page that is shown.
    void TakeFocus();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* MakePage(int page);
    /// The tip of a button with a blank face: how to fill one.
    QString BlankTip() const;
    void TabStrip1_Click();
    void Command1_Click(int index);
    void Edit(int index);
    UserButton Button(int index) const;
    void TakeEdited(const UserButton& button);

    Frame& frame_;
    int tag_ = -1;
    QTabBar* tabStrip1_;
    std::array<QWidget*, 2> frameButtons_{};
    std::array<QPushButton*, Count> command1_{};
};
