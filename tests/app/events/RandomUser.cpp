#include "app/events/RandomUser.h"

#include "app/events/Targets.h"
#include "app/events/Warnings.h"
#include "app/run/RunProgram.h"
#include "app/run/SingleInstance.h"
#include "app/window/StatusPanels.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/views/WebControls.h"
#include "platform/text/RichTextBox.h"

#include <ctime>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTimerEvent>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

#if defined(__SANITIZE_ADDRESS__) || (defined(__has_feature) && __has_feature(address_sanitizer))
constexpr double longestSeconds = 4;
#else
constexpr double longestSeconds = 1;
#endif
constexpr int longestText = 200000;
constexpr int mostDocuments = 8;
constexpr int mostTries = 400;
constexpr int told = 40;
constexpr int pauseMilliseconds = 5;
constexpr int mostAsks = 1000;

/// Of this thread alone, so that a busy machine makes no event longer.
double SecondsSpent() {
    timespec spent{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &spent);
    return double(spent.tv_sec) + double(spent.tv_nsec) / 1e9;
}

enum class InFront { Nothing, Modal, Popup };

InFront Situation() {
    if (QApplication::activePopupWidget())
        return InFront::Popup;
    return QApplication::activeModalWidget() ? InFront::Modal : InFront::Nothing;
}

int WeightOf(const Act& act, InFront front) {
    return front == InFront::Nothing ? act.free : front == InFront::Modal ? act.modal : act.popup;
}

std::vector<Act> AllActs() {
    std::vector<Act> all;
    for (const auto& acts : {KeyActs(), MouseActs(), FieldActs(), CommandActs(), DesktopActs()})
        all.insert(all.end(), acts.begin(), acts.end());
    return all;
}

const Act& AnyAct(Dice& dice) {
    static const std::vector<Act> acts = AllActs();
    const InFront front = Situation();
    int sum = 0;
    for (const Act& act : acts)
        sum += WeightOf(act, front);
    int at = dice.Below(sum);
    for (const Act& act : acts)
        if ((at -= WeightOf(act, front)) < 0)
            return act;
    return acts.back();
}

} // namespace

RandomUser::RandomUser(quint64 seed, RandomPrompts::Kind kind, Reached& reached, Views views)
    : dice_(seed), log_(seed), ground_(dice_), kind_(kind), reached_(reached), views_(std::move(views)) {
    Warnings::Take();
    qApp->installEventFilter(this);
}

RandomUser::~RandomUser() = default;

void RandomUser::Play(int events) {
    left_ = events;
    do
        Run();
    while (left_ > 0);
}

void RandomUser::Run() {
    stopped_ = false;
    tries_ = 0;
    before_ = -1;
    awaited_ = nullptr;
    Settings store;
    prompts_ = std::make_unique<RandomPrompts>(dice_, ground_, log_, kind_);
    SingleInstance instance;
    frame_ = std::make_unique<frmTarnwick>(store, *prompts_);
    frame_->State<WebControls>().Load = views_.load;
    reached_.Follow(*frame_);
    connect(frame_.get(), &frmTarnwick::Stopped, this, [this] { stopped_ = true; });
    timer_ = startTimer(0);
    RunProgram(*frame_, instance, dice_.OneIn(3) ? ground_.AnyFile(dice_) : QString());
    killTimer(timer_);
    if (!stopped_)
        Fail(u"the program ended by itself"_s);
    hand_.Release();
    frame_.reset();
    asked_ += prompts_->Asked();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    for (const QString& warning : Warnings::Take())
        Fail(u"warning: "_s + warning);
}

// A timer that is at work is passed over by the loops that its work runs; a new one is not.
void RandomUser::timerEvent(QTimerEvent* event) {
    killTimer(event->timerId());
    timer_ = startTimer(awaited_ ? pauseMilliseconds : 0);
    if (!stopped_ && !InputIsShut() && !HasToWait())
        Step();
}

bool RandomUser::HasToWait() {
    if (awaited_ && !awaited_() && ++asks_ < mostAsks)
        return true;
    awaited_ = nullptr;
    asks_ = 0;
    return false;
}

/// Until the frame or its first dialog is up, and while the program does a step that lets nothing through.
bool RandomUser::InputIsShut() const {
    if (!frame_->isVisible() && !QApplication::activeModalWidget())
        return true;
    return frame_->Panels().Panel3().startsWith(u"File "_s) || views_.isBusy();
}

