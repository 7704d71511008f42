// The commands that fill a document with a whole page.
#include "app/documents/Skeletons.h"

#include "app/documents/FilesFrame.h"
#include "app/run/ProgramState.h"

namespace {

const QString skeleton = QStringLiteral("<HTML>\r\n<HEAD>\r\n"
                                        "<meta name=\"generator\" content=\"The Tarnwick 3.0.6\">\r\n"
                                        "<TITLE></TITLE>\r\n</HEAD>\r\n<BODY>\r\n\r\n</BODY>\r\n</HTML>");
const QString question = QStringLiteral("This will overwrite current document!  Continue?");

class Skeletons : public testing::Test {
  protected:
    QString& Template() { return frame.State<ProgramState>().UserTemplate; }
    FilesFrame frame;
};

TEST_F(Skeletons, TheDefaultPageNamesTheVersion) {
    EXPECT_EQ(DefaultSkeleton(QStringLiteral("3.0.6")), skeleton);
    EXPECT_TRUE(
        DefaultSkeleton(QStringLiteral("4.1.2")).contains(QStringLiteral("content=\"The Tarnwick 4.1.2\"")));
}

TEST_F(Skeletons, DefaultFillsABlankDocumentUnasked) {
    frame.Store().Write(Keys::LowerCaseTags, QStringLiteral("1"));
    frame.Run("mnuDefault");
    EXPECT_EQ(frame.Box().Text(), skeleton);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_TRUE(frame.active->Modified());
    // The caret stays behind the text.
    EXPECT_EQ(frame.Box().SelStart(), skeleton.size());
    EXPECT_GT(frame.Colors().size(), 2u);
}

TEST_F(Skeletons, DefaultReplacesATextAfterAsking) {
    frame.SetText(QStringLiteral("text"));
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    frame.Run("mnuDefault");
    EXPECT_EQ(frame.Box().Text(), skeleton);
    const Asked& box = frame.prompts.asked.first();
    EXPECT_EQ(box.text, question);
    EXPECT_EQ(box.title, QStringLiteral("Overwrite!"));
    EXPECT_EQ(box.buttons, MsgButtons::YesNo);
    EXPECT_EQ(box.icon, MsgIcon::Exclamation);
}

TEST_F(Skeletons, NoKeepsTheText) {
    Template() = QStringLiteral("other");
    for (const char* command : {"mnuDefault", "mnuUserTemplate"}) {
        frame.SetText(QStringLiteral("text"));
        frame.prompts.messageAnswers = {MsgAnswer::No};
        frame.Run(command);
        EXPECT_EQ(frame.Box().Text(), QStringLiteral("text"));
        EXPECT_FALSE(frame.active->Modified());
    }
}

TEST_F(Skeletons, DefaultWithTheColoursOffShowsTheColourWord) {
    frame.Store().Write(Keys::ColoredTags, QStringLiteral("0"));
    frame.Run("mnuDefault");
    EXPECT_EQ(frame.Box().Text(), skeleton + QStringLiteral("\\cf1 "));
}

TEST_F(Skeletons, TheTemplateIsTheDocumentsTextAndComesBack) {
    const QString page = QStringLiteral("<B>\r\n{x}\\y\r\n</B>\r\n");
    frame.SetText(page);
    frame.Run("mnuSetUserTemplate");
    EXPECT_EQ(Template(), page);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    frame.SetText(QString());
    frame.Run("mnuUserTemplate");
    EXPECT_EQ(frame.Box().Text(), page);
    EXPECT_EQ(frame.Box().SelStart(), page.size());
    EXPECT_EQ(Template(), page);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(Skeletons, ATemplateKeepsItsLineEndsInTheStore) {
    const QString page = QStringLiteral("<B>\r\nx\r\n\r\n</B>");
    frame.Store().Write(Keys::UserTemplate, page);
    frame.Store().Sync();
    EXPECT_EQ(Settings().Read(Keys::UserTemplate), page);
}

TEST_F(Skeletons, TheTemplateAsksUnderTheProgramsTitle) {
    Template() = QStringLiteral("<B>new</B>");
    frame.SetText(QStringLiteral("text"));
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    frame.Run("mnuUserTemplate");
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<B>new</B>"));
    const Asked& box = frame.prompts.asked.first();
    EXPECT_EQ(box.text, question);
    EXPECT_EQ(box.title, QStringLiteral("The Tarnwick"));
    EXPECT_EQ(box.buttons, MsgButtons::YesNo);
    EXPECT_EQ(box.icon, MsgIcon::Exclamation);
}

TEST_F(Skeletons, ATemplateStaysAsItIsHoweverOftenItIsUsed) {
    for (const QString& page : {QStringLiteral("a {b} \\c\r\nno tag"), QStringLiteral("<B>{b}\\c</B>\r\n")}) {
        Template() = page;
        for (int n = 0; n < 3; ++n) {
            frame.Box().SetText(QString());
            frame.Run("mnuUserTemplate");
            EXPECT_EQ(frame.Box().Text(), page);
        }
        EXPECT_EQ(Template(), page);
    }
}

TEST_F(Skeletons, AnEmptyTemplateLeavesTheDocumentEmpty) {
    frame.SetText(QStringLiteral("text"));
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    frame.Run("mnuUserTemplate");
    EXPECT_EQ(frame.Box().Text(), QString());
    EXPECT_TRUE(frame.Box().streams.isEmpty()) << "there is nothing to colour";
}

TEST_F(Skeletons, ATemplateWithoutATagShowsNoColourWordWithTheColoursOff) {
    frame.Store().Write(Keys::ColoredTags, QStringLiteral("0"));
    const std::pair<const char*, const char*> rows[] = {{"words {x}", "words \\{x\\}"},
                                                        {"<B>words", "<B>\\cf1 words"}};
    for (const auto& [page, shown] : rows) {
        Template() = QString::fromLatin1(page);
        frame.SetText(QString());
        frame.Run("mnuUserTemplate");
        EXPECT_EQ(frame.Box().Text(), QString::fromLatin1(shown));
    }
}

TEST_F(Skeletons, ATextOfBlanksAndLineEndsIsAText) {
    for (const char* text : {" ", "\r\n", "\t"}) {
        for (const char* command : {"mnuDefault", "mnuUserTemplate"}) {
            frame.prompts.asked.clear();
            frame.SetText(QString::fromLatin1(text));
            frame.prompts.messageAnswers = {MsgAnswer::No};
            frame.Run(command);
            EXPECT_EQ(frame.prompts.Messages(), QStringList{question}) << command;
            EXPECT_EQ(frame.Box().Text(), QString::fromLatin1(text)) << command;
        }
    }
}

TEST_F(Skeletons, WithNoDocumentOnlySavingATemplateSaysSo) {
    frame.CloseDocument();
    Template() = QStringLiteral("kept");
    frame.Run("mnuDefault");
    frame.Run("mnuUserTemplate");
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    frame.Run("mnuSetUserTemplate");
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    const Asked& box = frame.prompts.asked.first();
    EXPECT_EQ(box.text, QStringLiteral("Load document first."));
    EXPECT_EQ(box.title, QStringLiteral("The Tarnwick"));
    EXPECT_EQ(box.icon, MsgIcon::Critical);
    EXPECT_EQ(Template(), QStringLiteral("kept"));
}

} // namespace
