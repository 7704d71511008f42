#include "app/window/DocumentTabs.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionTab>
#include <utility>

namespace {

constexpr int markSize = 7;

} // namespace

DocumentTabs::DocumentTabs(QWidget* parent) : QTabBar(parent) {
    setObjectName(QStringLiteral("TabStrip2"));
    setAccessibleName(tr("Documents"));
    setExpanding(false);
    setDrawBase(false);
    setElideMode(Qt::ElideNone);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        ShowSelection(true);
        Q_EMIT Click(index);
    });
    // A press on another tab selects it, and comes that way.
    connect(this, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index >= 0 && index == currentIndex())
            Q_EMIT Click(index);
    });
}

void DocumentTabs::Add(const QString& path, const QString& caption) {
    const QSignalBlocker quiet(this);
    if (IndexOf(path, Key) < 0) {
        QString shown = caption;
        const int index = addTab(shown.replace(u'&', QStringLiteral("&&")));
        setTabData(index, QStringList{path, path});
        setTabToolTip(index, path);
    }
    const int last = count() - 1;
    setTabData(last, QStringList{DataOf(last, Key), path});
}

void DocumentTabs::Remove(const QString& path) {
    const QSignalBlocker quiet(this);
    if (const int index = IndexOf(path, Key); index >= 0)
        removeTab(index);
}

void DocumentTabs::RemoveAll() {
    const QSignalBlocker quiet(this);
    while (count() > 0)
        removeTab(0);
}

void DocumentTabs::Select(const QString& path) {
    const QSignalBlocker quiet(this);
    const int index = IndexOf(path, TagOfTab);
    if (index >= 0)
        setCurrentIndex(index);
    ShowSelection(index >= 0);
}

void DocumentTabs::TakeFocus() {
    if (count() > 0)
        setFocus(Qt::TabFocusReason);
}

void DocumentTabs::ShowSelection(bool shown) {
    showsSelection_ = shown;
    update();
}

void DocumentTabs::SetMarked(const QStringList& paths) {
    const QSet<QString> before = std::exchange(marked_, QSet<QString>(paths.begin(), paths.end()));
    for (int index = 0; index < count(); ++index)
        if (before.contains(DataOf(index, Key)) != IsMarked(index))
            TellMark(index);
}

void DocumentTabs::TellMark(int index) {
    const QString path = DataOf(index, Key);
    setTabToolTip(index, IsMarked(index) ? tr("%1\nModified").arg(path) : path);
    update(tabRect(index));
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    changed.setChild(index);
    QAccessible::updateAccessibility(&changed);
}

// It lies in the room that a tab has beside its caption, so that no tab moves as one is marked.
QRectF DocumentTabs::MarkPlace(int index) const {
    const QRect tab = tabRect(index);
    const int room = style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, this) / 2;
    const QRect end = QStyle::visualRect(layoutDirection(), tab,
                                         QRect(tab.right() + 1 - room, tab.top(), room, tab.height()));
    QRectF mark(0, 0, markSize, markSize);
    mark.moveCenter(QRectF(end).center());
    return mark;
}

void DocumentTabs::paintEvent(QPaintEvent* event) {
    QTabBar::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().windowText());
    for (int index = 0; index < count(); ++index)
        if (IsMarked(index))
            painter.drawEllipse(MarkPlace(index));
}

// A bar that has tabs always has a current one; it only looks like the others.
void DocumentTabs::initStyleOption(QStyleOptionTab* option, int index) const {
    QTabBar::initStyleOption(option, index);
    if (showsSelection_)
        return;
    option->state &= ~QStyle::State_Selected;
    option->selectedPosition = QStyleOptionTab::NotAdjacent;
}

void DocumentTabs::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (currentIndex() >= 0 && (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter))
        Q_EMIT Click(currentIndex());
    else
        QTabBar::keyPressEvent(event);
}

// While it is not on the screen yet the bar keeps quiet about its size, and a strip that was laid out without
// a tab would stay flat.
void DocumentTabs::tabInserted(int) {
    updateGeometry();
}

void DocumentTabs::tabRemoved(int) {
    updateGeometry();
}

int DocumentTabs::IndexOf(const QString& path, Data which) const {
    for (int index = 0; index < count(); ++index)
        if (DataOf(index, which) == path)
            return index;
    return -1;
}
