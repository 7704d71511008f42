#include "app/surface/FlowLayout.h"

#include <algorithm>
#include <QStyle>
#include <QWidget>

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent) {}

FlowLayout::~FlowLayout() {
    qDeleteAll(items_);
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (index < 0 || index >= count())
        return nullptr;
    return items_.takeAt(index);
}

int FlowLayout::heightForWidth(int width) const {
    return Arrange(QRect(0, 0, width, 0), false);
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const QLayoutItem* item : items_)
        size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize FlowLayout::sizeHint() const {
    int width = 0;
    int height = 0;
    for (const QLayoutItem* item : items_) {
        width += item->sizeHint().width() + spacing();
        height = std::max(height, item->sizeHint().height());
    }
    const QMargins margins = contentsMargins();
    return {width - spacing() + margins.left() + margins.right(), height + margins.top() + margins.bottom()};
}

void FlowLayout::setGeometry(const QRect& rectangle) {
    QLayout::setGeometry(rectangle);
    Arrange(rectangle, true);
}

int FlowLayout::Arrange(const QRect& rectangle, bool place) const {
    const QRect inner = rectangle.marginsRemoved(contentsMargins());
    int x = inner.left();
    int y = inner.top();
    int rowHeight = 0;
    for (QLayoutItem* item : items_) {
        const QSize size = item->sizeHint();
        if (x > inner.left() && x + size.width() > inner.left() + inner.width()) {
            x = inner.left();
            y += rowHeight + spacing();
            rowHeight = 0;
        }
        if (place)
            item->setGeometry(
                QStyle::visualRect(parentWidget()->layoutDirection(), inner, QRect(QPoint(x, y), size)));
        x += size.width() + spacing();
        rowHeight = std::max(rowHeight, size.height());
    }
    return y + rowHeight - rectangle.top() + contentsMargins().bottom();
}
