// The spelling control of the frame: checks one piece of text at a time, and asks about words it does not
// know.
#pragma once

#include "editor/spelling/WordCutter.h"
#include "platform/store/Background.h"

#include <memory>
#include <QHash>
#include <QObject>
#include <QRect>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <utility>

class Dictionary;
class frmSpell;

/// Works with two dictionaries, each told by the full path of its file. The frame gives it both as it loads
/// and takes them back as it unloads; they are read when the first word is checked. It knows nothing of tags,
/// nor of where the text comes from.
///
/// A check may be over when SetText returns, or go on in turns of the event loop: it then loads a dictionary,
/// checks a long text, or waits for an answer of its dialog.
class SpellChecker final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString StandardDic MEMBER StandardDic)
    Q_PROPERTY(QString CustomDic MEMBER CustomDic)

  public:
    /// The dialog belongs to the parent, where that is a window.
    explicit SpellChecker(QObject* parent = nullptr);
    ~SpellChecker() override;

    QString StandardDic;
    QString CustomDic; ///< the words that the user has added

    /// Starts to count anew, and forgets what all words of a kind were to be changed to.
    void ClearCounters();
    /// Starts the check of a piece of text. Not while one is under way.
    void SetText(const QString& piece);
    /// The piece with its corrections, once it is finished.
    QString Text() const { return corrected_; }
    /// Whether that is another text than the one given.
    bool Changed() const { return changed_; }
    /// 0, or 1 where the user cancelled the check.
    int ResultCode() const { return resultCode_; }
    int WordsChecked() const { return wordsChecked_; }
    int WordsReplaced() const { return wordsReplaced_; }

    /// The word in question as it is written in the piece, and its position there, from 0.
    QString MisspelledWord() const { return piece_.mid(word_.start, word_.length); }
    int WordPosition() const { return static_cast<int>(word_.start); }
    /// Where the word in question is to be seen on the screen: the dialog leaves that free.
    void KeepClear(const QRect& place) { wordPlace_ = place; }

    /// As the dialog's Cancel, at any time between two checks too.
    void Cancel();
    /// Ends the check of a piece that is no longer what it was, within WordFound: nothing follows.
    void Drop() { state_ = Resting; }
    /// Takes the dialog off the screen: no piece follows.
    void Dismiss();

  Q_SIGNALS:
    void WordFound();
    /// A piece is finished, and Changed() tells of its text; ahead of CheckFinished.
    void PieceChanged();
    void CheckFinished();
    /// The check goes on in another turn of the event loop.
    void Idle();
    /// No dictionary can be used: the check ends with this, and nothing else comes.
    void NoDictionary();
    /// A word could not be written to the custom dictionary; it counts as known all the same.
    void NotAdded(const QString& path);

  private:
    /// The paths of the standard one and of the custom one.
    using Dictionaries = std::pair<QString, QString>;

    void LoadDictionary();
    void Continue();
    bool Passes(const TextWord& word);
    void Ask();
    void ShowDialog(const QStringList& suggestions);
    void ConnectDialog();
    /// Does what an answer asks for, and goes on.
    template <typename Act> void On(Act act);
    void Replace(const TextWord& word, const QString& correction);
    void Add();
    void Finish(int resultCode);

    std::unique_ptr<Dictionary> dictionary_;
    Dictionaries dictionaries_; ///< those of the piece
    Dictionaries loadedFrom_;   ///< as they were told when the dictionary was loaded
    QSet<QString> ignored_;
    QHash<QString, QString> changedAll_;

    QString piece_;
    WordCutter cutter_;
    TextWord word_{0, 0, {}};
    QString corrected_;
    qsizetype copied_ = 0; ///< so much of the piece is in corrected_
    bool changed_ = false;
    /// A question is answered by its dialog; nothing goes on meanwhile.
    enum { Resting, Checking, Asking } state_ = Resting;
    int check_ = 0; ///< counts the checks, so that work for one is not taken for another
    int resultCode_ = 0;
    int wordsChecked_ = 0;
    int wordsReplaced_ = 0;

    frmSpell* dialog_ = nullptr;
    QRect wordPlace_;
    QTimer turn_;
    /// Last of all, so that it waits for its work before anything else goes.
    Background background_;
};
