#include "app/run/frmSplash.h"

#include "app/run/Version.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "ui_frmSplash.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace {

QPixmap Picture(qreal devicePixelRatio) {
    QSvgRenderer renderer(u":/splash.svg"_s);
    QPixmap picture(renderer.defaultSize() * devicePixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter);
    painter.end();
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

} // namespace

frmSplash::frmSplash(Frame& frame)
    : QWidget(nullptr, Qt::Dialog | Qt::FramelessWindowHint), ui_(std::make_unique<Ui::frmSplash>()),
      frame_(frame) {
    ui_->setupUi(this);
    ui_->Image1->setPixmap(Picture(devicePixelRatioF()));
    ui_->lblVersion->setText(u"Version %1"_s.arg(Version::Dotted()));
    ui_->lblVersion->installEventFilter(this);
    SetMessage(QString());
    move(screen()->geometry().center() - rect().center());
}

frmSplash::~frmSplash() = default;

void frmSplash::SetMessage(const QString& text) {
    ui_->lblMessage->setText(text);
    ui_->lblMessage->setVisible(!text.isEmpty());
    adjustSize();
}

void frmSplash::Unload() {
    frame_.LoadedForms().Unload(*this);
}

void frmSplash::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void frmSplash::mouseReleaseEvent(QMouseEvent* event) {
    if (rect().contains(event->position().toPoint()))
        Unload();
}

void frmSplash::keyPressEvent(QKeyEvent*) {
    Unload();
}

void frmSplash::closeEvent(QCloseEvent*) {
    Unload();
}

// Hidden means unloaded: the frame comes up, which changes nothing where it is up already.
void frmSplash::hideEvent(QHideEvent* event) {
    if (!event->spontaneous() && bringUpFrame_)
        frame_.Window()->show();
    QWidget::hideEvent(event);
}

// The version alone takes no click.
bool frmSplash::eventFilter(QObject* watched, QEvent* event) {
    const bool mouse =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease;
    return (watched == ui_->lblVersion && mouse) || QWidget::eventFilter(watched, event);
}
