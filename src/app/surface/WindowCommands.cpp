#include "app/surface/WindowCommands.h"

#include "app/documents/DocumentName.h"
#include "app/documents/frmTemplate.h"
#include "app/surface/ShownTextEntry.h"
#include "app/window/WindowPlace.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"

#include <QActionGroup>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

QList<QMdiSubWindow*> Windows(const QMdiArea& area, bool minimised) {
    QList<QMdiSubWindow*> windows;
    for (QMdiSubWindow* window : area.subWindowList())
        if (window->isMinimized() == minimised)
            windows << window;
    return windows;
}

void mnuCascade_Click(QMdiArea& area) {
    area.cascadeSubWindows();
}

void mnuTile_Click(QMdiArea& area) {
    const QList<QMdiSubWindow*> windows = Windows(area, false);
    // They stand side by side: one that fills the area goes back to its normal size first.
    for (QMdiSubWindow* window : windows)
        if (window->isMaximized())
            window->showNormal();
    const QList<QRect> places =
        WindowPlace::TiledHorizontally(static_cast<int>(windows.size()), area.viewport()->size());
    for (qsizetype n = 0; n < windows.size(); ++n)
        windows[n]->setGeometry(places[n]);
}

void mnuArrangeIcons_Click(QMdiArea& area) {
    const QList<QMdiSubWindow*> icons = Windows(area, true);
    if (icons.isEmpty())
        return;
    const QList<QRect> places = WindowPlace::IconsInRows(static_cast<int>(icons.size()),
                                                         icons.first()->size(), area.viewport()->size());
    for (qsizetype n = 0; n < icons.size(); ++n)
        icons[n]->setGeometry(places[n]);
}

// "&1 /home/u/a.htm": a digit key for the first nine windows. A document without a file has a blank name.
QString ListCaption(int number, QString name) {
    name.replace(u'&', u"&&"_s);
    return u"%1%2 %3"_s.arg(number < 10 ? u"&"_s : QString()).arg(number).arg(name);
}

class WindowList : public QObject {
  public:
    WindowList(QMenu& menu, Frame& frame, QMdiArea& area)
        : QObject(&menu), menu_(menu), frame_(frame), area_(area) {
        connect(&menu, &QMenu::aboutToShow, this, &WindowList::Update);
    }

  private:
    void Update() {
        entries_ = std::make_unique<QActionGroup>(&menu_);
        const QList<QMdiSubWindow*> windows = area_.subWindowList();
        if (windows.isEmpty())
            return;
        AddSeparator();
        int number = 0;
        for (QMdiSubWindow* window : windows)
            AddWindow(++number, window);
    }

    void AddSeparator() {
        auto* separator = new QAction(entries_.get());
        separator->setSeparator(true);
        menu_.addAction(separator);
    }

    QAction* MakeEntry(int number, const QMdiSubWindow& window) {
        const auto* document = qobject_cast<const frmTemplate*>(&window);
        const QString text = ListCaption(number, document ? document->Caption() : window.windowTitle());
        if (!document || !document->Caption().isEmpty() || !frame_.Store().ReadFlag(Keys::UntitledNames))
            return new QAction(text, entries_.get());
        return new ShownTextEntry(text, ListCaption(number, DocumentName(*document)), menu_, entries_.get());
    }

    void AddWindow(int number, QMdiSubWindow* window) {
        QAction* entry = MakeEntry(number, *window);
        entry->setObjectName(u"mnuWindowList_%1"_s.arg(number));
        entry->setCheckable(true);
        entry->setChecked(frame_.ActiveForm() == dynamic_cast<Document*>(window));
        entries_->addAction(entry);
        menu_.addAction(entry);
        connect(entry, &QAction::triggered, window, [this, window] {
            if (window->isMinimized())
                window->showNormal();
            if (auto* chosen = dynamic_cast<Document*>(window))
                frame_.ActivateDocument(*chosen);
        });
    }

    QMenu& menu_;
    Frame& frame_;
    QMdiArea& area_;
    /// Owns the entries, separator included: they leave the menu with it.
    std::unique_ptr<QActionGroup> entries_;
};

} // namespace

void FillWindowCommands(CommandSet& commands, QMdiArea& area) {
    commands.Set(u"mnuCascade"_s, [&area] { mnuCascade_Click(area); });
    commands.Set(u"mnuTile"_s, [&area] { mnuTile_Click(area); });
    commands.Set(u"mnuArrangeIcons"_s, [&area] { mnuArrangeIcons_Click(area); });
}

void ListWindows(QMenu& mnuWindow, Frame& frame, QMdiArea& area) {
    new WindowList(mnuWindow, frame, area);
}
