// Who asked: the owner of a box, and who has the keys behind it. Offscreen, a window is active at once.
#include "platform/desktop/Asker.h"

#include "platform/desktop/DesktopPrompts.h"
#include "support/FreshUser.h"

#include <functional>
#include <gtest/gtest.h>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

namespace {

class AskerTest : public testing::Test {
  protected:
    void SetUp() override {
        FreshUser();
        frame.show();
        dialog.show();
        inner.show();
        Activate(frame);
    }
    static void Activate(QWidget& window) {
        window.activateWindow();
        ASSERT_TRUE(IsActive(window));
    }
    /// Waits for it. (A window counts itself active where a dialog of its is.)
    static bool IsActive(const QWidget& window) {
        return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
    }
    /// The owner of each box that comes up while something runs; every box is cancelled.
    QVector<QWidget*> Owners(const std::function<void()>& asking) {
        QVector<QWidget*> owners;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&owners] {
            if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                owners << box->parentWidget();
                box->reject();
            }
        });
        timer.start(0);
        asking();
        return owners;
    }
    void Message() { prompts.MsgBox(&frame, QStringLiteral("?"), MsgButtons::OKCancel, MsgIcon::None, {}); }

    DesktopPrompts prompts;
    QWidget frame;
    QDialog dialog{&frame};
    QDialog inner{&dialog};
};

TEST_F(AskerTest, EveryKindOfBoxBelongsToTheDialogThatAskedAndGivesTheKeysBack) {
    const std::function<void()> kinds[] = {
        [this] { Message(); },
        [this] { prompts.InputBox(&frame, QStringLiteral("?"), {}, {}); },
        [this] {
            QByteArray colors;
            prompts.ChooseColor(&frame, colors);
        },
        [this] { prompts.OpenFile(&frame, {}); },
        [this] { prompts.SaveFile(&frame, {}); },
    };
    for (const auto& ask : kinds)
        for (QWidget* asker : {static_cast<QWidget*>(&inner), static_cast<QWidget*>(&dialog), &frame}) {
            Activate(*asker);
            EXPECT_EQ(Owners(ask), QVector<QWidget*>{asker});
            EXPECT_TRUE(IsActive(*asker));
        }
}

TEST_F(AskerTest, TwoBoxesInARowBelongToTheSameDialog) {
    Activate(dialog);
    const QVector<QWidget*> owners = Owners([this] {
        prompts.OpenFile(&dialog, {});
        Message();
    });
    EXPECT_EQ(owners, (QVector<QWidget*>{&dialog, &dialog}));
    EXPECT_TRUE(IsActive(dialog));
}

// The desktop gives the keys back in its own time: until then no window is the active one.
TEST_F(AskerTest, WhoAskedLastIsActiveUntilTheDesktopSaysWho) {
    for (QWidget* window : {static_cast<QWidget*>(&inner), static_cast<QWidget*>(&dialog), &frame}) {
        window->hide();
        window->setAttribute(Qt::WA_ShowWithoutActivating);
        window->show();
    }
    ASSERT_TRUE(QTest::qWaitFor([] { return !QApplication::activeWindow(); }));
    LastAsker last;
    EXPECT_EQ(last.ActiveWindow(), nullptr);
    last.Remember(&dialog);
    EXPECT_EQ(last.ActiveWindow(), &dialog);
    QWidget other;
    other.show();
    Activate(other);
    EXPECT_EQ(last.ActiveWindow(), &other);
    other.hide();
    ASSERT_TRUE(QTest::qWaitFor([] { return !QApplication::activeWindow(); }));
    EXPECT_EQ(last.ActiveWindow(), nullptr);
}

TEST_F(AskerTest, ADialogThatHasGoneLeavesTheBoxToTheOwner) {
    Activate(dialog);
    inner.hide();
    dialog.hide();
    EXPECT_EQ(Owners([this] { Message(); }), QVector<QWidget*>{&frame});
    EXPECT_TRUE(IsActive(frame));
}

TEST_F(AskerTest, AWindowThatIsNoDialogOfTheOwnerOwnsNoBoxOfIts) {
    QDialog stranger;
    stranger.show();
    Activate(stranger);
    EXPECT_EQ(Owners([this] { Message(); }), QVector<QWidget*>{&frame});
    Activate(dialog);
    EXPECT_EQ(Owners([&] {
                  prompts.MsgBox(&stranger, QStringLiteral("?"), MsgButtons::OKCancel, MsgIcon::None, {});
              }),
              QVector<QWidget*>{&stranger});
}

TEST_F(AskerTest, AMinimisedWindowStaysMinimised) {
    frame.showMinimized();
    EXPECT_EQ(Owners([this] { Message(); }), QVector<QWidget*>{&frame});
    EXPECT_TRUE(frame.isMinimized());
}

TEST_F(AskerTest, WithoutAnOwnerABoxStandsAlone) {
    EXPECT_EQ(Owners([this] {
                  prompts.MsgBox(nullptr, QStringLiteral("?"), MsgButtons::OKCancel, MsgIcon::None, {});
              }),
              QVector<QWidget*>{nullptr});
}

} // namespace
