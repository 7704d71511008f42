// The icons: one a button, all different, readable at every size and on every palette.
#include "dialogs/Icons.h"

#include "app/surface/Toolbar.h"
#include "support/Text.h"

#include <cmath>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPalette>
#include <QRegularExpression>

namespace {

double Channel(int value) {
    const double c = value / 255.0;
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
    return 0.2126 * Channel(color.red()) + 0.7152 * Channel(color.green()) + 0.0722 * Channel(color.blue());
}

double Contrast(const QColor& a, const QColor& b) {
    const double x = Luminance(a) + 0.05;
    const double y = Luminance(b) + 0.05;
    return x > y ? x / y : y / x;
}

QImage Drawn(const QIcon& icon, int size, QIcon::Mode mode = QIcon::Normal) {
    return icon.pixmap(QSize(size, size), 1.0, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The share of a picture's pixels that are drawn on.
double Inked(const QImage& image) {
    int inked = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            inked += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
    return double(inked) / (image.width() * image.height());
}

class IconsTest : public testing::Test {
  protected:
    ~IconsTest() override { QGuiApplication::setPalette(palette); }

    static void UseButtonText(const QColor& color) {
        QPalette changed = QGuiApplication::palette();
        changed.setColor(QPalette::Active, QPalette::ButtonText, color);
        changed.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::gray);
        QGuiApplication::setPalette(changed);
    }

    const QPalette palette = QGuiApplication::palette();
};

TEST_F(IconsTest, EveryButtonHasOneOfItsOwnAtEverySize) {
    for (const int size : {16, 24, 48}) {
        QHash<QByteArray, QString> seen;
        for (const ToolbarRow& row : ToolbarTable()) {
            const QImage image = Drawn(ToolbarIcon(QString::fromLatin1(row.key)), size);
            ASSERT_EQ(image.size(), QSize(size, size)) << row.key;
            EXPECT_GT(Inked(image), 0.08) << row.key;
            EXPECT_LT(Inked(image), 0.6) << row.key;
            const QByteArray bits(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
            EXPECT_FALSE(seen.contains(bits)) << row.key << " looks like " << seen.value(bits).toStdString();
            seen.insert(bits, QString::fromLatin1(row.key));
        }
    }
    EXPECT_GT(Inked(Drawn(ProgramIcon(), 48)), 0.7);
}

TEST_F(IconsTest, LinesTakeThePaletteThatHoldsWhenTheyArePainted) {
    const QIcon copy = ToolbarIcon(QStringLiteral("copy"));
    for (const QColor color : {QColor(0x20, 0x20, 0x20), QColor(0xEE, 0xEE, 0xEE)}) {
        UseButtonText(color);
        const QImage image = Drawn(copy, 48);
        bool found = false;
        for (int y = 0; y < 48; ++y)
            for (int x = 0; x < 48; ++x)
                found = found || image.pixelColor(x, y) == color;
        EXPECT_TRUE(found) << color.name().toStdString();
    }
}

TEST_F(IconsTest, ADisabledOneIsAllOfThePalettesGrey) {
    UseButtonText(Qt::black);
    const QImage image = Drawn(ToolbarIcon(QStringLiteral("image")), 48, QIcon::Disabled);
    EXPECT_GT(Inked(image), 0.08);
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 48; ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 255) {
                EXPECT_EQ(pixel, QColor(Qt::gray)) << x << "," << y;
            }
        }
}

TEST_F(IconsTest, OnASelectionAllOfItIsOfTheColorOfSelectedText) {
    QPalette changed = QGuiApplication::palette();
    changed.setColor(QPalette::HighlightedText, Qt::white);
    QGuiApplication::setPalette(changed);
    const QImage image = Drawn(LineIcon(QStringLiteral("tree-web")), 48, QIcon::Selected);
    EXPECT_GT(Inked(image), 0.08);
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 48; ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 255) {
                EXPECT_EQ(pixel, QColor(Qt::white)) << x << "," << y;
            }
        }
}

// 3 to 1 is what guidelines ask of graphics that carry a meaning.
TEST_F(IconsTest, AccentsStandOutOnLightAndOnDark) {
    const QRegularExpression colour(QStringLiteral("#[0-9a-f]{6}"));
    int accents = 0;
    for (const ToolbarRow& row : ToolbarTable()) {
        ToolbarIcon(QString::fromLatin1(row.key));
        QFile file(QStringLiteral(":/icons/%1.svg").arg(QString::fromLatin1(row.key)));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << row.key;
        const QString text = QString::fromLatin1(file.readAll());
        EXPECT_TRUE(text.contains(QStringLiteral("viewBox=\"0 0 24 24\""))) << row.key;
        EXPECT_TRUE(text.contains(QStringLiteral("stroke=\"currentColor\" stroke-width=\"1.75\"")))
            << row.key;
        for (auto match = colour.globalMatch(text); match.hasNext(); ++accents) {
            const QColor accent(match.next().captured());
            EXPECT_GE(Contrast(accent, QColor(0xF0, 0xF0, 0xF0)), 3.0)
                << row.key << accent.name().toStdString();
            EXPECT_GE(Contrast(accent, QColor(0x2B, 0x2B, 0x2B)), 3.0)
                << row.key << accent.name().toStdString();
        }
    }
    EXPECT_GT(accents, 20);
}

TEST_F(IconsTest, NoIconLiesUnused) {
    ToolbarIcon(QStringLiteral("new"));
    QStringList wanted{QStringLiteral("element-add.svg"),   QStringLiteral("element-rename.svg"),
                       QStringLiteral("more.svg"),          QStringLiteral("sheet-caret.svg"),
                       QStringLiteral("sheet-head.svg"),    QStringLiteral("tarnwick-modified.svg"),
                       QStringLiteral("tarnwick.svg"),      QStringLiteral("tree-files.svg"),
                       QStringLiteral("tree-ftp.svg"),      QStringLiteral("tree-mail.svg"),
                       QStringLiteral("tree-page.svg"),     QStringLiteral("tree-web.svg"),
                       QStringLiteral("window-close.svg"),  QStringLiteral("window-minimise.svg"),
                       QStringLiteral("window-restore.svg")};
    for (const ToolbarRow& row : ToolbarTable())
        wanted << QString::fromLatin1(row.key) + QStringLiteral(".svg");
    QStringList there = QDir(QStringLiteral(":/icons")).entryList(QDir::Files);
    wanted.sort();
    there.sort();
    EXPECT_EQ(there, wanted);
}

} // namespace
