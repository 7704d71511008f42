#include "web/BrowserPage.h"

#include <algorithm>
#include <QApplication>
#include <QFileDialog>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QWebEngineScript>
#include <QWebEngineView>

#ifdef Q_OS_UNIX
#include <csignal>
#endif

namespace {

// So often no page asks, or goes elsewhere, within one turn of its scripts, unless in a loop without end.
constexpr int runawayCount = 100;
constexpr int navigationWeight = 4;

/// The engine puts the question whether to leave a page in these words, as a question of the page.
bool IsAboutLeaving(const QString& message) {
    return message ==
           QCoreApplication::translate(
               "QWebEnginePage",
               "Are you sure you want to leave this page? Changes that you made may not be saved.");
}

/// The user may be at work elsewhere: in another document's window, in a dialog or a menu.
bool IsInFront(const QWidget& view) {
    const QWidget* active = QApplication::activeWindow();
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
        (active && active != view.window()))
        return false;
    for (const QWidget* around = &view; around; around = around->parentWidget()) {
        if (const auto* document = qobject_cast<const QMdiSubWindow*>(around))
            return document->mdiArea() && document->mdiArea()->currentSubWindow() == document;
    }
    return true;
}

/// The engine can let several pages share a process, once there are very many.
bool IsShared(qint64 process, const QWebEnginePage* by) {
    const QWidgetList widgets = QApplication::allWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [&](const QWidget* widget) {
        const auto* view = qobject_cast<const QWebEngineView*>(widget);
        return view && view->page() != by && view->page()->renderProcessPid() == process;
    });
}

} // namespace

BrowserPage::~BrowserPage() {
#ifdef Q_OS_UNIX
    // The engine ends it too, but takes up all that the page has asked for before.
    const qint64 process = renderProcessPid();
    if (process > 0 && process != QCoreApplication::applicationPid() && !IsShared(process, this))
        ::kill(static_cast<pid_t>(process), SIGKILL);
#endif
}

void BrowserPage::CloseBox() {
    if (box_)
        box_->reject();
}

bool BrowserPage::IsHeard() const {
    const auto* view = QWebEngineView::forPage(this);
    return !silenced_ && view && view->isVisible() && IsInFront(*view);
}

std::optional<BrowserPage::Answer> BrowserPage::Ask(const QUrl& origin, PageBox::Request request) {
    if (asking_ || !IsHeard()) {
        CountAct();
        return std::nullopt;
    }
    request.speaker = Speaker(origin);
    request.offersSilence = ++boxes_ > 1;
    const QPointer<BrowserPage> self(this);
    asking_ = true;
    box_ = new PageBox(request, QWebEngineView::forPage(this));
    const QPointer<PageBox> box = box_;
    const bool ok = box->exec() == QDialog::Accepted;
    Answer answer{ok, ok && box ? box->Line() : QString()};
    if (!self)
        return answer;
    asking_ = false;
    if (box) {
        silenced_ = box->WantsSilence();
        delete box;
    }
    emit Answered();
    return answer;
}

QString BrowserPage::Speaker(const QUrl& origin) const {
    if (!origin.host().isEmpty())
        return origin.host();
    return url().isLocalFile() ? url().fileName() : url().host();
}

void BrowserPage::CountAct(int weight) {
    // It counts from one turn of the page's scripts to the next: a page that answers in between is alive.
    const int before = acts_;
    acts_ += weight;
    if (before == 0)
        runJavaScript(QStringLiteral("0"), QWebEngineScript::ApplicationWorld,
                      [self = QPointer<BrowserPage>(this)](const QVariant&) {
                          if (self)
                              self->acts_ = 0;
                      });
    if (before < runawayCount && acts_ >= runawayCount)
        emit RanAway();
}

bool BrowserPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
    // Each costs the engine more to take up than the page to ask for: they pile up, and the next page waits
    // behind all of them.
    if (isMainFrame)
        CountAct(navigationWeight);
    return QWebEnginePage::acceptNavigationRequest(url, type, isMainFrame);
}

void BrowserPage::javaScriptAlert(const QUrl& origin, const QString& message) {
    Ask(origin, {.message = message});
}

bool BrowserPage::javaScriptConfirm(const QUrl& origin, const QString& message) {
    const auto answer = Ask(origin, {.message = message, .question = true});
    // A page that isn't heard keeps nobody from leaving it.
    return answer ? answer->ok : IsAboutLeaving(message);
}

bool BrowserPage::javaScriptPrompt(const QUrl& origin, const QString& message, const QString& proposal,
                                   QString* result) {
    const auto answer = Ask(origin, {.message = message, .question = true, .proposal = proposal});
    if (answer && answer->ok)
        *result = answer->line;
    return answer && answer->ok;
}

QStringList BrowserPage::chooseFiles(FileSelectionMode mode, const QStringList&, const QStringList&) {
    // Neither whole folders nor a file to write are a page's business.
    if (!IsHeard() || (mode != FileSelectOpen && mode != FileSelectOpenMultiple))
        return {};
    const QString title = QStringLiteral("File for the Page \"%1\" to Read").arg(Speaker(QUrl()));
    QWidget* view = QWebEngineView::forPage(this);
    if (mode == FileSelectOpenMultiple)
        return QFileDialog::getOpenFileNames(view, title);
    const QString file = QFileDialog::getOpenFileName(view, title);
    return file.isEmpty() ? QStringList() : QStringList(file);
}
