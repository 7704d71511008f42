#include "web/WebPane.h"

#include "web/FileGuard.h"
#include "web/FilesApart.h"

#include <QVBoxLayout>
#include <QWebEngineDownloadRequest>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineView>

namespace {

/// Pages are strangers: none may reach the user's files, windows, clipboard or disk.
void Restrict(QWebEngineSettings& settings) {
    for (const auto attribute :
         {QWebEngineSettings::JavascriptCanOpenWindows, QWebEngineSettings::JavascriptCanAccessClipboard,
          QWebEngineSettings::AllowWindowActivationFromJavaScript,
          QWebEngineSettings::HyperlinkAuditingEnabled, QWebEngineSettings::PluginsEnabled,
          QWebEngineSettings::ScreenCaptureEnabled, QWebEngineSettings::FullScreenSupportEnabled,
          QWebEngineSettings::DnsPrefetchEnabled, QWebEngineSettings::AutoLoadIconsForPage,
          QWebEngineSettings::NavigateOnDropEnabled})
        settings.setAttribute(attribute, false);
    // The pages of a site on the disk show pictures from the web and link to it.
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
    settings.setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
    settings.setDefaultTextEncoding(QStringLiteral("windows-1252"));
}

std::shared_ptr<QWebEngineProfile> MakeProfile() {
    // The first profile starts the engine. One without a name keeps everything in memory.
    const FilesApart apart;
    auto profile = std::make_shared<QWebEngineProfile>();
    Restrict(*profile->settings());
    profile->setUrlRequestInterceptor(new FileGuard(profile.get()));
    QObject::connect(profile.get(), &QWebEngineProfile::downloadRequested, profile.get(),
                     [](QWebEngineDownloadRequest* download) { download->cancel(); });
    return profile;
}

} // namespace

std::shared_ptr<QWebEngineProfile> SharedWebProfile() {
    static std::weak_ptr<QWebEngineProfile> shared;
    auto profile = shared.lock();
    if (!profile)
        shared = profile = MakeProfile();
    return profile;
}

WebPane::WebPane(QWidget* parent) : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    // It lies over the source text, and must not let it show through.
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    hide();
}

WebPane::~WebPane() {
    // The page goes before the profile that it was made with.
    delete view_;
}

QWebEngineProfile& WebPane::Profile() {
    if (!profile_)
        profile_ = SharedWebProfile();
    return *profile_;
}

QWebEnginePage* WebPane::Page() const {
    return view_ ? view_->page() : nullptr;
}

void WebPane::ShowPage(std::unique_ptr<QWebEnginePage> page) {
    QWebEnginePage* shown = page.release();
    connect(
        shown, &QWebEnginePage::renderProcessTerminated, this,
        [this, shown] {
            if (Page() == shown)
                End();
        },
        Qt::QueuedConnection);
    if (view_) {
        // The view deletes the page it had: that is a child of the view.
        view_->setPage(shown);
    } else {
        view_ = new QWebEngineView(shown, this);
        layout()->addWidget(view_);
        setFocusProxy(view_);
    }
    shown->setParent(view_);
}

void WebPane::PassFocusOn() {
    QWidget* focused = window()->focusWidget();
    if (!view_ || !focused || !isAncestorOf(focused))
        return;
    // It may be in the new page's control already, which the engine was told before there was a page.
    focused->clearFocus();
    view_->setFocus();
}

void WebPane::Empty() {
    if (!view_)
        return;
    setFocusProxy(nullptr);
    delete view_;
    view_ = nullptr;
    Emptied();
}
