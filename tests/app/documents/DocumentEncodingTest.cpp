// Pages in UTF-8 and in code page 1252: how they are read, what they can hold, and how they are written.
#include "app/documents/FilesFrame.h"
#include "platform/store/Settings.h"

#include <QClipboard>
#include <QGuiApplication>
#include <vector>

namespace {

using namespace Qt::StringLiterals;
using enum TextEncoding;

template <std::size_t size> QByteArray B(const char (&literal)[size]) {
    return {literal, static_cast<qsizetype>(size) - 1};
}

struct Row {
    const char* name;
    QByteArray bytes;
    QString text;
    TextEncoding encoding;
};

const std::vector<Row>& Rows() {
    static const std::vector<Row> rows = {
        {"ASCII", B("<p>x"), u"<p>x"_s, Ascii},
        {"declared", B("<meta charset=utf-8>"), u"<meta charset=utf-8>"_s, Utf8},
        {"UTF-8", B("<p>za\xC5\xBC\xC3\xB3\xC5\x82\xC4\x87</p>"), u"<p>zażółć</p>"_s, Utf8},
        {"mark", B("\xEF\xBB\xBF<p>x</p>"), u"<p>x</p>"_s, Utf8WithMark},
        {"second mark", B("\xEF\xBB\xBF\xEF\xBB\xBF<p>"), u"\uFEFF<p>"_s, Utf8WithMark},
        {"mark inside", B("<p>\xEF\xBB\xBF</p>"), u"<p>\uFEFF</p>"_s, Utf8},
        {"pairs", B("<p>\xF0\x9F\x98\x80\xE2\x80\x8D</p>"), u"<p>😀\u200D</p>"_s, Utf8},
        {"NUL", B("<p>\0\xC5\xBC</p>"), u"<p>\0ż</p>"_s, Utf8},
        {"braces", B("{\\cf1 \xC5\xBC}<p>\xC5\xBC\\par{}"), u"{\\cf1 ż}<p>ż\\par{}"_s, Utf8},
        {"1252", B("<p>caf\xE9 \x80</p>"), u"<p>café €</p>"_s, CodePage1252},
        {"cut at the end", B("<p>\xC5\xBC\xE2\x82"), u"<p>Å¼â‚"_s, CodePage1252},
    };
    return rows;
}

class DocumentEncodingTest : public testing::Test {
  protected:
    QString Open(const QByteArray& bytes) {
        const QString path = FilesFrame::Make(u"page%1.htm"_s.arg(++pages), bytes);
        OpenDocumentFile(frame, path);
        return path;
    }
    QByteArray Saved(const QString& path) {
        frame.Run("mnuSave");
        return FilesFrame::Content(path);
    }
    TextEncoding Encoding() { return frame.active->Encoding(); }

    FilesFrame frame;
    int pages = 0;
};

TEST_F(DocumentEncodingTest, EachFileShowsItsCharactersAndComesBack) {
    for (const bool colored : {true, false}) {
        frame.Store().WriteFlag(Keys::ColoredTags, colored);
        for (const Row& row : Rows()) {
            const QString path = Open(row.bytes);
            EXPECT_EQ(frame.Box().Text(), row.text) << row.name;
            EXPECT_EQ(Encoding(), row.encoding) << row.name;
            EXPECT_EQ(Saved(path), row.bytes + "\r\n") << row.name;
            EXPECT_EQ(Encoding(), row.encoding) << row.name;
        }
    }
}

TEST_F(DocumentEncodingTest, ARecentFileAndInsertedContentsAreReadAlike) {
    frame.CloseDocument();
    const QString path = Open(B("<p>\xC5\xBC"));
    frame.CloseDocument();
    OpenRecentFile(frame, 0);
    EXPECT_EQ(frame.Box().Text(), u"<p>ż"_s);
    EXPECT_EQ(Encoding(), Utf8);
    frame.NewDocument();
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(path)};
    frame.Run("mnuInsertContents");
    EXPECT_EQ(frame.Box().Text(), u"<p>&#380;"_s) << "a new document is not in UTF-8";
    frame.active->SetEncoding(Utf8);
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(path)};
    frame.Run("mnuInsertContents");
    EXPECT_EQ(frame.Box().Text(), u"<p>&#380;<p>ż"_s);
}

TEST_F(DocumentEncodingTest, WithTheSettingOffEveryFileIsOfTheCodePage) {
    frame.Store().WriteFlag(Keys::Utf8Pages, false);
    for (const Row& row : Rows()) {
        const QString path = Open(row.bytes);
        EXPECT_EQ(Encoding(), CodePage1252) << row.name;
        EXPECT_EQ(frame.Box().Text(), Decode(row.bytes, CodePage1252)) << row.name;
        EXPECT_EQ(Saved(path), row.bytes + "\r\n") << row.name;
        EXPECT_EQ(Encoding(), CodePage1252) << row.name;
    }
}

TEST_F(DocumentEncodingTest, APageThatIsOpenStaysWhatItIsWhenTheSettingGoesOff) {
    const QString path = Open(B("\xC5\xBC"));
    frame.Store().WriteFlag(Keys::Utf8Pages, false);
    EXPECT_EQ(Saved(path), B("\xC5\xBC\r\n"));
    EXPECT_EQ(Encoding(), Utf8);
}

