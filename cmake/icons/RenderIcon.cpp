// Draws an SVG picture into a PNG file of a size: render_icon PICTURE.svg PIXELS ICON.png
#include <cstdlib>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char* argv[]) {
    if (argc != 4)
        return EXIT_FAILURE;
    const int size = std::atoi(argv[2]);
    QSvgRenderer picture(QString::fromLocal8Bit(argv[1]));
    if (size <= 0 || !picture.isValid())
        return EXIT_FAILURE;
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    picture.render(&painter);
    painter.end();
    return icon.save(QString::fromLocal8Bit(argv[3]), "PNG") ? EXIT_SUCCESS : EXIT_FAILURE;
}
