// The toolbar as a person finds it: buttons, order, tips, rows, keys.
#include "app/surface/Toolbar.h"

#include "app/surface/CommandActions.h"
#include "app/surface/NewEntries.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <optional>
#include <QSet>
#include <QToolButton>
#include <QtTest/QTest>
#include <QVBoxLayout>

namespace {

struct Row {
    const char* name;
    const char* toolTip;
};

const Row designed[] = {
    {"tb_new", "New"},
    {"tb_open", "Open"},
    {"tb_save", "Save"},
    {"tb_print", "Print"},
    {"tb_object", "Projects"},
    {"tb_cut", "Cut"},
    {"tb_copy", "Copy"},
    {"tb_paste", "Paste"},
    {"tb_delete", "Delete"},
    {"tb_undo", "Undo"},
    {"tb_find", "Find"},
    {"tb_spell", "Spell Check"},
    {"tb_bold", "Bold"},
    {"tb_italic", "Italic"},
    {"tb_underline", "Underline"},
    {"tb_break", "Break"},
    {"tb_para", "Paragraph"},
    {"tb_hr", "Horizontal Rule"},
    {"tb_abc", "Font"},
    {"tb_pre", "Preformatted Text"},
    {"tb_center", "Center"},
    {"tb_balloon", "Comment"},
    {"tb_preview", "Preview in web browser"},
    {"tb_body", "Body"},
    {"tb_form", "Form"},
    {"tb_table", "Table"},
    {"tb_frame", "Frame"},
    {"tb_CSS", "Cascading Style Sheets"},
    {"tb_Layer", "Create DHTML Layer"},
    {"tb_java", "Jave Applet"},
    {"tb_java2", "Java Parameter"},
    {"tb_meta", "Insert Meta tag"},
    {"tb_ftp", "FTP Upload"},
    {"tb_link", "Link"},
    {"tb_anchor", "Anchor"},
    {"tb_image", "Image"},
    {"tb_embed", "Embed"},
    {"tb_dots", "Unordered List (bullets)"},
    {"tb_onetwothree", "Ordered list"},
    {"tb_split", "Columns"},
    {"tb_rectangle", "Spacers"},
    {"tb_h1", "Heading 1"},
    {"tb_h2", "Heading 2"},
    {"tb_h3", "Heading 3"},
    {"tb_h4", "Heading 4"},
    {"tb_h5", "Heading 5"},
    {"tb_h6", "Heading 6"},
};

/// The buttons of the forms that came later stand behind.
std::vector<Row> Expected() {
    static std::vector<QByteArray> names;
    std::vector<Row> rows(std::begin(designed), std::end(designed));
    const auto forms = FormsWithNewButton();
    names.reserve(forms.size());
    for (const FormRow& row : forms) {
        names.push_back(QByteArray("tb_") + row.reach.button.key);
        rows.push_back({names.back().constData(), row.reach.button.toolTip});
    }
    return rows;
}

const std::vector<Row> expected = Expected();

class ToolbarTest : public testing::Test {
  protected:
    ToolbarTest() {
        for (const Row& row : expected) {
            const QString name = QString::fromLatin1(row.name);
            frame.Commands().Set(name, [this, name] { ran << name; });
        }
        toolbar = new Toolbar1(frame, frame.Window());
        EnableCommands(*frame.Window(), frame.Commands());
        toolbar->show();
    }

    /// Lays the toolbar out at a width, as the frame does.
    void Lay(int width) {
        toolbar->resize(width, toolbar->heightForWidth(width));
        QCoreApplication::processEvents();
    }
    QToolButton* Button(const char* name) {
        return toolbar->findChild<QToolButton*>(QString::fromLatin1(name));
    }
    /// The tops of the rows that the buttons stand in.
    QList<int> Rows() {
        QList<int> tops;
        for (const Row& row : expected)
            if (!tops.contains(Button(row.name)->y()))
                tops << Button(row.name)->y();
        return tops;
    }

