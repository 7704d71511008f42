#include "editor/spelling/SpellChecker.h"

#include "editor/spelling/Dictionary.h"
#include "editor/spelling/frmSpell.h"
#include "editor/spelling/SpelledAs.h"
#include "editor/spelling/WordList.h"

#include <QDeadlineTimer>
#include <QWidget>

namespace {

/// After this many milliseconds other events have their turn.
constexpr int longestTurn = 15;
/// The clock is looked at once in so many words.
constexpr int wordsBetweenLooks = 64;

} // namespace

SpellChecker::SpellChecker(QObject* parent) : QObject(parent) {
    turn_.setSingleShot(true);
    connect(&turn_, &QTimer::timeout, this, &SpellChecker::Continue);
}

SpellChecker::~SpellChecker() = default;

void SpellChecker::ClearCounters() {
    wordsChecked_ = 0;
    wordsReplaced_ = 0;
    changedAll_.clear();
}

void SpellChecker::SetText(const QString& piece) {
    dictionaries_ = {StandardDic, CustomDic};
    piece_ = piece;
    cutter_ = WordCutter(piece_);
    corrected_.clear();
    copied_ = 0;
    changed_ = false;
    resultCode_ = 0;
    state_ = Checking;
    ++check_;
    Continue();
}

void SpellChecker::LoadDictionary() {
    const Dictionaries paths = dictionaries_;
    auto loaded = std::make_shared<std::unique_ptr<Dictionary>>();
    background_.Run([loaded, paths] { *loaded = Dictionary::LoadBest(paths.first, paths.second); },
                    [this, loaded, paths] {
                        dictionary_ = std::move(*loaded);
                        loadedFrom_ = paths;
                        if (state_ != Checking)
                            return;
                        if (dictionary_)
                            return Continue();
                        state_ = Resting;
                        turn_.stop();
                        Q_EMIT NoDictionary();
                    });
}

void SpellChecker::Continue() {
    if (state_ != Checking)
        return;
    // A check that was cancelled may have left work behind.
    if (background_.Busy()) {
        turn_.start(longestTurn);
        return;
    }
    const bool loaded = dictionary_ && loadedFrom_ == dictionaries_;
    const QDeadlineTimer end(longestTurn);
    for (int words = 1;; ++words) {
        const std::optional<TextWord> word = cutter_.Next();
        if (!word)
            return Finish(0);
        if (!loaded) {
            // It is the piece's first word: read again once there is something to look it up in.
            cutter_ = WordCutter(piece_);
            LoadDictionary();
            break;
        }
        ++wordsChecked_;
        if (!Passes(*word)) {
            word_ = *word;
            return Ask();
        }
        if (words % wordsBetweenLooks == 0 && end.hasExpired()) {
            turn_.start(0);
            break;
        }
    }
    Q_EMIT Idle();
}

bool SpellChecker::Passes(const TextWord& word) {
    if (dictionary_->Knows(word.letters) || ignored_.contains(word.letters))
        return true;
    const auto change = changedAll_.constFind(word.letters);
    if (change == changedAll_.cend())
        return false;
    Replace(word, *change);
    return true;
}

void SpellChecker::Ask() {
    state_ = Asking;
    wordPlace_ = QRect();
    Q_EMIT WordFound();
    if (state_ != Asking)
        return;
    auto suggestions = std::make_shared<QStringList>();
    background_.Run([dictionary = dictionary_.get(), word = word_.letters,
                     suggestions] { *suggestions = dictionary->Suggestions(word); },
                    [this, suggestions, check = check_] {
                        if (state_ == Asking && check == check_)
                            ShowDialog(*suggestions);
                    });
}

void SpellChecker::ShowDialog(const QStringList& suggestions) {
    if (!dialog_) {
        dialog_ = new frmSpell(qobject_cast<QWidget*>(parent()));
        ConnectDialog();
    }
    dialog_->Ask({SentenceAround(piece_, word_.start, word_.length), word_.letters, suggestions, wordPlace_});
}

template <typename Act> void SpellChecker::On(Act act) {
    if (state_ != Asking)
        return;
    act();
    state_ = Checking;
    Continue();
}

void SpellChecker::ConnectDialog() {
    // Without a window the dialog is nobody's child.
    if (!dialog_->parent())
        connect(this, &QObject::destroyed, dialog_, &QObject::deleteLater);
    connect(dialog_, &frmSpell::Change, this,
            [this](const QString& correction) { On([&] { Replace(word_, correction); }); });
    connect(dialog_, &frmSpell::ChangeAll, this, [this](const QString& correction) {
        On([&] {
            changedAll_.insert(word_.letters, correction);
            Replace(word_, correction);
        });
    });
    connect(dialog_, &frmSpell::Ignore, this, [this] { On([] {}); });
    connect(dialog_, &frmSpell::IgnoreAll, this, [this] { On([this] { ignored_.insert(word_.letters); }); });
    connect(dialog_, &frmSpell::Add, this, [this] { On([this] { Add(); }); });
    connect(dialog_, &frmSpell::Cancel, this, &SpellChecker::Cancel);
}

void SpellChecker::Replace(const TextWord& word, const QString& correction) {
    corrected_ += QStringView(piece_).mid(copied_, word.start - copied_);
    corrected_ += SpelledAs(piece_.mid(word.start, word.length), correction);
    copied_ = word.start + word.length;
    changed_ = true;
    ++wordsReplaced_;
}

void SpellChecker::Add() {
    dictionary_->Add(word_.letters);
    if (!WordList::Add(CustomDic, word_.letters))
        Q_EMIT NotAdded(CustomDic);
}

void SpellChecker::Cancel() {
    Finish(1);
}

void SpellChecker::Finish(int resultCode) {
    const bool checked = std::exchange(state_, Resting) != Resting;
    turn_.stop();
    resultCode_ = resultCode;
    if (resultCode != 0)
        Dismiss();
    if (checked) {
        corrected_ += QStringView(piece_).mid(copied_);
        Q_EMIT PieceChanged();
    }
    Q_EMIT CheckFinished();
}

void SpellChecker::Dismiss() {
    if (dialog_)
        dialog_->Dismiss();
}
