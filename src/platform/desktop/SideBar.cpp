#include "platform/desktop/SideBar.h"

#include <algorithm>
#include <condition_variable>
#include <filesystem>
#include <memory>
#include <mutex>
#include <QDateTime>
#include <QHeaderView>
#include <QLocale>
#include <QScreen>
#include <QSplitter>
#include <QTreeView>
#include <thread>
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

/// What a thread finds out about folders, and how far it is.
struct Inquiry {
    std::mutex mutex;
    std::condition_variable answered;
    std::vector<std::filesystem::path> paths;
    std::vector<bool> isFolder;
};

void Inquire(const std::shared_ptr<Inquiry>& inquiry) {
    for (const std::filesystem::path& path : inquiry->paths) {
        std::error_code failure;
        const bool isFolder = std::filesystem::is_directory(path, failure);
        const std::lock_guard lock(inquiry->mutex);
        inquiry->isFolder.push_back(isFolder);
        inquiry->answered.notify_one();
    }
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
    if (paths.isEmpty())
        return {};
    const auto inquiry = std::make_shared<Inquiry>();
    for (const QString& path : paths)
        inquiry->paths.emplace_back(path.toStdU16String());
    // A thread that hangs in the system is left to itself; all it touches is its own.
    std::thread([inquiry] { Inquire(inquiry); }).detach();
    std::unique_lock lock(inquiry->mutex);
    inquiry->answered.wait_for(lock, patience,
                               [&] { return inquiry->isFolder.size() == inquiry->paths.size(); });
    QStringList folders;
    for (std::size_t i = 0; i < inquiry->isFolder.size(); ++i)
        if (inquiry->isFolder[i])
            folders << paths[static_cast<qsizetype>(i)];
    return folders;
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
