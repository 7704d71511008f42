#include "builders/page/PageSample.h"

#include <QPainter>

PageSample::PageSample(QWidget* parent) : QFrame(parent) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
}

void PageSample::SetBackColor(const QColor& color) {
    backColor_ = color;
    update();
}

void PageSample::SetPicture(const QPixmap& picture) {
    picture_ = picture;
    update();
}

void PageSample::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(contentsRect(), backColor_);
    if (!picture_.isNull())
        painter.drawTiledPixmap(contentsRect(), picture_);
    painter.end();
    QFrame::paintEvent(event);
}
