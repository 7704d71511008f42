#include "web/BrowserPane.h"

#include "web/BrowserPage.h"

#include <QFileInfo>
#include <QUrl>
#include <QWebEngineSettings>

BrowserPane::~BrowserPane() {
    BrowserPage* page = Browsed();
    if (!page || !page->Asking())
        return;
    // It lives until the engine has its answer, and its profile as long.
    page->setParent(nullptr);
    connect(
        page, &BrowserPage::Answered, page, [page, profile = SharedWebProfile()] { page->deleteLater(); },
        Qt::QueuedConnection);
    page->CloseBox();
}

BrowserPage* BrowserPane::Browsed() const {
    return static_cast<BrowserPage*>(Page());
}

bool BrowserPane::Navigate(const QString& path) {
    const QFileInfo file(path);
    if (path.isEmpty() || !file.isFile() || !file.isReadable())
        return false;
    OnceAnswered([this, path = file.absoluteFilePath()] { Show(path); });
    return true;
}

void BrowserPane::Show(const QString& path) {
    // A new page each time: the old one can be caught in its scripts, and would hold up the next.
    auto page = std::make_unique<BrowserPage>(&Profile());
    BrowserPage* shown = page.get();
    connect(
        shown, &BrowserPage::RanAway, this,
        [this, shown] {
            if (Page() == shown)
                End();
        },
        Qt::QueuedConnection);
    connect(
        shown, &BrowserPage::Answered, this,
        [this] {
            if (const auto step = std::exchange(onceAnswered_, nullptr))
                step();
        },
        Qt::QueuedConnection);
    connect(
        shown, &BrowserPage::loadFinished, this,
        [this, shown] {
            if (Page() == shown)
                PassFocusOn();
        },
        Qt::SingleShotConnection);
    connect(shown, &BrowserPage::featurePermissionRequested, shown,
            [shown](const QUrl& origin, QWebEnginePage::Feature feature) {
                shown->setFeaturePermission(origin, feature, QWebEnginePage::PermissionDeniedByUser);
            });
    // A page that names no encoding has that of its document.
    if (IsUtf8(encoding_))
        shown->settings()->setDefaultTextEncoding(QStringLiteral("utf-8"));
    ShowPage(std::move(page));
    shown->load(QUrl::fromLocalFile(path));
}

void BrowserPane::End() {
    // A page that waits to be shown takes the place of this one anyway.
    if (!onceAnswered_)
        OnceAnswered([this] { Empty(); });
}

void BrowserPane::OnceAnswered(std::function<void()> step) {
    BrowserPage* page = Browsed();
    if (!page || !page->Asking()) {
        step();
        return;
    }
    onceAnswered_ = std::move(step);
    page->CloseBox();
}
