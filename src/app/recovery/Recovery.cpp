#include "app/recovery/Recovery.h"

#include "app/documents/frmTemplate.h"
#include "editor/frame/Frame.h"
#include "editor/views/WebControls.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"

#include <algorithm>
#include <utility>

using namespace std::chrono;

Recovery::Recovery(Frame& frame, QObject* parent) : QObject(parent), frame_(frame) {
    timer_.setSingleShot(true);
    // The other kind may be late by a twentieth.
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &Recovery::BeginRound);
    connect(&writer_, &CopyWriter::Written, this, &Recovery::Written);
    frame.State<UnsavedDesign>().Keep = [this](const QString& path, const QByteArray& bytes) {
        Leave(path, bytes);
    };
}

Recovery::~Recovery() = default;

void Recovery::Watch(frmTemplate& document) {
    connect(&document, &frmTemplate::Altered, this, [this, &document] { Follow(document); });
    connect(&document, &frmTemplate::Going, this, [this, &document] { WindowGoes(document); });
    // By then it is a document no more, only known by its place.
    connect(&document, &QObject::destroyed, this,
            [this, gone = static_cast<Document*>(&document)] { Forget(gone); });
}

void Recovery::Adopt(Document& document, std::shared_ptr<RunCopies> run, const QString& file) {
    Drop(&document);
    kept_.push_back({.document = &document, .run = std::move(run), .file = file});
}

void Recovery::Leave(const QString& path, QByteArrayView bytes) {
    if (!IsOn())
        return;
    if (const auto run = OwnRun()) {
        left_.push_back(run);
        writer_.Write(run, run->NewFile(),
                      {.path = path, .content = DocumentFiles::KeepBytes(frame_.Store(), bytes)});
    }
}

// On every key: no more than a mark, but where the first round has to be called.
void Recovery::Follow(Document& document) {
    if (!document.Modified())
        return Drop(&document);
    if (Kept* kept = Find(&document))
        kept->isDue = true;
    else
        kept_.push_back({.document = &document, .isDue = true});
    Schedule();
}

void Recovery::WindowGoes(const Document& document) {
    Kept* kept = Find(&document);
    if (!document.Modified() || !kept)
        return Drop(&document);
    if (kept->isDue && IsOn())
        Copy(*kept);
    if (kept->run)
        left_.push_back(kept->run);
    Forget(&document);
}

Recovery::Kept* Recovery::Find(const Document* document) {
    const auto found = std::ranges::find(kept_, document, &Kept::document);
    return found == kept_.end() ? nullptr : &*found;
}

void Recovery::Forget(const Document* document) {
    std::erase_if(kept_, [document](const Kept& kept) { return kept.document == document; });
    if (!IsAnyDue())
        timer_.stop();
}

void Recovery::Drop(const Document* document) {
    if (const Kept* kept = Find(document); kept && kept->run)
        writer_.Remove(kept->run, kept->file);
    Forget(document);
}

milliseconds Recovery::UntilNextRound() const {
    return std::max(timer_.remainingTimeAsDuration(), milliseconds::zero());
}

bool Recovery::IsOn() const {
    return frame_.Store().ReadFlag(Keys::Recovery);
}

bool Recovery::IsAnyDue() const {
    return std::ranges::any_of(kept_, &Kept::isDue);
}

void Recovery::Schedule() {
    if (isInRound_ || timer_.isActive() || !IsOn())
        return;
    const milliseconds pause(pause_.remainingTime());
    timer_.start(std::max(pause, frame_.State<RecoveryPace>().settling));
}

void Recovery::BeginRound() {
    if (!IsOn())
        return;
    isInRound_ = true;
    sinceRound_.start();
    cost_ = {};
    // Taken from its end: the first that was changed comes first.
    for (auto kept = kept_.rbegin(); kept != kept_.rend(); ++kept)
        if (kept->isDue)
            round_.push_back(kept->document);
    CopyNext();
}

// One at a time: no more than the bytes of one text are in between.
void Recovery::CopyNext() {
    while (!round_.empty()) {
        Kept* kept = Find(round_.back());
        round_.pop_back();
        if (kept && kept->isDue && Copy(*kept)) {
            writing_ = kept->file;
            return;
        }
    }
    EndRound();
}

void Recovery::EndRound() {
    isInRound_ = false;
    const auto& pace = frame_.State<RecoveryPace>();
    const auto pause = std::max<nanoseconds>(pace.shortest, pace.timesTheCost * cost_);
    pause_.setRemainingTime(std::max(pause - nanoseconds(sinceRound_.nsecsElapsed()), nanoseconds::zero()));
    if (IsAnyDue())
        Schedule();
}

bool Recovery::Copy(Kept& kept) {
    QElapsedTimer timer;
    timer.start();
    if (!kept.run) {
        kept.run = OwnRun();
        if (!kept.run)
            return false;
        kept.file = kept.run->NewFile();
    }
    kept.isDue = false;
    writer_.Write(kept.run, kept.file,
                  {.path = kept.document->Caption(),
                   .caret = kept.document->txtInput().SelStart(),
                   .content = DocumentFiles::Keep(*kept.document)});
    cost_ += nanoseconds(timer.nsecsElapsed());
    return true;
}

void Recovery::Written(const QString& file, bool done, nanoseconds took) {
    const auto kept = std::ranges::find(kept_, file, &Kept::file);
    if (!done && kept != kept_.end())
        kept->isDue = true;
    // What a window left is written beside the rounds.
    if (file != writing_)
        return;
    writing_.clear();
    cost_ += took;
    CopyNext();
}

std::shared_ptr<RunCopies> Recovery::OwnRun() {
    std::shared_ptr<RunCopies> run = ownRun_.lock();
    if (!run)
        ownRun_ = run = RunCopies::Begin();
    return run;
}
