// Keeps pages away from files that no page needs.
#pragma once

#include <QWebEngineUrlRequestInterceptor>

/// The engine lets no page read a file, and none from the web show one. What is left to refuse here: to show
/// in a frame what is hidden, a folder's list, or a file that a link leads to from outside of the site.
class FileGuard final : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT

  public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo& request) override;

    /// Whether a frame of a page may show a file. An address may climb out of the page's folder, as those of
    /// many sites do. But with its links resolved the file must lie below the folder that its address and the
    /// page's have in common, and must not be hidden there.
    static bool MayShow(const QString& page, const QString& file);
};
