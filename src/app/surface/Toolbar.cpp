#include "app/surface/Toolbar.h"

#include "app/surface/CommandActions.h"
#include "app/surface/FlowLayout.h"
#include "app/window/KnownForms.h"
#include "app/window/LeaveByEscape.h"
#include "dialogs/Icons.h"
#include "editor/frame/Frame.h"

#include <algorithm>
#include <QAction>
#include <QKeyEvent>
#include <QShortcut>
#include <QToolButton>

namespace {

// The tool tip of java is spelled as users know it.
const ToolbarRow designed[] = {
    {"new", "New"},
    {"open", "Open"},
    {"save", "Save"},
    {"print", "Print"},
    {"object", "Projects"},
    {"cut", "Cut"},
    {"copy", "Copy"},
    {"paste", "Paste"},
    {"delete", "Delete"},
    {"undo", "Undo"},
    {"find", "Find"},
    {"spell", "Spell Check"},
    {"bold", "Bold"},
    {"italic", "Italic"},
    {"underline", "Underline"},
    {"break", "Break"},
    {"para", "Paragraph"},
    {"hr", "Horizontal Rule"},
    {"abc", "Font"},
    {"pre", "Preformatted Text"},
    {"center", "Center"},
    {"balloon", "Comment"},
    {"preview", "Preview in web browser"},
    {"body", "Body"},
    {"form", "Form"},
    {"table", "Table"},
    {"frame", "Frame"},
    {"CSS", "Cascading Style Sheets"},
    {"Layer", "Create DHTML Layer"},
    {"java", "Jave Applet"},
    {"java2", "Java Parameter"},
    {"meta", "Insert Meta tag"},
    {"ftp", "FTP Upload"},
    {"link", "Link"},
    {"anchor", "Anchor"},
    {"image", "Image"},
    {"embed", "Embed"},
    {"dots", "Unordered List (bullets)"},
    {"onetwothree", "Ordered list"},
    {"split", "Columns"},
    {"rectangle", "Spacers"},
    {"h1", "Heading 1"},
    {"h2", "Heading 2"},
    {"h3", "Heading 3"},
    {"h4", "Heading 4"},
    {"h5", "Heading 5"},
    {"h6", "Heading 6"},
};

/// A button that stands up before its command runs. The one it is made of would be painted as pressed until
/// the command has ended, with the box on top that the command waits for.
class CommandButton final : public QToolButton {
  public:
    CommandButton(QAction& action, QWidget* parent) : QToolButton(parent) {
        setDefaultAction(&action);
        connect(this, &QToolButton::clicked, &action, &QAction::trigger);
    }

  protected:
    void nextCheckState() override {}
};

} // namespace

std::span<const ToolbarRow> ToolbarTable() {
    static const std::vector<ToolbarRow> buttons = ToolbarTable(KnownForms());
    return buttons;
}

std::vector<ToolbarRow> ToolbarTable(std::span<const FormRow> forms) {
    std::vector<ToolbarRow> buttons(std::begin(designed), std::end(designed));
    for (const FormRow& form : forms)
        if (const FormButton& button = form.reach.button; *button.toolTip)
            buttons.push_back({button.key, button.toolTip});
    return buttons;
}

Toolbar1::Toolbar1(Frame& frame, QWidget* parent) : QWidget(parent), frame_(frame) {
    setObjectName(QStringLiteral("Toolbar1"));
    setAccessibleName(tr("Toolbar"));
    auto* flow = new FlowLayout(this);
    flow->setSpacing(0);
    flow->setContentsMargins(2, 2, 2, 2);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    for (const ToolbarRow& row : ToolbarTable())
        AddButton(row);
    buttons_.first()->setFocusPolicy(Qt::TabFocus);
    reach_ = new QShortcut(Qt::Key_F6, this);
    connect(reach_, &QShortcut::activated, this, &Toolbar1::TakeFocus);
}

void Toolbar1::LeaveF6() {
    reach_->setEnabled(false);
}

void Toolbar1::AddButton(const ToolbarRow& row) {
    const QString key = QString::fromLatin1(row.key);
    const QString toolTip = QString::fromLatin1(row.toolTip);
    QAction* action = MakeCommandAction(QStringLiteral("tb_") + key, toolTip, frame_.Commands(), this);
    action->setToolTip(toolTip);
    action->setIcon(ToolbarIcon(key));
    auto* button = new CommandButton(*action, this);
    button->setObjectName(action->objectName());
    button->setAutoRaise(true);
    button->setIconSize(QSize(24, 24));
    button->setAccessibleName(toolTip);
    // A click leaves the focus with the document.
    button->setFocusPolicy(Qt::NoFocus);
    button->installEventFilter(this);
    LeaveByEscape(*button, frame_);
    layout()->addWidget(button);
    buttons_.push_back(button);
}

bool Toolbar1::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const qsizetype at = buttons_.indexOf(watched);
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Right:
        MoveFocus(at, forward);
        return true;
    case Qt::Key_Left:
        MoveFocus(at, -forward);
        return true;
    case Qt::Key_Down:
        MoveFocus(at, 1);
        return true;
    case Qt::Key_Up:
        MoveFocus(at, -1);
        return true;
    case Qt::Key_Home:
        MoveFocus(-1, 1);
        return true;
    case Qt::Key_End:
        MoveFocus(buttons_.size(), -1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        buttons_[at]->click();
        return true;
    default:
        return false;
    }
}

void Toolbar1::TakeFocus() {
    const auto stop = std::ranges::find_if(
        buttons_, [](const QToolButton* button) { return button->focusPolicy() != Qt::NoFocus; });
    MoveFocus(stop - buttons_.begin() - 1, 1);
}

// Goes on from a place, in steps of 1 or -1 and around the ends, to the next button that can be pressed. That
// one becomes the stop of the Tab key.
void Toolbar1::MoveFocus(qsizetype from, int step) {
    const qsizetype count = buttons_.size();
    for (qsizetype tried = 1; tried <= count; ++tried) {
        QToolButton* button = buttons_[(from + step * tried + 2 * count) % count];
        if (!button->isEnabled())
            continue;
        for (QToolButton* other : buttons_)
            other->setFocusPolicy(other == button ? Qt::TabFocus : Qt::NoFocus);
        button->setFocus(Qt::TabFocusReason);
        return;
    }
}
