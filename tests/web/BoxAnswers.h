// Answers the boxes of pages while they are up.
#pragma once

#include "web/PageBox.h"

#include <functional>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QStringList>
#include <QTimer>

/// The nth answer is for the nth box; boxes without one are accepted.
class BoxAnswers {
  public:
    using Answer = std::function<void(PageBox&)>;

    explicit BoxAnswers(QList<Answer> answers = {}) : answers_(std::move(answers)) {
        QObject::connect(&watch_, &QTimer::timeout, &watch_, [this] { Look(); });
        watch_.start(10);
    }

    const QStringList& Seen() const { return seen_; }

    static void Accept(PageBox& box) { box.accept(); }
    static void Refuse(PageBox& box) { box.reject(); }
    static void Silence(PageBox& box) {
        if (auto* silence = box.findChild<QCheckBox*>())
            silence->setChecked(true);
        box.reject();
    }

  private:
    void Look() {
        const QPointer<PageBox> box = qobject_cast<PageBox*>(QApplication::activeModalWidget());
        if (!box || box == last_)
            return;
        last_ = box;
        seen_ << box->findChild<QPlainTextEdit*>()->toPlainText();
        const Answer answer = answers_.value(seen_.size() - 1, &Accept);
        answer(*box);
    }

    QTimer watch_;
    QList<Answer> answers_;
    QStringList seen_;
    QPointer<PageBox> last_;
};
