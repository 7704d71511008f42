// The marks of documents whose text changed: on tab and icon, and for screen readers.
#include "app/RealFrame.h"
#include "app/window/DocumentTabs.h"
#include "dialogs/Icons.h"

#include <QAccessible>
#include <QImage>
#include <QLabel>
#include <QMenuBar>

namespace {

class ModifiedMarks : public FrameTest {
  protected:
    void Start() {
        run.emplace();
        ASSERT_TRUE(run->Start());
        for (const char* name : {"a.htm", "b.htm"})
            run->frame->OpenDocumentFile(MakeFile(QString::fromLatin1(name), "<P>page"));
        ASSERT_TRUE(QTest::qWaitFor([this] { return Tabs().rect().contains(Tabs().tabRect(1)); }));
        QCoreApplication::processEvents();
    }
    frmTemplate& Document(int index) {
        return dynamic_cast<frmTemplate&>(*run->frame->Area().subWindowList()[index]);
    }
    DocumentTabs& Tabs() { return run->frame->TabStrip2(); }
    static void Type(frmTemplate& document) {
        QTest::keyClicks(&document.txtInput(), QStringLiteral("x"));
        QCoreApplication::processEvents();
    }
    QImage Tab(int index) { return Tabs().grab(Tabs().tabRect(index)).toImage(); }
    static QImage Picture(const QIcon& icon) { return icon.pixmap(16).toImage(); }
    static QImage Icon(const frmTemplate& document) { return Picture(document.windowIcon()); }
    QString TabDescription(int index) {
        return QAccessible::queryAccessibleInterface(&Tabs())->child(index)->text(QAccessible::Description);
    }
    static QString WindowDescription(frmTemplate& document) {
        return QAccessible::queryAccessibleInterface(&document)->text(QAccessible::Description);
    }
    std::optional<ProgramRun> run;
};

TEST_F(ModifiedMarks, StandOnTabAndIconFromTheFirstChangeToTheSave) {
    Start();
    const QImage plain = Tab(1);
    EXPECT_EQ(Icon(Document(1)), Picture(ProgramIcon()));
    Type(Document(1));
    EXPECT_TRUE(Tabs().IsMarked(1));
    EXPECT_FALSE(Tabs().IsMarked(0));
    EXPECT_NE(Tab(1), plain);
    EXPECT_EQ(Icon(Document(1)), Picture(ModifiedIcon()));
    EXPECT_EQ(Icon(Document(0)), Picture(ProgramIcon()));
    EXPECT_NE(Picture(ModifiedIcon()), Picture(ProgramIcon()));
    run->Entry("mnuSave").trigger();
    QCoreApplication::processEvents();
    EXPECT_FALSE(Tabs().IsMarked(1));
    EXPECT_EQ(Tab(1), plain);
    EXPECT_EQ(Icon(Document(1)), Picture(ProgramIcon()));
}

TEST_F(ModifiedMarks, LeaveTitleCaptionAndTheTabsWidthAsTheyAre) {
    Start();
    const QString path = Document(1).Caption();
    const QList<QRect> places = {Tabs().tabRect(0), Tabs().tabRect(1)};
    Type(Document(1));
    EXPECT_EQ(Tabs().tabText(1), QStringLiteral("b.htm"));
    EXPECT_EQ(Document(1).windowTitle(), path);
    EXPECT_EQ(Document(1).Caption(), path);
    EXPECT_EQ((QList<QRect>{Tabs().tabRect(0), Tabs().tabRect(1)}), places);
}

TEST_F(ModifiedMarks, AreToldToScreenReaders) {
    Start();
    const QString path = Document(1).Caption();
    EXPECT_EQ(TabDescription(1), path);
    EXPECT_EQ(WindowDescription(Document(1)), QString());
    Type(Document(1));
    EXPECT_EQ(TabDescription(1), path + QStringLiteral("\nModified"));
    EXPECT_EQ(TabDescription(0), Document(0).Caption());
    EXPECT_EQ(WindowDescription(Document(1)), QStringLiteral("Modified"));
    run->Entry("mnuSave").trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(TabDescription(1), path);
    EXPECT_EQ(WindowDescription(Document(1)), QString());
}

TEST_F(ModifiedMarks, AMaximisedWindowHasItInTheMenuBar) {
    Start();
    ASSERT_TRUE(Document(1).isMaximized());
    const auto corner = [this] { return run->frame->menuBar()->grab().toImage(); };
    const QImage plain = corner();
    Type(Document(1));
    EXPECT_NE(corner(), plain);
    run->Entry("mnuSave").trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(corner(), plain);
}

TEST_F(ModifiedMarks, GoWithTheDocumentToANewPath) {
    Start();
    Type(Document(1));
    const QString path = TestFolder() + QStringLiteral("/c.htm");
    run->prompts.saveAnswers = {ScriptedPrompts::Picked(path)};
    run->Entry("mnuSaveAs").trigger();
    Type(Document(1));
    ASSERT_EQ(Tabs().count(), 2);
    EXPECT_EQ(Tabs().Tag(1), path);
    EXPECT_TRUE(Tabs().IsMarked(1));
    EXPECT_EQ(TabDescription(1), path + QStringLiteral("\nModified"));
}

TEST_F(ModifiedMarks, AreNotThereWithoutTheirSetting) {
    Write(Keys::ModifiedMark, "0");
    Start();
    const QImage plain = Tab(1);
    Type(Document(1));
    EXPECT_TRUE(Document(1).Modified());
    EXPECT_EQ(Tab(1), plain);
    EXPECT_EQ(Icon(Document(1)), Picture(ProgramIcon()));
    EXPECT_EQ(TabDescription(1), Document(1).Caption());
    EXPECT_EQ(WindowDescription(Document(1)), QString());
}

} // namespace
