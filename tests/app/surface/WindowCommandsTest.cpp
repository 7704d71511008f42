// The Window menu: cascade, tile, line up, and the list of windows.
#include "app/surface/WindowCommands.h"

#include "app/RealFrame.h"
#include "app/window/DocumentTabs.h"

#include <QAccessible>
#include <QDialog>
#include <QMenu>
#include <QProxyStyle>
#include <QStyleOptionMenuItem>

namespace {

class WindowCommands : public FrameTest {
  protected:
    WindowCommands() {
        Write(Keys::TemplateWindowState, "0");
        EXPECT_TRUE(run.Start());
    }
    QStringList List() {
        auto& menu = run.Find<QMenu>("mnuWindow");
        menu.popup(QPoint(0, 0));
        menu.hide();
        QStringList list;
        for (QAction* entry : menu.actions())
            if (entry->objectName().startsWith(QStringLiteral("mnuWindowList_")))
                list << entry->text() + (entry->isChecked() ? QStringLiteral(" *") : QString());
        return list;
    }
    /// What a screen reader is told of the menu's entries.
    QStringList Heard() {
        QStringList heard;
        const auto* face = QAccessible::queryAccessibleInterface(&run.Find<QMenu>("mnuWindow"));
        for (int n = 0; n < face->childCount(); ++n) {
            const QAccessibleInterface* entry = face->child(n);
            EXPECT_EQ(face->indexOfChild(entry), n);
            heard << entry->text(QAccessible::Name) +
                         (entry->state().checked ? QStringLiteral(" *") : QString());
        }
        return heard;
    }
    ProgramRun run;
};

TEST_F(WindowCommands, CascadeStepsEachWindow) {
    for (int n = 0; n < 3; ++n)
        run.New().showMaximized();
    run.Entry("mnuCascade").trigger();
    const auto windows = run.frame->Area().subWindowList();
    for (qsizetype n = 1; n < windows.size(); ++n) {
        EXPECT_GT(windows[n]->x(), windows[n - 1]->x());
        EXPECT_GT(windows[n]->y(), windows[n - 1]->y());
        EXPECT_FALSE(windows[n]->isMaximized());
        EXPECT_GT(windows[n]->height(), run.frame->Area().height() / 2);
    }
}

TEST_F(WindowCommands, TileFillsTheAreaInRows) {
    run.New();
    run.New();
    run.New().showMinimized();
    run.frame->ActivateDocument(dynamic_cast<frmTemplate&>(*run.frame->Area().subWindowList()[1]));
    run.Active().showMaximized();
    run.Entry("mnuTile").trigger();
    const QSize area = run.frame->Area().viewport()->size();
    const auto windows = run.frame->Area().subWindowList();
    EXPECT_EQ(windows[0]->geometry(), QRect(0, 0, area.width(), area.height() / 2));
    EXPECT_EQ(windows[1]->geometry().top(), area.height() / 2);
    EXPECT_EQ(windows[1]->width(), area.width());
    EXPECT_FALSE(windows[1]->isMaximized());
    EXPECT_TRUE(windows[2]->isMinimized());
}

TEST_F(WindowCommands, ClickIntoATiledDocumentSelectsItsTab) {
    for (const QString& name : {QStringLiteral("a.htm"), QStringLiteral("b.htm")}) {
        const QString path = TestFolder() + u'/' + name;
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("text");
        file.close();
        run.frame->OpenDocumentFile(path);
    }
    run.Entry("mnuTile").trigger();
    const auto windows = run.frame->Area().subWindowList();
    auto& strip = run.frame->TabStrip2();
    for (const int index : {0, 1, 0}) {
        QWidget* text = dynamic_cast<frmTemplate&>(*windows[index]).txtInput().viewport();
        QTest::mouseClick(text, Qt::LeftButton, {}, QPoint(20, 10));
        EXPECT_EQ(run.frame->Area().currentSubWindow(), windows[index]);
        EXPECT_EQ(strip.currentIndex(), index);
        EXPECT_EQ(strip.Tag(strip.currentIndex()), run.Active().Caption());
    }
}

TEST_F(WindowCommands, ArrangeIconsLinesUpMinimisedWindows) {
    run.New();
    QList<frmTemplate*> icons = {&run.New(), &run.New()};
    for (frmTemplate* icon : icons) {
        icon->showMinimized();
        icon->move(33, 44);
    }
    run.Entry("mnuArrangeIcons").trigger();
    const int height = run.frame->Area().viewport()->height();
    EXPECT_EQ(icons[0]->pos(), QPoint(0, height - icons[0]->height()));
    EXPECT_EQ(icons[1]->pos(), QPoint(icons[0]->width(), height - icons[1]->height()));
    EXPECT_TRUE(icons[0]->isMinimized());
}

TEST_F(WindowCommands, ArrangingNothingIsHarmless) {
    for (const char* entry : {"mnuCascade", "mnuTile", "mnuArrangeIcons"})
        run.Entry(entry).trigger();
    EXPECT_EQ(run.frame->ActiveForm(), nullptr);
}

TEST_F(WindowCommands, ListNamesTheWindowsAtTheMenusEnd) {
    EXPECT_TRUE(List().isEmpty());
    const auto entries = run.Find<QMenu>("mnuWindow").actions().size();
    const QString path = MakeFile(QStringLiteral("a & b.htm"), "x");
    run.New();
    run.frame->OpenDocumentFile(path);
    QString shown = path;
    EXPECT_EQ(List(), QStringList({QStringLiteral("&1 "), QStringLiteral("&2 ") +
                                                              shown.replace(u'&', QStringLiteral("&&")) +
                                                              QStringLiteral(" *")}));
    EXPECT_EQ(List().size(), 2);
    run.Active().Unload();
    run.Active().Unload();
    EXPECT_TRUE(List().isEmpty());
    EXPECT_EQ(run.Find<QMenu>("mnuWindow").actions().size(), entries);
}

/// What a menu draws for its entries, which may be more than their texts.
QStringList Drawn(QMenu& menu) {
    class Look final : public QProxyStyle {
      public:
        void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                         const QWidget* widget) const override {
            if (const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
                entry && element == CE_MenuItem && entry->menuItemType != QStyleOptionMenuItem::Separator)
                drawn << entry->text;
            QProxyStyle::drawControl(element, option, painter, widget);
        }
        mutable QStringList drawn;
    };
    Look look;
    menu.setStyle(&look);
    menu.grab();
    menu.setStyle(nullptr);
    return look.drawn;
}

