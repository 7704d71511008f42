// The document tab strip: one tab for each document that has a file.
#include "app/DocumentTabs.h"

#include <QSignalBlocker>

DocumentTabs::DocumentTabs(QWidget* parent) : QTabBar(parent) {
    setObjectName(QStringLiteral("TabStrip2"));
    setAccessibleName(tr("Documents"));
    setExpanding(false);
    setDrawBase(false);
    setElideMode(Qt::ElideNone);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QTabBar::currentChanged, this, &DocumentTabs::Click);
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
    if (const int index = IndexOf(path, TagOfTab); index >= 0)
        setCurrentIndex(index);
}

int DocumentTabs::IndexOf(const QString& path, Data which) const {
    for (int index = 0; index < count(); ++index)
        if (DataOf(index, which) == path)
            return index;
    return -1;
}
