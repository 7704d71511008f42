#include "platform/desktop/SideBar.h"

#include "platform/store/PathLookup.h"

#include <algorithm>
#include <filesystem>
#include <QDateTime>
#include <QHeaderView>
#include <QLocale>
#include <QScreen>
#include <QSemaphore>
#include <QSet>
#include <QSplitter>
#include <QTreeView>
#include <utility>

namespace {

constexpr int widestDialog = 1000;
constexpr int highestDialog = 600;
constexpr int nameColumn = 0;
// In letters.
constexpr int sideBarLength = 24;
constexpr int shortestName = 44;
/// Margins, frames and a scroll bar, in pixels.
constexpr int edges = 60;

bool IsFolder(const QString& path) {
    std::error_code failure;
    return std::filesystem::is_directory(path.toStdU16String(), failure);
}

QTreeView* DetailsOf(const QFileDialog& dialog) {
    return dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
}

QSplitter* SplitterOf(const QFileDialog& dialog) {
    return dialog.findChild<QSplitter*>(QStringLiteral("splitter"));
}

} // namespace

QList<QUrl> SideBarUrls(const QList<QUrl>& before, const QStringList& folders) {
    QList<QUrl> urls = before;
    for (const QString& folder : folders) {
        const QUrl url =
            QUrl::fromLocalFile(folder).adjusted(QUrl::NormalizePathSegments | QUrl::StripTrailingSlash);
        if (!urls.contains(url))
            urls << url;
    }
    return urls;
}

QStringList ExistingFolders(const QStringList& paths, std::chrono::milliseconds patience) {
    QSet<QString> folders;
    QSemaphore answers;
    // What is still to come when the lookup goes touches nothing here.
    {
        PathLookup lookup(IsFolder, [&](const QString& path, bool isFolder) {
            if (isFolder)
                folders << path;
            answers.release();
        });
        for (const QString& path : paths)
            lookup.Ask(path);
        answers.tryAcquire(static_cast<int>(paths.size()), static_cast<int>(patience.count()));
    }
    QStringList existing = paths;
    existing.removeIf([&](const QString& path) { return !folders.contains(path); });
    return existing;
}

LentSideBar::LentSideBar(QFileDialog& dialog, const QStringList& folders) : dialog_(dialog) {
    const QList<QUrl> before = dialog.sidebarUrls();
    const QList<QUrl> all = SideBarUrls(before, folders);
    lent_ = all.sliced(before.size());
    if (!lent_.isEmpty())
        dialog.setSidebarUrls(all);
}

LentSideBar::~LentSideBar() {
    if (lent_.isEmpty())
        return;
    QList<QUrl> urls = dialog_.sidebarUrls();
    urls.removeIf([this](const QUrl& url) { return lent_.contains(url); });
    dialog_.setSidebarUrls(urls);
}

WideColumns::WideColumns(QFileDialog& dialog, int beside) : dialog_(dialog) {
    if (!DetailsOf(dialog) || !SplitterOf(dialog))
        return;
    const QSize room = dialog.screen()->availableSize() * 9 / 10 - QSize(beside, 0);
    dialog.resize(dialog.size().expandedTo({widestDialog, highestDialog}).boundedTo(room));
    columns_ = DetailsOf(dialog)->header()->saveState();
    sideBar_ = SplitterOf(dialog)->sizes().constFirst();
    Widen();
    wideColumns_ = DetailsOf(dialog)->header()->saveState();
    sideBarMoved_ =
        QObject::connect(SplitterOf(dialog), &QSplitter::splitterMoved, &dialog, [this] { sideBar_ = 0; });
}

void WideColumns::Widen() {
    QHeaderView& header = *DetailsOf(dialog_)->header();
    const QFontMetrics letters = dialog_.fontMetrics();
    const int sideBar = letters.averageCharWidth() * sideBarLength;
    SplitterOf(dialog_)->setSizes({sideBar, dialog_.width() - sideBar});
    const QString date =
        QLocale().toString(QDateTime(QDate(2028, 12, 28), QTime(22, 58, 58)), QLocale::ShortFormat);
    // What the columns beside the name hold, about at its longest; the name gets the rest.
    int rest = dialog_.width() - sideBar - edges;
    for (const auto& [column, longest] :
         {std::pair{1, QStringLiteral("888.88 MiB")}, {2, QStringLiteral("JPEG Image file")}, {3, date}}) {
        const int width = letters.horizontalAdvance(longest) + letters.height();
        header.resizeSection(column, width);
        rest -= width;
    }
    header.resizeSection(nameColumn, std::max({rest, header.sectionSize(nameColumn),
                                               letters.averageCharWidth() * shortestName}));
}

WideColumns::~WideColumns() {
    QObject::disconnect(sideBarMoved_);
    if (!wideColumns_.isEmpty() && DetailsOf(dialog_)->header()->saveState() == wideColumns_)
        DetailsOf(dialog_)->header()->restoreState(columns_);
    if (sideBar_ > 0)
        SplitterOf(dialog_)->setSizes({sideBar_, dialog_.width() - sideBar_});
}
