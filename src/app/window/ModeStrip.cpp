#include "app/window/ModeStrip.h"

#include "app/window/LeaveByEscape.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabBar>

using namespace Qt::StringLiterals;

ModeStrip::ModeStrip(Frame& frame) : tabStrip3_(new QTabBar(this)) {
    setObjectName(u"Picture4"_s);
    tabStrip3_->setObjectName(u"TabStrip3"_s);
    tabStrip3_->setAccessibleName(tr("Modes of the document"));
    tabStrip3_->setShape(QTabBar::RoundedSouth);
    tabStrip3_->setDrawBase(false);
    for (const QString& mode : {u"Edit"_s, u"Design"_s, u"View"_s})
        tabStrip3_->addTab(mode);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(tabStrip3_);
    row->addStretch();
    LeaveByEscape(*tabStrip3_, frame);
    const auto click = [this](int index) { Q_EMIT Click(tabStrip3_->tabText(index)); };
    connect(tabStrip3_, &QTabBar::currentChanged, this, click);
    // A press on another tab selects it, and comes that way.
    connect(tabStrip3_, &QTabBar::tabBarClicked, this, [this, click](int index) {
        if (index >= 0 && index == tabStrip3_->currentIndex())
            click(index);
    });
}

void ModeStrip::Select(const QString& caption) {
    const QSignalBlocker quiet(tabStrip3_);
    for (int index = 0; index < tabStrip3_->count(); ++index)
        if (tabStrip3_->tabText(index) == caption)
            tabStrip3_->setCurrentIndex(index);
}

void ModeStrip::AddKeys() {
    const auto bind = [this](const QKeySequence& key, int tabs) {
        // A shortcut of a strip that isn't shown leaves its key alone.
        auto* step = new QShortcut(key, this);
        // Each mode saves the page as it comes up.
        step->setAutoRepeat(false);
        connect(step, &QShortcut::activated, this, [this, tabs] { Step(tabs); });
    };
    bind(Qt::CTRL | Qt::Key_PageDown, 1);
    bind(Qt::CTRL | Qt::Key_PageUp, -1);
}

void ModeStrip::Step(int tabs) {
    const int count = tabStrip3_->count();
    tabStrip3_->setCurrentIndex((tabStrip3_->currentIndex() + tabs + count) % count);
}

void ModeStrip::TakeFocus() {
    tabStrip3_->setFocus(Qt::TabFocusReason);
}
