#include "editor/spelling/frmSpell.h"

#include "editor/spelling/SpellPlace.h"
#include "ui_frmSpell.h"

#include <chrono>
#include <QScreen>
#include <QTextCursor>

using namespace std::chrono_literals;

namespace {

/// The next word mostly comes sooner: the dialog need not flicker in between.
constexpr std::chrono::milliseconds patience = 250ms;

} // namespace

frmSpell::frmSpell(QWidget* owner) : QDialog(owner), ui_(std::make_unique<Ui::frmSpell>()) {
    ui_->setupUi(this);
    setObjectName(QStringLiteral("frmSpell"));
    setModal(true);
    ui_->cmdChange->setDefault(true);
    // As low as it can be, since it stands over the page.
    resize(minimumSizeHint());
    const auto correction = [this] { return ui_->txtChange->text(); };
    const auto on = [this](QPushButton* button, auto answer) {
        connect(button, &QPushButton::clicked, this, [this, answer] {
            if (Answered())
                answer();
        });
    };
    on(ui_->cmdChange, [this, correction] { Q_EMIT Change(correction()); });
    on(ui_->cmdChangeAll, [this, correction] { Q_EMIT ChangeAll(correction()); });
    on(ui_->cmdIgnore, [this] { Q_EMIT Ignore(); });
    on(ui_->cmdIgnoreAll, [this] { Q_EMIT IgnoreAll(); });
    on(ui_->cmdAdd, [this] { Q_EMIT Add(); });
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmSpell::reject);
    connect(ui_->txtChange, &QLineEdit::textChanged, this, &frmSpell::txtChange_Change);
    connect(ui_->lstSuggestions, &QListWidget::currentRowChanged, this, &frmSpell::lstSuggestions_Click);
    connect(ui_->lstSuggestions, &QListWidget::itemDoubleClicked, ui_->cmdChange, &QPushButton::click);
    goes_.setSingleShot(true);
    goes_.setInterval(patience);
    connect(&goes_, &QTimer::timeout, this, &frmSpell::Dismiss);
}

frmSpell::~frmSpell() = default;

void frmSpell::Ask(const SpellQuestion& question) {
    goes_.stop();
    asking_ = true;
    ShowSentence(question.sentence);
    ui_->lstSuggestions->clear();
    ui_->lstSuggestions->addItems(question.suggestions);
    ui_->txtChange->setText(question.suggestions.value(0, question.word));
    txtChange_Change();
    ui_->txtChange->selectAll();
    ui_->txtChange->setFocus();
    MoveBeside(question.place);
    show();
    raise();
    activateWindow();
}

void frmSpell::ShowSentence(const Sentence& sentence) {
    ui_->txtSentence->clear();
    ui_->txtSentence->setCurrentCharFormat(QTextCharFormat());
    ui_->txtSentence->setPlainText(sentence.text);
    QTextCursor word(ui_->txtSentence->document());
    word.setPosition(static_cast<int>(sentence.wordStart));
    word.setPosition(static_cast<int>(sentence.wordStart + sentence.wordLength), QTextCursor::KeepAnchor);
    QTextCharFormat mark;
    mark.setFontWeight(QFont::Bold);
    mark.setFontUnderline(true);
    word.mergeCharFormat(mark);
    // The caret stands where the word ends: into view it comes, and a screen reader starts there.
    word.clearSelection();
    ui_->txtSentence->setTextCursor(word);
}

void frmSpell::MoveBeside(const QRect& word) {
    if (word.isEmpty())
        return;
    const QRect area = (parentWidget() ? parentWidget()->screen() : screen())->availableGeometry();
    const QPoint now = isVisible() ? frameGeometry().topLeft() : word.bottomLeft() + QPoint(0, 24);
    const QSize edges = frameGeometry().size() - size();
    move(PlaceBesideWord(now, size() + edges, word, area));
}

bool frmSpell::Answered() {
    if (!asking_)
        return false;
    asking_ = false;
    goes_.start();
    return true;
}

void frmSpell::Dismiss() {
    goes_.stop();
    asking_ = false;
    hide();
}

void frmSpell::reject() {
    Dismiss();
    Q_EMIT Cancel();
}

void frmSpell::txtChange_Change() {
    const bool any = !ui_->txtChange->text().isEmpty();
    ui_->cmdChange->setEnabled(any);
    ui_->cmdChangeAll->setEnabled(any);
}

void frmSpell::lstSuggestions_Click() {
    if (const QListWidgetItem* chosen = ui_->lstSuggestions->currentItem())
        ui_->txtChange->setText(chosen->text());
}
