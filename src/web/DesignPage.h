// The page of the design control: it shows one text, lets the user edit it, and goes nowhere.
#pragma once

#include <functional>
#include <optional>
#include <QString>
#include <QWebEnginePage>

class PageSource;

/// What came of a question to the page.
struct EditedPage {
    bool changed = false;
    bool headChanged = false; ///< the head or the tags around the body: body alone won't do then
    QString body;             ///< the body's content
    QString document;         ///< from the html tag on, where headChanged
};

/// Scripts of the page itself don't run. Ours do, in a world of their own.
class DesignPage final : public QWebEnginePage {
    Q_OBJECT

  public:
    explicit DesignPage(QWebEngineProfile& profile);

    /// Shows a text as the page of a file, whose folder its relative links start from. Emits Shown.
    void Show(const PageSource& source, const QString& path);
    /// Asks for what the user made of it. The answer comes later; it is nothing, or never comes, if the
    /// engine dies.
    void Collect(std::function<void(const std::optional<EditedPage>&)> answer);
    /// What Collect gave last is in the file now: from here on it counts as unchanged.
    void MarkSaved();

  Q_SIGNALS:
    /// The page can be edited; false where it could not be shown.
    void Shown(bool ok);

  protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;

  private:
    void Fill(bool ok);

    QString fill_;
    bool opening_ = false;
};
