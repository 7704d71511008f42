// A label that can be clicked.
#include "dialogs/ClickLabel.h"

#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QTest>

namespace {

class ClickLabelTest : public testing::Test {
  protected:
    void SetUp() override {
        label.resize(100, 20);
        label.show();
    }
    ClickLabel label{QStringLiteral("Link")};
    QSignalSpy clicks{&label, &ClickLabel::Click};
    QSignalSpy doubleClicks{&label, &ClickLabel::DblClick};
};

} // namespace

TEST_F(ClickLabelTest, IsClickedWhenTheLeftButtonGoesUpOverIt) {
    QTest::mousePress(&label, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 0);
    QTest::mouseRelease(&label, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    QTest::mouseClick(&label, Qt::RightButton);
    QTest::mouseClick(&label, Qt::MiddleButton);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(doubleClicks.count(), 0);
}

TEST_F(ClickLabelTest, DraggedAwayItIsNotClicked) {
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(50, 60));
    EXPECT_EQ(clicks.count(), 0);
    QTest::mouseRelease(&label, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 0) << "the button went down elsewhere";
}

TEST_F(ClickLabelTest, ADoubleClickIsOneClickAndOneDoubleClick) {
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseDClick(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(doubleClicks.count(), 1);
    QTest::mouseDClick(&label, Qt::RightButton);
    EXPECT_EQ(doubleClicks.count(), 1);
}

TEST_F(ClickLabelTest, ItsTextHasItsColour) {
    label.SetForeColor(QColor(200, 0, 0));
    EXPECT_EQ(label.ForeColor(), QColor(200, 0, 0));
    const QImage face = label.grab().toImage();
    int red = 0;
    for (int y = 0; y < face.height(); ++y) {
        for (int x = 0; x < face.width(); ++x) {
            const QColor pixel = face.pixelColor(x, y);
            red += pixel.red() > 120 && pixel.green() < 80 && pixel.blue() < 80 ? 1 : 0;
        }
    }
    EXPECT_GT(red, 0);
}
