// The command that inserts a map: what it asks for, where the map goes, and files that are none.
#include "tools/transforms/InsertImageMap.h"

#include "dialogs/DialogState.h"
#include "support/CommandTest.h"
#include "support/Files.h"
#include "support/NoPlainFile.h"
#include "tools/ToolTest.h"

namespace {

const char* const area = "<AREA SHAPE=\"RECT\" COORDS=\"0,0 10,10\" HREF=\"/A.htm\">\r\n";

class InsertImageMapTest : public ToolTest {
  protected:
    InsertImageMapTest() { frame.State<DialogState>().LastDir = TestFolder(); }
    /// Picks a file of that content and names the map "One".
    void Insert(const QByteArray& content) {
        WriteFile(path, content);
        Pick(path);
    }
    void Pick(const QString& file) {
        frame.prompts.asked.clear();
        frame.prompts.openAnswers = {ScriptedPrompts::Picked(file)};
        frame.prompts.inputAnswers = {T(u"One")};
        Run(u"mnuInsertImageMap");
    }
    static QString Map(const QString& areas) { return T(u"<MAP NAME=\"One\">\r\n") + areas + T(u"</MAP>"); }

    QString path = TestFolder() + T(u"/a.map");
};

TEST_F(InsertImageMapTest, AsksForAFileAndANameAndInsertsAtTheSelection) {
    frame.SetMarked("x[y]z");
    Insert("# one\nrect /A.htm 0,0 10,10\r\n");
    EXPECT_EQ(Box().Text(), u'x' + Map(Latin(area)) + T(u"yz"));
    ASSERT_EQ(frame.prompts.asked.size(), 2);
    const Asked& file = frame.prompts.asked[0];
    EXPECT_EQ(file.kind, Asked::Open);
    EXPECT_EQ(file.request.filter, T(u"All Files (*.*)|*.*|Map Files (*.map)|*.map|"));
    EXPECT_EQ(file.request.filterIndex, 2);
    EXPECT_EQ(file.request.folder, TestFolder());
    const Asked& name = frame.prompts.asked[1];
    EXPECT_EQ(name.kind, Asked::Input);
    EXPECT_EQ(name.text, T(u"Enter Map Name"));
    EXPECT_EQ(name.title, T(u"The Tarnwick"));
}

TEST_F(InsertImageMapTest, TheTagsFollowTheCaseOfAllTags) {
    frame.Store().WriteFlag(Keys::LowerCaseTags, true);
    Insert("rect /A.htm 0,0 10,10");
    EXPECT_EQ(Box().Text(), Map(Latin(area)).toLower());
}

TEST_F(InsertImageMapTest, NoNameIsAnEmptyOne) {
    WriteFile(path, "");
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(path)};
    frame.prompts.inputAnswers = {QString()};
    Run(u"mnuInsertImageMap");
    EXPECT_EQ(Box().Text(), T(u"<MAP NAME=\"\">\r\n</MAP>"));
}

TEST_F(InsertImageMapTest, CancelEndsIt) {
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled()};
    Run(u"mnuInsertImageMap");
    EXPECT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(Box().Text(), QString());
}

TEST_F(InsertImageMapTest, AFileThatCantBeReadEndsItSilently) {
    QStringList files = NoPlainFiles();
    ASSERT_EQ(files.size(), 3);
    files << TestFolder() + T(u"/none.map");
    for (const QString& file : files) {
        Pick(file);
        EXPECT_EQ(frame.prompts.asked.size(), 1) << file.toStdString();
        EXPECT_EQ(Box().Text(), QString());
    }
}

TEST_F(InsertImageMapTest, TheTextEndsAtAnEndOfTextByte) {
    Insert("rect /A.htm 0,0 10,10\r\n\x1Arect /b.htm 1,1");
    EXPECT_EQ(Box().Text(), Map(Latin(area)));
}

TEST_F(InsertImageMapTest, AFileHasTheEncodingOfItsBytes) {
    struct Row {
        QByteArray map;
        CharacterSet holds;
        const char16_t* link;
    };
    const Row rows[] = {
        {"rect caf\xe9.htm 0,0", CharacterSet::CodePage1252, u"caf\u00e9.htm"},
        {"rect caf\xe9.htm 0,0", CharacterSet::Unicode, u"caf\u00e9.htm"},
        {"rect caf\xc3\xa9.htm 0,0", CharacterSet::CodePage1252, u"caf\u00e9.htm"},
        {"\xef\xbb\xbfrect caf\xc3\xa9.htm 0,0", CharacterSet::CodePage1252, u"caf\u00e9.htm"},
        {"rect \xe2\x98\x83.htm 0,0", CharacterSet::Unicode, u"\u2603.htm"},
        // A document that can't hold it has a reference in its place.
        {"rect \xe2\x98\x83.htm 0,0", CharacterSet::CodePage1252, u"&#9731;.htm"},
    };
    for (const Row& row : rows) {
        frame.SetText(QString());
        Box().SetHolds(row.holds);
        Insert(row.map);
        EXPECT_EQ(Box().Text(),
                  Map(T(u"<AREA SHAPE=\"RECT\" COORDS=\"0,0\" HREF=\"") + T(row.link) + T(u"\">\r\n")))
            << row.map.toStdString();
    }
}

TEST_F(InsertImageMapTest, OneUndoTakesItBack) {
    frame.SetMarked("x[y]z");
    Box().EmptyUndoBuffer();
    Insert("rect /A.htm 0,0 10,10");
    Box().Send(RichTextBox::Message::Undo);
    EXPECT_EQ(Box().Text(), T(u"xyz"));
    EXPECT_EQ(Box().Send(RichTextBox::Message::CanUndo), 0);
}

TEST_F(InsertImageMapTest, WithoutADocumentNothingIsAsked) {
    frame.CloseDocument();
    Run(u"mnuInsertImageMap");
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

} // namespace
