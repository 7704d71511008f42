#include "web/DesignPane.h"

#include "platform/store/WholeFile.h"
#include "web/DesignPage.h"

#include <QEventLoop>
#include <QMenu>
#include <QPointer>
#include <QTimer>
#include <QWebEngineView>

namespace {

// The largest pages take some seconds; an engine that is silent for longer won't answer any more.
constexpr int patienceMilliseconds = 30000;

/// Lets everything but the user's keys and clicks go on, until the signal comes or the patience ends.
template <typename Sender, typename Signal> void WaitFor(Sender* sender, Signal signal) {
    QEventLoop loop;
    QObject::connect(sender, signal, &loop, &QEventLoop::quit);
    QObject::connect(sender, &QObject::destroyed, &loop, &QEventLoop::quit);
    // One that goes with the loop: a shot in the air would outlive it for as long as the patience.
    QTimer patience;
    patience.setSingleShot(true);
    QObject::connect(&patience, &QTimer::timeout, &loop, &QEventLoop::quit);
    patience.start(patienceMilliseconds);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

DesignPage* DesignPane::Edited() const {
    return static_cast<DesignPage*>(Page());
}

void DesignPane::Load(const QString& path) {
    path_.clear();
    source_.reset();
    state_ = State::Empty;
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    if (bytes) {
        source_.emplace(*bytes, encoding_);
        path_ = path;
        state_ = State::Loading;
    }
    // A new page each time: nothing of the old one can still arrive in it.
    auto page = std::make_unique<DesignPage>(Profile());
    DesignPage* shown = page.get();
    connect(shown, &DesignPage::Shown, this, [this](bool ok) {
        state_ = ok ? State::Ready : State::Empty;
        // The caret comes with them, to the top.
        PassFocusOn();
        emit Settled();
    });
    ShowPage(std::move(page));
    View()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(View(), &QWidget::customContextMenuRequested, this, &DesignPane::ShowMenu, Qt::UniqueConnection);
    if (source_)
        shown->Show(*source_, path);
}

void DesignPane::Emptied() {
    state_ = State::Empty;
    emit Settled();
}

bool DesignPane::WaitUntilReady() {
    const QPointer<DesignPane> self(this);
    if (state_ == State::Loading)
        WaitFor(this, &DesignPane::Settled);
    return self && state_ == State::Ready;
}

std::optional<EditedPage> DesignPane::Collect() {
    struct Answer {
        std::optional<EditedPage> page;
        bool awaited = true;
    };
    // Shared, since the answer can come when nobody waits for it any more.
    const auto answer = std::make_shared<Answer>();
    const QPointer<DesignPane> self(this);
    Edited()->Collect([answer, self](const std::optional<EditedPage>& page) {
        answer->page = page;
        if (self && answer->awaited)
            emit self->Settled();
    });
    WaitFor(this, &DesignPane::Settled);
    answer->awaited = false;
    if (!self || state_ != State::Ready)
        return std::nullopt;
    return answer->page;
}

WriteResult DesignPane::Save(const QString& path) {
    unsaved_.reset();
    const std::optional<EditedPage> page = WaitUntilReady() ? Collect() : std::nullopt;
    if (!page)
        return WriteResult::Failed(tr("The design view does not answer"));
    if (!page->changed && path == path_)
        return {};
    const QByteArray bytes = !page->changed      ? source_->Bytes()
                             : page->headChanged ? source_->WithDocument(page->document)
                                                 : source_->WithBody(page->body);
    const WriteResult written = WholeFile::Write(path, bytes);
    if (!written)
        unsaved_ = bytes;
    else if (path == path_)
        Edited()->MarkSaved();
    return written;
}

// The engine's own menu would offer to follow links and to save pictures, which this page refuses.
void DesignPane::ShowMenu(QPoint at) {
    if (state_ != State::Ready)
        return;
    QMenu menu(this);
    for (const auto action : {QWebEnginePage::Undo, QWebEnginePage::Redo, QWebEnginePage::NoWebAction,
                              QWebEnginePage::Cut, QWebEnginePage::Copy, QWebEnginePage::Paste,
                              QWebEnginePage::NoWebAction, QWebEnginePage::SelectAll}) {
        if (action == QWebEnginePage::NoWebAction)
            menu.addSeparator();
        else
            menu.addAction(Page()->action(action));
    }
    menu.exec(View()->mapToGlobal(at));
}
