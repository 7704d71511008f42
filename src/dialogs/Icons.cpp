#include "dialogs/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

// The resources lie in a static library, from which the linker takes only what is called.
static void LoadResources() {
    Q_INIT_RESOURCE(tarnwick);
}

namespace {

QColor LineColor(QIcon::Mode mode) {
    if (mode == QIcon::Selected)
        return QGuiApplication::palette().color(QPalette::Active, QPalette::HighlightedText);
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    return QGuiApplication::palette().color(group, QPalette::ButtonText);
}

// Draws an SVG whose lines are "currentColor". The accents in it keep their colour, but for a disabled button
// and on a selection, whose own colour may be theirs.
class LineDrawing final : public QIconEngine {
  public:
    explicit LineDrawing(QString path) : path_(std::move(path)) {}

    QIconEngine* clone() const override { return new LineDrawing(*this); }
    QString key() const override { return QStringLiteral("LineDrawing"); }
    bool isNull() override { return !QFile::exists(path_); }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override { return size; }

    void paint(QPainter* painter, const QRect& rectangle, QIcon::Mode mode, QIcon::State state) override {
        const qreal scale = painter->device()->devicePixelRatio();
        painter->drawPixmap(rectangle, pixmap(rectangle.size() * scale, mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const QColor color = LineColor(mode);
        const Drawn wanted{size, mode, color.rgba()};
        QPixmap& drawn = drawn_[wanted];
        if (drawn.isNull())
            drawn = Draw(size, mode, color);
        return drawn;
    }

  private:
    struct Drawn {
        QSize size;
        QIcon::Mode mode;
        QRgb color;
        bool operator==(const Drawn&) const = default;
        friend size_t qHash(const Drawn& drawn, size_t seed = 0) {
            return qHashMulti(seed, drawn.size, static_cast<int>(drawn.mode), drawn.color);
        }
    };

    QPixmap Draw(const QSize& size, QIcon::Mode mode, const QColor& color) const {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QFile file(path_);
        if (!file.open(QIODevice::ReadOnly))
            return pixmap;
        QSvgRenderer renderer(file.readAll().replace("currentColor", color.name().toLatin1()));
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        if (mode == QIcon::Disabled || mode == QIcon::Selected) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(pixmap.rect(), color);
        }
        return pixmap;
    }

    QString path_;
    QHash<Drawn, QPixmap> drawn_;
};

} // namespace

QIcon LineIcon(const QString& name) {
    LoadResources();
    return QIcon(new LineDrawing(QStringLiteral(":/icons/") + name + QStringLiteral(".svg")));
}

QIcon ToolbarIcon(const QString& key) {
    return LineIcon(key);
}

QIcon ProgramIcon() {
    return LineIcon(QStringLiteral("tarnwick"));
}

QIcon ModifiedIcon() {
    return LineIcon(QStringLiteral("tarnwick-modified"));
}
