// The page of the browser control: what it may ask of the user.
#pragma once

#include "web/PageBox.h"

#include <QPointer>
#include <QWebEnginePage>

/// A page speaks only while it is seen and the user isn't at work in another window, and from its second box
/// on the user can silence it: for as long as this object lives, since a page that loads itself again is the
/// same nuisance.
class BrowserPage final : public QWebEnginePage {
    Q_OBJECT

  public:
    using QWebEnginePage::QWebEnginePage;
    /// Ends the page's process too: a script without end would go on, and keep the engine busy.
    ~BrowserPage() override;

    /// A box is up. The page must not be deleted then: the engine is still in the middle of asking.
    bool Asking() const { return asking_; }
    /// Closes the box that is up, as Cancel does.
    void CloseBox();

  Q_SIGNALS:
    /// The last box was answered.
    void Answered();
    /// The page does nothing but ask, unheard, or load itself: it can't be reached any more, and only its end
    /// helps.
    void RanAway();

  protected:
    void javaScriptAlert(const QUrl& origin, const QString& message) override;
    bool javaScriptConfirm(const QUrl& origin, const QString& message) override;
    bool javaScriptPrompt(const QUrl& origin, const QString& message, const QString& proposal,
                          QString* result) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList& oldFiles,
                            const QStringList& types) override;
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    /// Says nothing: what pages tell their makers is no output of the program.
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                  const QString&) override {}

  private:
    struct Answer {
        bool ok = false;
        QString line;
    };

    bool IsHeard() const;
    /// Nothing where the page isn't heard.
    std::optional<Answer> Ask(const QUrl& origin, PageBox::Request request);
    QString Speaker(const QUrl& origin) const;
    void CountAct(int weight = 1);

    QPointer<PageBox> box_;
    bool asking_ = false;
    bool silenced_ = false;
    int boxes_ = 0;
    int acts_ = 0; ///< within this turn of its scripts
};