    TestFrame frame;
    QStringList ran;
    Toolbar1* toolbar;
};

TEST_F(ToolbarTest, ButtonsOrderAndTipsAreTheseToTheLetter) {
    const QList<QAction*> actions = toolbar->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_EQ(actions.size(), static_cast<qsizetype>(std::size(expected)));
    ASSERT_EQ(ToolbarTable().size(), std::size(expected));
    for (size_t i = 0; i < std::size(expected); ++i) {
        const QAction& action = *actions[static_cast<qsizetype>(i)];
        EXPECT_EQ(action.objectName(), QString::fromLatin1(expected[i].name));
        EXPECT_EQ(action.toolTip(), QString::fromLatin1(expected[i].toolTip));
        const QToolButton* button = Button(expected[i].name);
        ASSERT_TRUE(button) << expected[i].name;
        EXPECT_EQ(button->toolTip(), QString::fromLatin1(expected[i].toolTip));
        EXPECT_EQ(button->accessibleName(), QString::fromLatin1(expected[i].toolTip));
        EXPECT_TRUE(button->defaultAction()->shortcut().isEmpty()) << expected[i].name;
    }
}

TEST_F(ToolbarTest, ANewButtonOfAFormStandsAtTheEnd) {
    const FormRow forms[] = {{"frmKnown", {.button = {"link"}}},
                             {"frmChart", {.button = {"chart", "Chart"}}}};
    const std::vector<ToolbarRow> buttons = ToolbarTable(forms);
    ASSERT_EQ(buttons.size(), ToolbarTable({}).size() + 1);
    EXPECT_STREQ(buttons.back().key, "chart");
    EXPECT_STREQ(buttons.back().toolTip, "Chart");
}

TEST_F(ToolbarTest, EveryButtonIsReachableAtAnyWidthAndInOrder) {
    for (const int width : {300, 1024, 1600, 2560}) {
        Lay(width);
        QPoint last(-1, 0);
        for (const Row& row : expected) {
            const QRect place = Button(row.name)->geometry();
            EXPECT_TRUE(toolbar->rect().contains(place)) << row.name << " at " << width;
            EXPECT_TRUE(place.y() > last.y() || (place.y() == last.y() && place.x() > last.x())) << row.name;
            last = place.topLeft();
        }
    }
    Lay(300);
    const auto many = Rows().size();
    Lay(1024);
    EXPECT_LT(Rows().size(), many);
    EXPECT_EQ(Rows().size(), 2);
    Lay(2560);
    EXPECT_EQ(Rows().size(), 1);
}

TEST_F(ToolbarTest, ItsHeightFollowsItsWidthInALayout) {
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* below = new QWidget;
    column->addWidget(toolbar);
    column->addWidget(below, 1);
    window.resize(1024, 700);
    window.show();
    QCoreApplication::processEvents();
    const int twoRows = toolbar->height();
    EXPECT_EQ(twoRows, toolbar->heightForWidth(1024));
    window.resize(2560, 700);
    QCoreApplication::processEvents();
    EXPECT_LT(toolbar->height(), twoRows);
    window.resize(400, 700);
    QCoreApplication::processEvents();
    EXPECT_GT(toolbar->height(), twoRows);
    EXPECT_EQ(window.width(), 400);
    EXPECT_EQ(below->y(), toolbar->height());
    toolbar->setParent(frame.Window());
}

TEST_F(ToolbarTest, AClickRunsTheCommandAndLeavesTheFocusWithTheDocument) {
    Lay(1024);
    frame.Window()->activateWindow();
    frame.Box().SetFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return frame.Box().hasFocus(); }));
    QStringList all;
    for (const Row& row : expected) {
        QTest::mouseClick(Button(row.name), Qt::LeftButton);
        all << QString::fromLatin1(row.name);
    }
    EXPECT_EQ(ran, all);
    EXPECT_TRUE(frame.Box().hasFocus());
}

TEST_F(ToolbarTest, F6AndTheArrowsReachEveryButtonAndEscLeaves) {
    Lay(1024);
    frame.Window()->activateWindow();
    frame.Box().SetFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return frame.Box().hasFocus(); }));
    QTest::keyClick(frame.Window(), Qt::Key_F6);
    QStringList reached;
    for (size_t i = 0; i < std::size(expected); ++i) {
        QWidget* at = QApplication::focusWidget();
        ASSERT_TRUE(toolbar->isAncestorOf(at));
        reached << at->objectName();
        QTest::keyClick(at, i % 2 == 0 ? Qt::Key_Space : Qt::Key_Return);
        QTest::keyClick(at, Qt::Key_Right);
    }
    QStringList all;
    for (const Row& row : expected)
        all << QString::fromLatin1(row.name);
    EXPECT_EQ(reached, all);
    EXPECT_EQ(ran, all);
    // Around the end, and on from there.
    EXPECT_TRUE(Button("tb_new")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(Button(expected.back().name)->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    EXPECT_TRUE(Button("tb_new")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    EXPECT_TRUE(Button(expected.back().name)->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(frame.Box().hasFocus());
    // Back again: where one left.
    QTest::keyClick(frame.Window(), Qt::Key_F6);
    EXPECT_TRUE(Button(expected.back().name)->hasFocus());
}

TEST_F(ToolbarTest, TheArrowsPassOverWhatIsDisabled) {
    Lay(1024);
    frame.Window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return frame.Window()->isActiveWindow(); }));
    Button("tb_open")->defaultAction()->setEnabled(false);
    Button("tb_new")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_TRUE(Button("tb_save")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(Button("tb_new")->hasFocus());
}

TEST_F(ToolbarTest, AButtonWithoutACommandIsDisabled) {
    TestFrame other;
    auto* bare = new Toolbar1(other, other.Window());
    EnableCommands(*other.Window(), other.Commands());
    const QList<QToolButton*> buttons = bare->findChildren<QToolButton*>();
    EXPECT_EQ(buttons.size(), static_cast<qsizetype>(expected.size()));
    for (const QToolButton* button : buttons)
        EXPECT_FALSE(button->isEnabled()) << button->objectName().toStdString();
}

/// Whether a button was last painted as pressed.
class PaintedDown : public QObject {
  public:
    explicit PaintedDown(QToolButton& button) : button_(button) { button.installEventFilter(this); }
    std::optional<bool> last;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            last = button_.isDown();
        return false;
    }

  private:
    QToolButton& button_;
};

TEST_F(ToolbarTest, AButtonIsUpAgainBeforeItsCommandRuns) {
    Lay(1024);
    frame.Window()->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(frame.Window()));
    QToolButton& anchor = *Button("tb_anchor");
    const PaintedDown painted(anchor);
    std::optional<bool> whenItRan;
    // The command may bring up a box and stay until that is answered.
    frame.Commands().Set(QStringLiteral("tb_anchor"), [&] { whenItRan = painted.last; });
    QTest::mousePress(&anchor, Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return painted.last == true; }));
    QTest::mouseRelease(&anchor, Qt::LeftButton);
    EXPECT_EQ(whenItRan, false);
}

} // namespace
