#include "editor/spelling/SpellRun.h"

#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "editor/spelling/SpellChecker.h"
#include "editor/spelling/SpellReport.h"
#include "platform/desktop/EscapeKey.h"
#include "platform/desktop/Prompts.h"
#include "platform/text/RichTextBox.h"

#include <algorithm>
#include <QDeadlineTimer>
#include <QScopeGuard>

namespace {

/// After this many milliseconds other events have their turn.
constexpr int longestTurn = 15;
/// A text that is checked over and over must not take up the machine: between two rounds lies a pause of at
/// least so many milliseconds, and of so many times what the last round took.
constexpr qint64 shortestPause = 200;
constexpr qint64 longestPause = 10'000;
constexpr qint64 pauseToRound = 4;

QRect PlaceOnScreen(const RichTextBox& text, int start, int length) {
    QRect place = text.CharacterRect(start);
    const QRect last = text.CharacterRect(start + std::max(length - 1, 0));
    place =
        last.y() == place.y() ? place.united(last) : QRect(0, place.y(), text.width(), 2 * place.height());
    return {text.viewport()->mapToGlobal(place.topLeft()), place.size()};
}

} // namespace

SpellRun::SpellRun(Frame& frame, SpellChecker& checker, QObject* parent)
    : QObject(parent), frame_(frame), checker_(checker), state_(frame.State<SpellState>()) {
    connect(&checker, &SpellChecker::WordFound, this, &SpellRun::WordFound);
    connect(&checker, &SpellChecker::PieceChanged, this, &SpellRun::PieceChanged);
    connect(&checker, &SpellChecker::CheckFinished, this, &SpellRun::CheckFinished);
    connect(&checker, &SpellChecker::Idle, this, &SpellRun::Idle);
    connect(&checker, &SpellChecker::NoDictionary, this, &SpellRun::NoDictionary);
    connect(&checker, &SpellChecker::NotAdded, this, &SpellRun::NotAdded);
    turn_.setSingleShot(true);
    connect(&turn_, &QTimer::timeout, this, &SpellRun::Turn);
}

void SpellRun::SpellCheckDocument() {
    if (running_)
        return;
    running_ = true;
    state_.SpellKeepGoing = true;
    state_.SpellFinished = false;
    state_.DocumentLength = 0;
    followed_ = false;
    stale_ = false;
    text_.clear();
    // With no document the steps in between fail, and the report has the old counts.
    if (Document* document = frame_.ActiveForm()) {
        state_.DocumentLength = document->txtInput().TextLength();
        checker_.ClearCounters();
    }
    state_.SpellPos = 1;
    escape_ = new EscapeKey(*frame_.Window(), this);
    connect(escape_, &EscapeKey::Pressed, &checker_, &SpellChecker::Cancel);
    round_.start();
    Turn();
}

void SpellRun::Turn() {
    if (!running_ || checking_)
        return;
    if (DocumentClosed())
        return checker_.Cancel();
    const QDeadlineTimer end(longestTurn);
    while (NextPiece()) {
        if (turn_.isActive())
            return Idle();
        if (end.hasExpired()) {
            turn_.start(0);
            return Idle();
        }
    }
}

bool SpellRun::NextPiece() {
    if (state_.SpellPos >= state_.DocumentLength) {
        state_.SpellFinished = true;
        Report();
        return false;
    }
    Document* document = frame_.ActiveForm();
    if (!state_.SpellKeepGoing || !document) {
        Finish();
        return false;
    }
    if (!followed_ || document_ != &document->Window())
        Follow();
    TakePiece(document->txtInput());
    checking_ = true;
    assigning_ = true;
    checker_.SetText(state_.SpellPiece);
    assigning_ = false;
    return !checking_ && AfterPiece();
}

// The run is about this document now.
void SpellRun::Follow() {
    if (document_)
        document_->disconnect(this);
    Document* document = frame_.ActiveForm();
    followed_ = true;
    document_ = &document->Window();
    text_ = &document->txtInput();
    // Not from within its end: a box comes up.
    connect(
        document_, &QObject::destroyed, this,
        [this] {
            if (running_ && DocumentClosed())
                checker_.Cancel();
        },
        Qt::QueuedConnection);
}

void SpellRun::TakePiece(RichTextBox& text) {
    state_.TagPosition = text.FindForward(u'<', state_.SpellPos - 1) + 1;
    const int end = state_.TagPosition != 0 ? state_.TagPosition : state_.DocumentLength + 1;
    state_.SpellPiece = text.TextRange(state_.SpellPos - 1, end - state_.SpellPos);
}

