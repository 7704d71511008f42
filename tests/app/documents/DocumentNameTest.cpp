// What documents without a file are called.
#include "app/documents/DocumentName.h"

#include "app/RealFrame.h"

namespace {

class DocumentNames : public FrameTest {
  protected:
    DocumentNames() { EXPECT_TRUE(run.Start()); }
    QStringList Names() {
        QStringList names;
        for (QMdiSubWindow* window : run.frame->Area().subWindowList())
            names << DocumentName(dynamic_cast<frmTemplate&>(*window));
        return names;
    }
    ProgramRun run;
};

TEST_F(DocumentNames, ArePathsAndNumbersInTheOrderOfOpening) {
    run.New();
    const QString path = MakeFile(QStringLiteral("a.htm"), "x");
    run.frame->OpenDocumentFile(path);
    run.New();
    EXPECT_EQ(Names(), QStringList({QStringLiteral("Untitled 1"), path, QStringLiteral("Untitled 2")}));
}

TEST_F(DocumentNames, AFolderIsShownWithoutTheSeparatorAtItsEnd) {
    EXPECT_EQ(FolderOf(QStringLiteral("/site/pages/a.htm")), QStringLiteral("/site/pages"));
    EXPECT_EQ(FolderOf(QStringLiteral("C:\\site\\a.htm")), QStringLiteral("C:\\site"));
    EXPECT_EQ(FolderOf(QStringLiteral("/a.htm")), QStringLiteral("/"));
    EXPECT_EQ(FolderOf(QStringLiteral("C:\\a.htm")), QStringLiteral("C:\\"));
    EXPECT_EQ(FolderOf(QStringLiteral("a.htm")), QString());
}

TEST_F(DocumentNames, StayWithTheirDocumentAndAreGivenAgainWhenItGoes) {
    frmTemplate& first = run.New();
    run.New();
    EXPECT_EQ(Names(), QStringList({QStringLiteral("Untitled 1"), QStringLiteral("Untitled 2")}));
    EXPECT_TRUE(first.Unload());
    EXPECT_EQ(Names(), QStringList(QStringLiteral("Untitled 2")));
    run.New();
    run.New();
    EXPECT_EQ(Names(), QStringList({QStringLiteral("Untitled 2"), QStringLiteral("Untitled 1"),
                                    QStringLiteral("Untitled 3")}));
}

TEST_F(DocumentNames, ASavedOneLeavesItsNumber) {
    frmTemplate& first = run.New();
    EXPECT_EQ(DocumentName(first), QStringLiteral("Untitled 1"));
    const QString path = TestFolder() + QStringLiteral("/saved.htm");
    run.prompts.saveAnswers = {ScriptedPrompts::Picked(path)};
    run.Entry("mnuSave").trigger();
    run.New();
    EXPECT_EQ(Names(), QStringList({path, QStringLiteral("Untitled 1")}));
    EXPECT_EQ(run.Active().Caption(), QString());
    EXPECT_EQ(run.Active().windowTitle(), QString());
}

} // namespace
