// The page of the browser control: what it may ask of the user.
#include "web/BrowserPage.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QWebEngineScript>
#include <QWebEngineView>

namespace {

// So often no page asks within one turn of its scripts, unless in a loop without end.
constexpr int runawayCount = 100;

/// The engine puts the question whether to leave a page in these words, as a question of the page.
bool IsAboutLeaving(const QString& message) {
    return message ==
           QCoreApplication::translate(
               "QWebEnginePage",
               "Are you sure you want to leave this page? Changes that you made may not be saved.");
}

} // namespace

void BrowserPage::CloseBox() {
    if (box_)
        box_->reject();
}

bool BrowserPage::IsHeard() const {
    const auto* view = QWebEngineView::forPage(this);
    return !silenced_ && view && view->isVisible();
}

std::optional<BrowserPage::Answer> BrowserPage::Ask(const QUrl& origin, PageBox::Request request) {
    if (asking_ || !IsHeard()) {
        CountUnheard();
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

void BrowserPage::CountUnheard() {
    // It counts from one turn of the page's scripts to the next: a page that answers in between is alive.
    if (unheard_++ == 0)
        runJavaScript(QStringLiteral("0"), QWebEngineScript::ApplicationWorld,
                      [self = QPointer<BrowserPage>(this)](const QVariant&) {
                          if (self)
                              self->unheard_ = 0;
                      });
    if (unheard_ == runawayCount)
        emit RanAway();
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
