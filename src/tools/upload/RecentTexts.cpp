#include "tools/upload/RecentTexts.h"

#include "platform/store/Settings.h"

#include <QApplication>
#include <QComboBox>

RecentTexts::RecentTexts(QComboBox& box, Key key) : QObject(&box), box_(box), key_(key) {
    box_.setInsertPolicy(QComboBox::NoInsert);
    box_.setCompleter(nullptr);
    connect(qApp, &QApplication::focusChanged, this, &RecentTexts::FocusChanged);
}

bool RecentTexts::Holds(const QWidget* widget) const {
    return widget && (widget == &box_ || box_.isAncestorOf(widget));
}

/// The box is left for another control of its window. What takes the keys to another window, the box's own
/// list included, does not leave it.
void RecentTexts::FocusChanged(const QWidget* from, const QWidget* to) {
    if (Holds(from) && to && !Holds(to) && to->window() == box_.window())
        LostFocus();
}

void RecentTexts::LostFocus() {
    const QString text = box_.currentText();
    box_.insertItem(0, text);
    box_.setCurrentIndex(0);
}

void RecentTexts::Load(const Settings& store) {
    for (int n = 0; n < Kept; ++n) {
        const QString text = store.Read(key_(n));
        if (!text.isEmpty() && n <= box_.count())
            box_.insertItem(n, text);
    }
    box_.setCurrentIndex(box_.count() > 0 ? 0 : -1);
}

void RecentTexts::Save(Settings& store) const {
    for (int n = 0; n < Kept && n < box_.count(); ++n)
        if (!box_.itemText(n).isEmpty())
            store.Write(key_(n), box_.itemText(n));
}