TEST_F(DocumentEncodingTest, APageOfAsciiTakesWhatItsHeadDeclaresAtEachSave) {
    const QString path = Open(B("<p>"));
    frame.Box().SetSelText(u"ż"_s);
    EXPECT_EQ(frame.Box().Text(), u"&#380;<p>"_s);
    frame.Box().SetText(u"<meta charset=utf-8>"_s);
    EXPECT_EQ(Saved(path), B("<meta charset=utf-8>\r\n"));
    EXPECT_EQ(Encoding(), Utf8);
    frame.Box().SetSelText(u"ż"_s);
    EXPECT_EQ(Saved(path), B("\xC5\xBC<meta charset=utf-8>\r\n"));
    frame.Box().SetText(u"<p>"_s);
    Saved(path);
    EXPECT_EQ(Encoding(), Ascii);
    EXPECT_EQ(frame.Box().Holds(), CharacterSet::CodePage1252);
}

TEST_F(DocumentEncodingTest, WhatUndoBringsBackIsWrittenWhole) {
    const QString path = Open(B("\xC5\xBC<p>"));
    frame.Box().SetText(u"<p>"_s);
    Saved(path);
    frame.Box().Send(RichTextBox::Message::Undo);
    ASSERT_EQ(frame.Box().Text(), u"ż<p>"_s);
    EXPECT_EQ(Saved(path), B("\xC5\xBC<p>\r\n"));
}

TEST_F(DocumentEncodingTest, APageThatCantBeWrittenKeepsItsEncoding) {
    Open(B("<p>"));
    frame.Box().SetText(u"<meta charset=utf-8>"_s);
    frame.active->SetCaption(FilesFrame::At(u"no/such/folder.htm"_s));
    frame.Run("mnuSave");
    EXPECT_EQ(Encoding(), Ascii);
    EXPECT_TRUE(frame.active->Modified());
}

TEST_F(DocumentEncodingTest, SaveAsKeepsTheMark) {
    Open(B("\xEF\xBB\xBF<p>"));
    const QString path = FilesFrame::At(u"other.htm"_s);
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(path)};
    frame.Run("mnuSaveAs");
    EXPECT_EQ(FilesFrame::Content(path), B("\xEF\xBB\xBF<p>\r\n"));
}

TEST_F(DocumentEncodingTest, BlanksBehindAMarkAreTrimmed) {
    const QString path = Open(B("\xEF\xBB\xBF  \xC5\xBC  "));
    EXPECT_EQ(Saved(path), B("\xEF\xBB\xBF\xC5\xBC\r\n"));
}

TEST_F(DocumentEncodingTest, TheStatusBarTellsOfUtf8) {
    Open(B("\xC5\xBC"));
    EXPECT_EQ(frame.statuses.back(), u"UTF-8"_s);
    frame.CloseDocument();
    frame.statuses.clear();
    OpenRecentFile(frame, 0);
    ASSERT_FALSE(frame.statuses.isEmpty());
    EXPECT_EQ(frame.statuses.back(), u"UTF-8"_s);
    Open(B("\xE9"));
    EXPECT_NE(frame.statuses.back(), u"UTF-8"_s);
}

TEST_F(DocumentEncodingTest, TheUserTemplateKeepsItsCharacters) {
    Open(B("<p>\xC5\xBC"));
    frame.Run("mnuSetUserTemplate");
    frame.NewDocument();
    frame.Run("mnuUserTemplate");
    EXPECT_EQ(frame.Box().Text(), u"<p>ż"_s);
    EXPECT_EQ(Encoding(), Utf8);
    Open(B("\xE9"));
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    frame.Run("mnuUserTemplate");
    EXPECT_EQ(frame.Box().Text(), u"<p>&#380;"_s);
    EXPECT_EQ(Encoding(), CodePage1252);
    frame.Store().WriteFlag(Keys::Utf8Pages, false);
    frame.NewDocument();
    frame.Run("mnuUserTemplate");
    EXPECT_EQ(frame.Box().Text(), u"<p>&#380;"_s);
}

TEST_F(DocumentEncodingTest, WhatIsCopiedGoesIntoEachDocumentAsItHoldsIt) {
    const QString all = u"<p>zażółć e\u0301 שלום 日本 😀 \uFEFF</p>"_s;
    Open(all.toUtf8());
    frame.Box().SetSelLength(frame.Box().TextLength());
    frame.Box().Send(RichTextBox::Message::Copy);
    frame.NewDocument();
    frame.active->SetEncoding(Utf8);
    frame.Box().Send(RichTextBox::Message::Paste);
    EXPECT_EQ(frame.Box().Text(), all);
    frame.NewDocument();
    frame.Box().Send(RichTextBox::Message::Paste);
    EXPECT_EQ(
        frame.Box().Text(),
        u"<p>za&#380;ó&#322;&#263; é &#1513;&#1500;&#1493;&#1501; &#26085;&#26412; &#128512; &#65279;</p>"_s);
}

} // namespace