bool SpellRun::AfterPiece() {
    if (!running_)
        return false;
    if (!state_.SpellKeepGoing) {
        Finish();
        return false;
    }
    if (std::exchange(stale_, false))
        return true;
    if (state_.TagPosition == 0) {
        Report();
        return false;
    }
    const RichTextBox* text = PieceText();
    // Both searches that fail have the position 0: a tag that never closes leads back to the top.
    state_.SpellPos = (text ? text->FindForward(u'>', state_.TagPosition - 1) + 1 : 0) + 1;
    if (state_.SpellPos == 1)
        StartOver();
    return true;
}

void SpellRun::StartOver() {
    turn_.start(static_cast<int>(std::clamp(pauseToRound * round_.restart(), shortestPause, longestPause)));
}

void SpellRun::WordFound() {
    RichTextBox* text = PieceText();
    if (!text)
        return;
    if (!PieceStands()) {
        checking_ = false;
        checker_.Drop();
        turn_.start(0);
        return;
    }
    LockText(true);
    // Which tells the line: the status bar is the text's again.
    told_ = false;
    text->SetSelStart(state_.SpellPos + checker_.WordPosition() - 1);
    text->SetSelLength(static_cast<int>(checker_.MisspelledWord().size()));
    text->ScrollTo(text->SelStart(), text->SelStart() + text->SelLength());
    checker_.KeepClear(PlaceOnScreen(*text, text->SelStart(), text->SelLength()));
}

void SpellRun::PieceChanged() {
    if (!checker_.Changed())
        return;
    RichTextBox* text = PieceText();
    if (!text)
        return;
    // What else changed the text meanwhile is not written over.
    stale_ = !PieceStands();
    if (stale_)
        return;
    text->SetSelStart(state_.SpellPos != 1 ? state_.SpellPos - 1 : 0);
    text->SetSelLength(static_cast<int>(state_.SpellPiece.size()));
    text->SetSelText(checker_.Text());
}

void SpellRun::CheckFinished() {
    if (!running_)
        return;
    const bool waited = std::exchange(checking_, false) && !assigning_;
    LockText(false);
    if (checker_.ResultCode() != 0) {
        state_.SpellKeepGoing = false;
        turn_.stop();
        Say(QStringLiteral("Canceled"));
        if (!assigning_)
            Finish();
    } else if (state_.SpellFinished) {
        Report();
    } else if (waited && AfterPiece() && !turn_.isActive()) {
        turn_.start(0);
    }
}

void SpellRun::Idle() {
    if (std::exchange(told_, true))
        return;
    frame_.SetStatusPanel(tr("Checking spelling, Esc cancels . . . "));
}

void SpellRun::NoDictionary() {
    checking_ = false;
    LockText(false);
    Say(tr("There is no dictionary to check the spelling with.\r\n%1 could not be used, and the system has "
           "no American English one.")
            .arg(checker_.StandardDic));
    Finish();
}

void SpellRun::NotAdded(const QString& path) {
    Say(tr("The word could not be added to the custom dictionary:\r\n%1").arg(path));
}

void SpellRun::Report() {
    Say(SpellReport(checker_.WordsChecked(), checker_.WordsReplaced()));
    Finish();
}

void SpellRun::Finish() {
    if (!std::exchange(running_, false))
        return;
    turn_.stop();
    checker_.Dismiss();
    if (escape_)
        escape_->deleteLater();
    if (std::exchange(told_, false))
        frame_.SetStatusPanel(QString());
    Q_EMIT Ended();
}

// Over a window that is gone, as at the program's end, no box comes up.
void SpellRun::Say(const QString& text) {
    checker_.Dismiss();
    if (frame_.Window()->isVisible())
        frame_.Ask().MsgBox(frame_.Window(), text, MsgButtons::OK, MsgIcon::None, ProgramTitle);
}

bool SpellRun::DocumentClosed() const {
    return followed_ && !frame_.LoadedForms().Holds(document_);
}

RichTextBox* SpellRun::PieceText() const {
    return DocumentClosed() ? nullptr : text_.data();
}

bool SpellRun::PieceStands() const {
    const auto length = static_cast<int>(state_.SpellPiece.size());
    return text_ && text_->TextRange(state_.SpellPos - 1, length) == state_.SpellPiece;
}

// From the first question about a piece to its end: keys are for the dialog.
void SpellRun::LockText(bool lock) {
    if (text_)
        text_->SetEnabled(!lock);
}
