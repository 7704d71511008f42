#include "tools/timer/frmTime.h"

#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "tools/timer/DateLog.h"
#include "tools/timer/frmInfo.h"
#include "ui_frmTime.h"

#include <chrono>
#include <QCloseEvent>
#include <QDate>
#include <QLocale>
#include <QScreen>
#include <QTimer>

namespace {

constexpr QStringView pauseCaption = u"&Pause";
constexpr QStringView resumeCaption = u"&Resume";

/// From the frame's lower right corner, in pixels: its status bar stays visible.
constexpr QPoint distance(24, 48);

} // namespace

frmTime::frmTime(Frame& frame)
    : QDialog(frame.Window()), frame_(frame), ui_(std::make_unique<Ui::frmTime>()),
      timer1_(new QTimer(this)) {
    ui_->setupUi(this);
    // It comes up beside a document, which a person is about to type into.
    setAttribute(Qt::WA_ShowWithoutActivating);
    connect(ui_->cmdPause, &QPushButton::clicked, this, &frmTime::cmdPause_Click);
    connect(ui_->cmdInfo, &QPushButton::clicked, this, &frmTime::cmdInfo_Click);
    connect(&frame_.LoadedForms(), &Forms::Unloading, this, [this](const QWidget* form) {
        if (form == this)
            Form_QueryUnload();
    });
    frame_.State<WebTimerState>().DateList = frame_.Store().Read(Keys::DateList);

    timer1_->setObjectName(QStringLiteral("Timer1"));
    // Any other kind may be late by half a second each time, and the clock counts its calls.
    timer1_->setTimerType(Qt::PreciseTimer);
    timer1_->setInterval(std::chrono::seconds(TimeCount::step));
    connect(timer1_, &QTimer::timeout, this, &frmTime::Timer1_Timer);
    timer1_->start();
}

frmTime::~frmTime() = default;

void frmTime::Timer1_Timer() {
    count_.Tick();
    ui_->lblTime->setText(count_.Text());
    setWindowTitle(QStringLiteral("Web Timer - ") + ui_->lblTime->text());
}

void frmTime::cmdPause_Click() {
    const bool paused = ui_->cmdPause->text() == resumeCaption;
    ui_->cmdPause->setText((paused ? pauseCaption : resumeCaption).toString());
    if (paused)
        timer1_->start();
    else
        timer1_->stop();
}

void frmTime::cmdInfo_Click() {
    frame_.LoadedForms().Show<frmInfo>(frame_, this).Take(frame_.State<WebTimerState>().DateList);
}

void frmTime::reject() {
    frame_.Window()->activateWindow();
}

void frmTime::closeEvent(QCloseEvent* event) {
    event->accept();
    frame_.LoadedForms().Unload(*this);
}

void frmTime::Form_QueryUnload() {
    timer1_->stop();
    QString& log = frame_.State<WebTimerState>().DateList;
    log = WithLine(log, LogLine(QDate::currentDate(), QLocale(), ui_->lblTime->text()));
    frame_.Store().Write(Keys::DateList, log);
    // It shows the log as it was.
    frame_.LoadedForms().Unload<frmInfo>();
}

void frmTime::ComeUp() {
    const QWidget& owner = *parentWidget();
    if (!owner.isVisible()) {
        parentWidget()->installEventFilter(this);
        return;
    }
    adjustSize();
    const QRect onScreen = owner.geometry() & owner.screen()->availableGeometry();
    const QRect& place = onScreen.isEmpty() ? owner.geometry() : onScreen;
    move(place.bottomRight() - QPoint(width(), height()) - distance);
    show();
}

bool frmTime::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Show) {
        watched->removeEventFilter(this);
        QMetaObject::invokeMethod(this, &frmTime::ComeUp, Qt::QueuedConnection);
    }
    return QDialog::eventFilter(watched, event);
}

void ShowWebTimer(Frame& frame) {
    if (!frame.LoadedForms().Find<frmTime>())
        frame.LoadedForms().Load<frmTime>(frame).ComeUp();
}
