#include "app/window/StatusPanels.h"

#include <QDateTime>
#include <QLabel>
#include <QLocale>
#include <QRegularExpression>

namespace {

// A panel's accessible name is its text, as a label's is; what the text is goes into the description.
QLabel* MakePanel(const QString& name, const QString& description, QWidget* parent) {
    auto* panel = new QLabel(parent);
    panel->setObjectName(name);
    panel->setAccessibleDescription(description);
    panel->setTextFormat(Qt::PlainText);
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setFrameShadow(QFrame::Sunken);
    panel->setMargin(2);
    return panel;
}

// The locale's short format without the seconds that some have: the panel changes once a minute.
QString TimeFormat(const QLocale& locale) {
    static const QRegularExpression seconds(QStringLiteral("[:.]ss?"));
    return locale.timeFormat(QLocale::ShortFormat).remove(seconds);
}

} // namespace

StatusBar::StatusBar(QWidget* parent)
    : QStatusBar(parent), date_(MakePanel(QStringLiteral("Panel1"), tr("Date"), this)),
      time_(MakePanel(QStringLiteral("Panel2"), tr("Time"), this)),
      program_(MakePanel(QStringLiteral("Panel3"), QString(), this)) {
    setObjectName(QStringLiteral("StatusBar"));
    setAccessibleName(tr("Status"));
    addWidget(date_);
    addWidget(time_);
    addWidget(program_, 1);
    // A long text is cut at the edge; it never widens the window.
    program_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    connect(&notice_, &StandingNotice::Ended, this, [this] { program_->setText(behind_); });
    minute_.setObjectName(QStringLiteral("minute"));
    minute_.setSingleShot(true);
    connect(&minute_, &QTimer::timeout, this, &StatusBar::Tick);
    Tick();
}

void StatusBar::SetPanel3(const QString& text, bool now) {
    if (!text.isEmpty() && !now)
        notice_.End();
    behind_ = text;
    program_->setText(text.isEmpty() && notice_.Stands() ? notice_.Text() : text);
    if (now)
        program_->repaint();
}

void StatusBar::SetIdle(const QString& text) {
    behind_ = text;
    program_->setText(notice_.Stands() ? notice_.Text() : text);
}

void StatusBar::ShowNotice(const QString& text, StandingNotice::Ends ends) {
    notice_.Begin(text, ends);
    program_->setText(text);
}

QString StatusBar::Panel3() const {
    return program_->text();
}

void StatusBar::ShowMoment(const QDateTime& moment) {
    const QLocale locale;
    date_->setText(locale.toString(moment.date(), QLocale::ShortFormat));
    time_->setText(locale.toString(moment.time(), TimeFormat(locale)));
}

int StatusBar::UntilNextMinute(const QDateTime& moment) {
    constexpr int minute = 60'000;
    return minute - moment.time().msecsSinceStartOfDay() % minute;
}

void StatusBar::Tick() {
    const QDateTime now = QDateTime::currentDateTime();
    ShowMoment(now);
    minute_.start(UntilNextMinute(now));
}
