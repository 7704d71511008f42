#include "platform/desktop/SideBar.h"

#include <algorithm>
#include <condition_variable>
#include <filesystem>
#include <memory>
#include <mutex>
#include <QHeaderView>
#include <QScreen>
#include <QTreeView>
#include <thread>
#include <utility>

namespace {

constexpr int widestDialog = 1000;
constexpr int highestDialog = 600;
constexpr int nameColumn = 0;

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

WideColumns::WideColumns(QFileDialog& dialog) : dialog_(dialog) {
    QTreeView* details = DetailsOf(dialog);
    if (!details)
        return;
    const QSize room = dialog.screen()->availableSize() * 9 / 10;
    dialog.resize(dialog.size().expandedTo({widestDialog, highestDialog}).boundedTo(room));
    QHeaderView& header = *details->header();
    before_ = header.saveState();
    const QFontMetrics letters = details->fontMetrics();
    // What the columns beside the name hold at their longest.
    for (const auto& [column, longest] :
         {std::pair{1, "8888.88 MiB"}, {2, "Drag and Drop"}, {3, "88/88/8888 88:88 PM"}})
        header.resizeSection(column,
                             letters.horizontalAdvance(QString::fromLatin1(longest)) + 2 * letters.height());
    header.resizeSection(nameColumn, letters.averageCharWidth() * 48);
    wide_ = header.saveState();
}

WideColumns::~WideColumns() {
    QTreeView* details = DetailsOf(dialog_);
    if (details && details->header()->saveState() == wide_)
        details->header()->restoreState(before_);
}