TEST_F(WindowCommands, ListShowsANumberForDocumentsWithoutAFile) {
    run.New();
    run.New();
    const QStringList list = List();
    // The entry's own text stays blank behind its number.
    EXPECT_EQ(list, QStringList({QStringLiteral("&1 "), QStringLiteral("&2  *")}));
    const QStringList shown = Drawn(run.Find<QMenu>("mnuWindow"));
    ASSERT_GE(shown.size(), 2);
    EXPECT_EQ(shown.last(2), QStringList({QStringLiteral("&1 Untitled 1"), QStringLiteral("&2 Untitled 2")}));
    EXPECT_EQ(shown.first().section(u'\t', 0, 0), QStringLiteral("&Cascade"));
    EXPECT_EQ(run.Active().windowTitle(), QString());
    EXPECT_EQ(Heard().last(2),
              QStringList({QStringLiteral("1 Untitled 1"), QStringLiteral("2 Untitled 2 *")}));
    Write(Keys::UntitledNames, "0");
    List();
    EXPECT_EQ(Drawn(run.Find<QMenu>("mnuWindow")).last(2),
              QStringList({QStringLiteral("&1 "), QStringLiteral("&2 ")}));
}

TEST_F(WindowCommands, AScreenReaderPressesAnUntitledEntry) {
    frmTemplate& first = run.New();
    run.New();
    List();
    auto* face = QAccessible::queryAccessibleInterface(&run.Find<QMenu>("mnuWindow"));
    QAccessibleInterface* entry = face->child(face->childCount() - 2);
    EXPECT_EQ(entry->parent(), face);
    EXPECT_EQ(entry->role(), QAccessible::MenuItem);
    EXPECT_TRUE(entry->state().focusable);
    ASSERT_TRUE(entry->actionInterface());
    entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(run.frame->ActiveForm(), static_cast<Document*>(&first));
}

TEST_F(WindowCommands, ListMarksTheActiveDocumentUnderADialogToo) {
    run.New();
    run.New();
    QDialog dialog(run.frame.get());
    dialog.show();
    dialog.activateWindow();
    QCoreApplication::processEvents();
    EXPECT_EQ(List(), QStringList({QStringLiteral("&1 "), QStringLiteral("&2  *")}));
}

TEST_F(WindowCommands, ListHasDigitKeysForNineWindows) {
    for (int n = 1; n <= 10; ++n)
        run.New();
    const QStringList list = List();
    ASSERT_EQ(list.size(), 10);
    EXPECT_EQ(list[8], QStringLiteral("&9 "));
    EXPECT_EQ(list[9], QStringLiteral("10  *"));
}

TEST_F(WindowCommands, ListEntryActivatesItsWindow) {
    frmTemplate& first = run.New();
    run.New();
    first.showMinimized();
    List();
    run.Find<QMenu>("mnuWindow").findChild<QAction*>(QStringLiteral("mnuWindowList_1"))->trigger();
    EXPECT_EQ(run.frame->ActiveForm(), static_cast<Document*>(&first));
    EXPECT_FALSE(first.isMinimized());
}

} // namespace
