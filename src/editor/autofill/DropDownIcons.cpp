#include "editor/autofill/DropDownIcons.h"

#include <array>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace {

constexpr int firstSwatch = 5;

// The sixteen named colours, from yellow to aqua; the picker's white serves " custom..." too.
constexpr std::array<QRgb, 16> swatches{0xFFFF00, 0x000000, 0x0000FF, 0xFF00FF, 0x008000, 0x808080,
                                        0x00FF00, 0x800000, 0x000080, 0x808000, 0x800080, 0xFF0000,
                                        0xC0C0C0, 0x008080, 0xFFFFFF, 0x00FFFF};

/// Draws one picture in a square of 16 units, however large that square is.
class Picture final : public QIconEngine {
  public:
    explicit Picture(int index) : index_(index) {}

    QIconEngine* clone() const override { return new Picture(index_); }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QGuiApplication::palette();
        const QPalette::ColorRole role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::Text;
        const qreal side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center() - QPointF(side / 2, side / 2));
        painter->scale(side / 16, side / 16);
        painter->setPen(QPen(palette.color(role), 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
        Draw(*painter);
        painter->restore();
    }

  private:
    void Draw(QPainter& painter) const {
        if (index_ >= firstSwatch)
            DrawSwatch(painter);
        else if (index_ == 4)
            DrawAlignment(painter);
        else if (index_ == 3)
            DrawFile(painter);
        else
            DrawAttribute(painter);
    }

    void DrawSwatch(QPainter& painter) const {
        painter.setBrush(SwatchColor(index_));
        painter.drawRect(QRectF(2, 3, 12, 10));
    }

    /// Lines of text, set ragged.
    static void DrawAlignment(QPainter& painter) {
        painter.drawLine(QPointF(2, 3.5), QPointF(14, 3.5));
        painter.drawLine(QPointF(2, 6.5), QPointF(9, 6.5));
        painter.drawLine(QPointF(2, 9.5), QPointF(14, 9.5));
        painter.drawLine(QPointF(2, 12.5), QPointF(9, 12.5));
    }

    /// A sheet with a turned corner.
    static void DrawFile(QPainter& painter) {
        painter.drawPolygon(QPolygonF({{3.5, 1.5}, {9.5, 1.5}, {12.5, 4.5}, {12.5, 14.5}, {3.5, 14.5}}));
        painter.drawPolyline(QPolygonF({{9.5, 1.5}, {9.5, 4.5}, {12.5, 4.5}}));
    }

    /// A name, an equal sign, a value.
    static void DrawAttribute(QPainter& painter) {
        painter.drawEllipse(QPointF(3.5, 8), 2, 2);
        painter.drawLine(QPointF(7, 7), QPointF(9, 7));
        painter.drawLine(QPointF(7, 9), QPointF(9, 9));
        painter.drawRect(QRectF(10.8, 6, 4, 4));
    }

    int index_;
};

} // namespace

QColor SwatchColor(int index) {
    const int swatch = index - firstSwatch;
    if (swatch < 0 || swatch >= static_cast<int>(swatches.size()))
        return {};
    return QColor(swatches[static_cast<size_t>(swatch)]);
}

QIcon ImageList1(int index) {
    if (index == 1 || index == 3 || index == 4 || SwatchColor(index).isValid())
        return QIcon(new Picture(index));
    return {};
}