void RandomUser::Step() {
    LookAtCost();
    for (const QString& warning : Warnings::Take())
        Fail(u"warning: "_s + warning);
    reached_.Look(*frame_);
    if (left_ <= 0)
        return Leave();
    KeepSmall();
    // Counted first: it may let others happen before it ends.
    --left_;
    if (!Happen())
        ++left_;
}

bool RandomUser::Happen() {
    Stage stage{*frame_, dice_, hand_, ground_, log_, reached_, awaited_, views_.isLoading};
    // A button that is down moves about and comes up again.
    if (hand_.Holds() && dice_.OneIn(3)) {
        log_.Note(u"release"_s);
        hand_.Release();
        return true;
    }
    if (hand_.Holds()) {
        QWidget* window = Targets::AnyWindow(dice_);
        if (!window)
            return hand_.Release(), true;
        log_.Note(u"drag over "_s + Targets::NameOf(*window));
        hand_.MoveTo(*window, Targets::PlaceIn(*window, dice_));
        return true;
    }
    if (!QGuiApplication::focusWindow() && dice_.OneIn(2)) {
        QWidget* front = Targets::InFront();
        log_.Note(u"back to the program"_s);
        (front ? front : frame_.get())->activateWindow();
        return true;
    }
    return AnyAct(dice_).happen(stage);
}

/// One step on the way out: what is in front goes, then the frame.
void RandomUser::Leave() {
    prompts_->Refuse();
    hand_.Release();
    if (++tries_ > mostTries) {
        Fail(u"the program can't be left"_s);
        stopped_ = true;
        return QCoreApplication::exit();
    }
    if (QWidget* popup = QApplication::activePopupWidget()) {
        log_.Note(u"leave "_s + Targets::NameOf(*popup));
        popup->close();
        return;
    }
    if (QWidget* modal = QApplication::activeModalWidget()) {
        log_.Note(u"leave "_s + Targets::NameOf(*modal));
        auto* box = qobject_cast<QMessageBox*>(modal);
        if (QAbstractButton* no = box ? box->button(QMessageBox::No) : nullptr)
            no->click();
        else if (auto* input = qobject_cast<QInputDialog*>(modal)) {
            input->setTextValue(u"3"_s);
            input->accept();
        } else if (auto* dialog = qobject_cast<QDialog*>(modal))
            dialog->reject();
        else
            modal->close();
        return;
    }
    log_.Note(u"leave the program"_s);
    frame_->Commands().Run(u"mnuExit"_s);
}

void RandomUser::LookAtCost() {
    const double now = SecondsSpent();
    const double spent = before_ < 0 ? 0 : now - before_;
    dearest_ = std::max(dearest_, spent);
    if (spent > longestSeconds)
        Fail(u"an event took %1 s"_s.arg(spent));
    before_ = SecondsSpent();
}

/// Texts and windows must not grow without end: the cost of an event is that of a page as people have them.
void RandomUser::KeepSmall() {
    if (Situation() != InFront::Nothing)
        return;
    const Forms& forms = frame_->LoadedForms();
    int documents = 0;
    for (int i = 0; i < forms.Count(); ++i) {
        auto* document = dynamic_cast<Document*>(forms.At(i));
        documents += document ? 1 : 0;
        if (!document || document->txtInput().TextLength() < longestText)
            continue;
        document->txtInput().SetText(QString());
        document->txtInput().EmptyUndoBuffer();
    }
    if (Document* document = frame_->ActiveForm(); document && documents > mostDocuments) {
        document->SetModified(false);
        document->Unload();
    }
    before_ = SecondsSpent();
}

void RandomUser::Fail(const QString& what) {
    wrong_ << u"seed %1, event %2: %3\n%4"_s.arg(log_.Seed()).arg(log_.Count()).arg(what, log_.Last(told));
}

/// File dialogs are kept in the playground: they can delete and rename.
bool RandomUser::eventFilter(QObject* watched, QEvent* event) {
    auto* dialog = event->type() == QEvent::Polish ? qobject_cast<QFileDialog*>(watched) : nullptr;
    if (!dialog)
        return false;
    const auto comeBack = [dialog](const QString& folder) {
        if (!Playground::Holds(folder))
            dialog->setDirectory(Playground::Root() + u"/user/site"_s);
    };
    connect(dialog, &QFileDialog::directoryEntered, dialog, comeBack);
    comeBack(dialog->directory().path());
    return false;
}
