// The strip of user buttons: two pages of fifteen buttons, each with two tags of the user's own.
#pragma once

#include <array>
#include <QWidget>

class Frame;
class QPushButton;
class QTabBar;

/// The strip Picture2. The tags are EditorState's FirstBut and SecondBut; the captions are the buttons' own.
class UserButtons final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag WRITE SetTag)

  public:
    static constexpr int Count = 30;

    explicit UserButtons(Frame& frame, QWidget* parent = nullptr);

    /// The index of the button under edit, as text, from the press to frmTools.
    QString Tag() const { return tag_; }
    void SetTag(const QString& tag) { tag_ = tag; }

    /// The caption of Command1(index), 0 to 29; one outside is empty, and setting it does nothing.
    QString Caption(int index) const;
    void SetCaption(int index, const QString& caption);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* MakePage(int page);
    void TabStrip1_Click();
    void Command1_Click(int index);
    void Command1_MouseDown(int index, int button);

    Frame& frame_;
    QString tag_;
    QTabBar* tabStrip1_;
    std::array<QWidget*, 2> frameButtons_{};
    std::array<QPushButton*, Count> command1_{};
};
