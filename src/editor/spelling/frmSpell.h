// The dialog of the spell check: a word, the sentence it stands in, and what may be done about it.
#pragma once

#include "editor/spelling/Sentence.h"

#include <memory>
#include <QDialog>
#include <QRect>
#include <QStringList>
#include <QTimer>

namespace Ui {
class frmSpell;
}

struct SpellQuestion {
    Sentence sentence;
    QString word; ///< in plain letters
    QStringList suggestions;
    QRect place; ///< of the word on the screen, in pixels; empty where it is not to be seen
};

/// Modal while a word is asked about: nothing else may change the text. One answer for one question: the
/// dialog then waits for the next, and goes if there is none soon.
class frmSpell final : public QDialog {
    Q_OBJECT

  public:
    explicit frmSpell(QWidget* owner);
    ~frmSpell() override;

    void Ask(const SpellQuestion& question);
    /// A question waits for its answer.
    bool Asking() const { return asking_; }
    /// No question any more: goes at once.
    void Dismiss();

    /// Esc and the close button are Cancel.
    void reject() override;

  Q_SIGNALS:
    void Change(const QString& correction);
    void ChangeAll(const QString& correction);
    void Ignore();
    void IgnoreAll();
    void Add();
    void Cancel();

  private:
    /// Takes the question away; false where none is open.
    bool Answered();
    void ShowSentence(const Sentence& sentence);
    void MoveBeside(const QRect& word);
    void txtChange_Change();
    void lstSuggestions_Click();

    std::unique_ptr<Ui::frmSpell> ui_;
    bool asking_ = false;
    QTimer goes_;
};
