#include "app/window/WindowChooserList.h"

#include "app/documents/DocumentName.h"
#include "app/documents/frmTemplate.h"
#include "platform/values/Path.h"

#include <algorithm>
#include <QAccessible>
#include <QMdiArea>

namespace {

constexpr int mostRows = 12;
constexpr int leastWidth = 240;
constexpr QSize pictureSize(16, 16);

/// An icon that a selection leaves in its colours.
QIcon InItsColors(const QMdiSubWindow& window) {
    const QPixmap picture = window.windowIcon().pixmap(pictureSize, window.devicePixelRatioF());
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected);
    return icon;
}

} // namespace

WindowChooserList::WindowChooserList(QMdiArea& area) : QListWidget(area.parentWidget()) {
    setObjectName(QStringLiteral("WindowChooser"));
    setAccessibleName(tr("Open documents"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    setIconSize(pictureSize);
    for (QMdiSubWindow* window : area.subWindowList()) {
        const auto* document = qobject_cast<frmTemplate*>(window);
        const QString name = document ? DocumentName(*document) : window->windowTitle();
        addItem(new QListWidgetItem(InItsColors(*window), Row(name)));
        windows_ << window;
    }
    resize(SizeIn(area));
    move(area.geometry().center() - rect().center());
    show();
}

QString WindowChooserList::Row(const QString& name) {
    const QString file = Path::FileName(name);
    return file == name ? name : QStringLiteral("%1 - %2").arg(file, FolderOf(name));
}

QSize WindowChooserList::SizeIn(const QMdiArea& area) const {
    const int edges = 2 * frameWidth();
    const int rows = std::min(count(), mostRows);
    const QSize wanted(std::max(sizeHintForColumn(0), leastWidth) + edges, rows * sizeHintForRow(0) + edges);
    return wanted.boundedTo(area.size() * 9 / 10);
}

void WindowChooserList::Choose(const QMdiSubWindow& window) {
    const auto row = static_cast<int>(windows_.indexOf(&window));
    setCurrentRow(row);
    QAccessibleEvent chosen(this, QAccessible::Focus);
    chosen.setChild(row);
    QAccessible::updateAccessibility(&chosen);
}
