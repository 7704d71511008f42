#include "web/PageBox.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// More than anybody reads; a box must not be slow or larger than the screen.
constexpr int longestMessage = 4000;
constexpr int longestSpeaker = 60;

QString Shortened(const QString& text, int longest) {
    return text.size() <= longest ? text : text.first(longest) + QChar(0x2026);
}

QPlainTextEdit* MessageView(const QString& message) {
    auto* view = new QPlainTextEdit(Shortened(message, longestMessage));
    view->setObjectName(QStringLiteral("txtMessage"));
    view->setAccessibleName(QStringLiteral("Message of the page"));
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setFixedHeight(view->fontMetrics().lineSpacing() * 6);
    view->setMinimumWidth(view->fontMetrics().averageCharWidth() * 60);
    return view;
}

QLabel* SpeakerLabel(const QString& speaker) {
    auto* label = new QLabel(QStringLiteral("The page \"%1\" says:").arg(Shortened(speaker, longestSpeaker)));
    label->setObjectName(QStringLiteral("lblSpeaker"));
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

PageBox::PageBox(const Request& request, QWidget* parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("Message from a Page"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(SpeakerLabel(request.speaker));
    layout->addWidget(MessageView(request.message));
    if (request.proposal) {
        line_ = new QLineEdit(Shortened(*request.proposal, longestMessage));
        line_->setObjectName(QStringLiteral("txtLine"));
        line_->setAccessibleName(QStringLiteral("Answer"));
        line_->selectAll();
        layout->addWidget(line_);
    }
    if (request.offersSilence) {
        silence_ = new QCheckBox(QStringLiteral("&Show no more messages of this page"));
        silence_->setObjectName(QStringLiteral("chkSilence"));
        layout->addWidget(silence_);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    if (request.question)
        buttons->addButton(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    line_ ? line_->setFocus() : buttons->button(QDialogButtonBox::Ok)->setFocus();
}

bool PageBox::WantsSilence() const {
    return silence_ && silence_->isChecked();
}

QString PageBox::Line() const {
    return line_ ? line_->text() : QString();
}
