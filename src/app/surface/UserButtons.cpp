#include "app/surface/UserButtons.h"

#include "app/surface/frmTools.h"
#include "app/window/LeaveByEscape.h"
#include "editor/color/InsertTag.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "editor/typing/UserButtonTexts.h"
#include "platform/store/Settings.h"

#include <algorithm>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTabBar>

namespace {

constexpr int buttonsPerPage = 15;

// A button whose caption, where it is too long for the face, ends in dots.
class CaptionButton final : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    void paintEvent(QPaintEvent*) override {
        QStylePainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        const int room = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this).width();
        option.text = fontMetrics().elidedText(option.text, Qt::ElideRight, room, Qt::TextShowMnemonic);
        painter.drawControl(QStyle::CE_PushButton, option);
    }
};

} // namespace

UserButtons::UserButtons(Frame& frame, QWidget* parent)
    : QWidget(parent), frame_(frame), tabStrip1_(new QTabBar(this)) {
    setObjectName(QStringLiteral("Picture2"));
    setAccessibleName(tr("User buttons"));
    tabStrip1_->setObjectName(QStringLiteral("TabStrip1"));
    tabStrip1_->setAccessibleName(tr("Pages of user buttons"));
    tabStrip1_->setDrawBase(false);
    LeaveByEscape(*tabStrip1_, frame_);
    tabStrip1_->addTab(QStringLiteral("User 1"));
    tabStrip1_->addTab(QStringLiteral("User 2"));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2, 0, 2, 0);
    row->setSpacing(4);
    row->addWidget(tabStrip1_);
    for (int page = 0; page < 2; ++page) {
        frameButtons_[static_cast<size_t>(page)] = MakePage(page);
        row->addWidget(frameButtons_[static_cast<size_t>(page)], 1);
    }
    frameButtons_[1]->hide();
    connect(tabStrip1_, &QTabBar::currentChanged, this, [this] { TabStrip1_Click(); });
}

QWidget* UserButtons::MakePage(int page) {
    auto* frameButtons = new QWidget(this);
    frameButtons->setObjectName(QStringLiteral("frameButtons_%1").arg(page));
    auto* row = new QHBoxLayout(frameButtons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    for (int index = page * buttonsPerPage; index < (page + 1) * buttonsPerPage; ++index) {
        auto* button = new CaptionButton(frameButtons);
        button->setObjectName(QStringLiteral("Command1_%1").arg(index));
        button->setFocusPolicy(Qt::TabFocus);
        // All fifteen share the width there is, however long a caption is.
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        button->installEventFilter(this);
        LeaveByEscape(*button, frame_);
        connect(button, &QPushButton::clicked, this, [this, index] { Command1_Click(index); });
        row->addWidget(button, 1);
        command1_[static_cast<size_t>(index)] = button;
        SetCaption(index, QString());
    }
    return frameButtons;
}

QString UserButtons::Caption(int index) const {
    return index >= 0 && index < Count ? command1_[static_cast<size_t>(index)]->text() : QString();
}

void UserButtons::SetCaption(int index, const QString& caption) {
    if (index < 0 || index >= Count)
        return;
    QPushButton* button = command1_[static_cast<size_t>(index)];
    button->setText(caption);
    // The face is small: the tip shows the whole caption, and a blank face is read as its number.
    button->setToolTip(caption.trimmed().isEmpty() ? BlankTip() : caption.toHtmlEscaped());
    button->setAccessibleName(caption.isEmpty() ? tr("User button %1").arg(index + 1) : QString());
}

QString UserButtons::BlankTip() const {
    if (!frame_.Store().ReadFlag(Keys::BlankButtonTips))
        return QString();
    return tr("A button for tags of your own: to fill it, click it with the right mouse button or press the "
              "Menu key on it");
}

void UserButtons::TabStrip1_Click() {
    const bool first = tabStrip1_->tabText(tabStrip1_->currentIndex()) == QStringLiteral("User 1");
    frameButtons_[first ? 0 : 1]->show();
    frameButtons_[first ? 1 : 0]->hide();
}

void UserButtons::TakeFocus() {
    const size_t page = tabStrip1_->currentIndex() == 0 ? 0 : 1;
    command1_[page * buttonsPerPage]->setFocus(Qt::TabFocusReason);
}

UserButton UserButtons::Button(int index) const {
    const UserButtonTexts& state = frame_.State<UserButtonTexts>();
    const auto n = static_cast<size_t>(index);
    return {Caption(index), state.FirstBut[n], state.SecondBut[n]};
}

void UserButtons::TakeEdited(const UserButton& button) {
    UserButtonTexts& state = frame_.State<UserButtonTexts>();
    const auto n = static_cast<size_t>(tag_);
    SetCaption(tag_, button.caption);
    state.FirstBut[n] = button.first;
    state.SecondBut[n] = button.second;
}

void UserButtons::Command1_Click(int index) {
    const UserButton button = Button(index);
    InsertTag(frame_, button.first, button.second, KeepCase::No);
}

void UserButtons::Edit(int index) {
    tag_ = index;
    const frmTools& editor = frame_.LoadedForms().Show<frmTools>(frame_, Button(index));
    connect(&editor, &frmTools::Edited, this, &UserButtons::TakeEdited, Qt::UniqueConnection);
}

// A right press edits the button; so do the keyboard's ways to a context menu.
bool UserButtons::eventFilter(QObject* watched, QEvent* event) {
    const auto found = std::ranges::find(command1_, watched);
    if (found != command1_.end()) {
        const auto index = static_cast<int>(found - command1_.begin());
        if (event->type() == QEvent::MouseButtonPress &&
            static_cast<QMouseEvent*>(event)->button() == Qt::RightButton)
            Edit(index);
        if (event->type() == QEvent::ContextMenu) {
            if (static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard)
                Edit(index);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
