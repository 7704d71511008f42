// The window buttons of a maximised document can be seen on every palette.
#include "app/window/WindowButtonStyle.h"

#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QStyleOptionComplex>

namespace {

class WindowButtons : public testing::Test {
  protected:
    ~WindowButtons() override { QGuiApplication::setPalette(before); }

    /// The three buttons, as the corner of a menu bar shows them, drawn over its background.
    static QImage Drawn(const QStyle& style, QStyle::SubControl button, const QPalette& palette) {
        QStyleOptionComplex option;
        option.palette = palette;
        option.state = QStyle::State_Enabled | QStyle::State_Active;
        option.subControls = button;
        const QSize size = style.sizeFromContents(QStyle::CT_MdiControls, &option, QSize());
        option.rect = QRect(QPoint(), size);
        QImage image(size, QImage::Format_RGB32);
        image.fill(palette.color(QPalette::Window));
        QPainter painter(&image);
        style.drawComplexControl(QStyle::CC_MdiControls, &option, &painter);
        return image;
    }
    /// The title bar of a document that isn't maximised, with no title.
    static QStyleOptionTitleBar TitleBar(const QStyle& style, const QPalette& palette, bool active) {
        QStyleOptionTitleBar bar;
        bar.palette = palette;
        bar.titleBarFlags = Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                            Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;
        bar.subControls = QStyle::SC_All;
        bar.state = QStyle::State_Enabled;
        bar.titleBarState = Qt::WindowNoState;
        if (active) {
            bar.state |= QStyle::State_Active;
            bar.titleBarState |= QStyle::State_Active;
        }
        bar.rect = QRect(0, 0, 300, style.pixelMetric(QStyle::PM_TitleBarHeight, &bar));
        return bar;
    }
    static QImage Drawn(const QStyle& style, const QStyleOptionTitleBar& bar) {
        QImage image(bar.rect.size(), QImage::Format_RGB32);
        image.fill(bar.palette.color(QPalette::Window));
        QPainter painter(&image);
        style.drawComplexControl(QStyle::CC_TitleBar, &bar, &painter);
        return image;
    }
    /// How far the most different point in the middle of the picture is from a colour, of 255.
    static int Distance(const QImage& image, const QColor& from) {
        int greatest = 0;
        const QRect middle = image.rect().adjusted(3, 3, -3, -3);
        for (int y = middle.top(); y <= middle.bottom(); ++y)
            for (int x = middle.left(); x <= middle.right(); ++x)
                greatest = std::max(greatest, std::abs(qGray(image.pixel(x, y)) - qGray(from.rgb())));
        return greatest;
    }
    static QPalette Palette(const QColor& lines, const QColor& ground) {
        QPalette palette(lines, ground, ground.lighter(), ground.darker(), ground, lines, lines, ground,
                         ground);
        return palette;
    }
    const QPalette before = QGuiApplication::palette();
};

TEST_F(WindowButtons, AreSeenOnALightAndOnADarkPalette) {
    const WindowButtonStyle style;
    for (const bool dark : {false, true}) {
        const QColor ground = dark ? QColor(42, 46, 50) : QColor(239, 239, 239);
        const QPalette palette = Palette(dark ? Qt::white : Qt::black, ground);
        QGuiApplication::setPalette(palette);
        for (const auto button :
             {QStyle::SC_MdiMinButton, QStyle::SC_MdiNormalButton, QStyle::SC_MdiCloseButton})
            EXPECT_GT(Distance(Drawn(style, button, palette), ground), 120) << dark << ' ' << button;
    }
}

TEST_F(WindowButtons, OfATitleBarAreSeenOnALightAndOnADarkPalette) {
    const WindowButtonStyle style;
    for (const bool dark : {false, true})
        for (const bool active : {false, true}) {
            const QColor ground = dark ? QColor(42, 46, 50) : QColor(239, 239, 239);
            const QStyleOptionTitleBar bar =
                TitleBar(style, Palette(dark ? Qt::white : Qt::black, ground), active);
            const QImage image = Drawn(style, bar);
            for (const auto button : {QStyle::SC_TitleBarMinButton, QStyle::SC_TitleBarMaxButton,
                                      QStyle::SC_TitleBarCloseButton}) {
                const QRect place = style.subControlRect(QStyle::CC_TitleBar, &bar, button, nullptr);
                const QColor behind = image.pixelColor(place.topLeft() - QPoint(2, 0));
                EXPECT_GT(Distance(image.copy(place), behind), 100) << dark << active << ' ' << button;
            }
        }
}

TEST_F(WindowButtons, AllDiffer) {
    const WindowButtonStyle style;
    const auto drawn = [&](QStyle::SubControl button) { return Drawn(style, button, before); };
    EXPECT_NE(drawn(QStyle::SC_MdiMinButton), drawn(QStyle::SC_MdiNormalButton));
    EXPECT_NE(drawn(QStyle::SC_MdiMinButton), drawn(QStyle::SC_MdiCloseButton));
    EXPECT_NE(drawn(QStyle::SC_MdiNormalButton), drawn(QStyle::SC_MdiCloseButton));
}

} // namespace
