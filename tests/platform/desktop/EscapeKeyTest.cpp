// Esc ends long work, unless it is for something on top of the window.
#include "platform/desktop/EscapeKey.h"

#include <gtest/gtest.h>
#include <memory>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

namespace {

class EscapeKeyTest : public testing::Test {
  protected:
    EscapeKeyTest() : field(&window) {
        window.show();
        window.activateWindow();
        field.setFocus();
        Watch();
    }
    void Watch() {
        escape = std::make_unique<EscapeKey>(window, nullptr);
        QObject::connect(escape.get(), &EscapeKey::Pressed, &window, [this] { ++pressed; });
    }

    QWidget window;
    QLineEdit field;
    std::unique_ptr<EscapeKey> escape;
    int pressed = 0;
};

TEST_F(EscapeKeyTest, IsSeenWhereverTheKeysGo) {
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(pressed, 1);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(pressed, 2);
    QTest::keyClicks(&field, QStringLiteral("a"));
    EXPECT_EQ(pressed, 2);
    EXPECT_EQ(field.text(), QStringLiteral("a"));
}

TEST_F(EscapeKeyTest, IsNoLongerSeenOnceTheWatchIsOver) {
    escape.reset();
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(pressed, 0);
}

TEST_F(EscapeKeyTest, BelongsToABoxOnTop) {
    QDialog box(&window);
    box.setModal(true);
    box.show();
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_EQ(pressed, 0);
    EXPECT_FALSE(box.isVisible());
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(pressed, 1);
}

TEST_F(EscapeKeyTest, BelongsToAnotherWindowThatIsActive) {
    QDialog other(&window);
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    QTest::keyClick(&other, Qt::Key_Escape);
    EXPECT_EQ(pressed, 0);
    EXPECT_FALSE(other.isVisible());
}

} // namespace
