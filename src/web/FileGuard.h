// Keeps the scripts of pages away from the user's files.
#pragma once

#include <QWebEngineUrlRequestInterceptor>

/// A page from the disk shows the pictures, styles and scripts of the disk, and in its frames what lies in
/// its own folder and below. To read a file as data, or to frame one from elsewhere, as a script would to
/// send it away, is refused. A page from the web reaches no file at all: that is the engine's own rule.
class FileGuard final : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT

  public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo& request) override;

    /// Whether a file lies in the folder of a page or below, and is not hidden there.
    static bool LiesBeside(const QString& page, const QString& file);
};
