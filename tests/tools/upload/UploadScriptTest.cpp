// The script that the upload client works off, to the byte.
#include "tools/upload/UploadScript.h"

#include "support/Files.h"
#include "support/FreshUser.h"

#include <gtest/gtest.h>

namespace {

class UploadScriptTest : public testing::Test {
  protected:
    void SetUp() override { FreshUser(); }
    QString Path(const QString& name) const { return TestFolder() + u'/' + name; }
    QString File(const QString& name) const {
        WriteFile(Path(name));
        return Path(name);
    }
    QByteArray Folder() const { return TestFolder().toUtf8(); }
};

TEST_F(UploadScriptTest, HoldsALineForEachStep) {
    const Upload upload{.user = QStringLiteral("jo"),
                        .password = QStringLiteral("se cret"),
                        .folder = QStringLiteral("www/my site"),
                        .ascii = true,
                        .files = {File(QStringLiteral("a.htm")), File(QStringLiteral("b c.gif"))}};
    EXPECT_EQ(UploadScript(upload), "jo\r\nse cret\r\ncd www/my site\r\nhash\r\nascii\r\nput \"" + Folder() +
                                        "/a.htm\" a.htm\r\nput \"" + Folder() +
                                        "/b c.gif\" b c.gif\r\nls\r\n");
}

TEST_F(UploadScriptTest, WithoutAFolderThereIsNoLineForIt) {
    EXPECT_EQ(UploadScript({.user = QStringLiteral("u"), .password = QStringLiteral("p")}),
              "u\r\np\r\nhash\r\nbin\r\nls\r\n");
}

TEST_F(UploadScriptTest, NothingIsChecked) {
    EXPECT_EQ(UploadScript({}), "\r\n\r\nhash\r\nbin\r\nls\r\n");
}

TEST_F(UploadScriptTest, PaddingStaysInsideTheQuotes) {
    const QString line = File(QStringLiteral("a.htm")).leftJustified(256);
    EXPECT_EQ(UploadScript({.files = {line}}),
              "\r\n\r\nhash\r\nbin\r\nput \"" + line.toLatin1() + "\" a.htm\r\nls\r\n");
}

TEST_F(UploadScriptTest, AFileThatIsNotThereHasNoPlainName) {
    EXPECT_EQ(UploadScript({.files = {QStringLiteral("/nowhere/a.htm"), QString()}}),
              "\r\n\r\nhash\r\nbin\r\nput \"/nowhere/a.htm\" \r\nput \"\" \r\nls\r\n");
}

TEST_F(UploadScriptTest, AFolderHasAPlainName) {
    EXPECT_EQ(UploadScript({.files = {TestFolder()}}),
              "\r\n\r\nhash\r\nbin\r\nput \"" + Folder() + "\" files\r\nls\r\n");
}

TEST_F(UploadScriptTest, QuotesInANameStayAsTheyAre) {
    EXPECT_EQ(UploadScript({.files = {File(QStringLiteral("say \"hi\".htm"))}}),
              "\r\n\r\nhash\r\nbin\r\nput \"" + Folder() + "/say \"hi\".htm\" say \"hi\".htm\r\nls\r\n");
}

TEST_F(UploadScriptTest, IsInTheCodePageAndALineThatCannotBeInUtf8) {
    EXPECT_EQ(
        UploadScript({.user = QStringLiteral("J\u00F6\u20AC"), .password = QStringLiteral("\u2603\u00E9")}),
        "J\xF6\x80\r\n\xE2\x98\x83\xC3\xA9\r\nhash\r\nbin\r\nls\r\n");
}

// Whoever names a file could otherwise give orders to the server.
TEST_F(UploadScriptTest, NoTextMakesALineOfItsOwn) {
    EXPECT_EQ(UploadScript({.user = QStringLiteral("u\r\nx"),
                            .password = QStringLiteral("p\ny"),
                            .folder = QStringLiteral("d\rz"),
                            .files = {QStringLiteral("/a\r\ndelete index.htm")}}),
              "ux\r\npy\r\ncd dz\r\nhash\r\nbin\r\nput \"/adelete index.htm\" \r\nls\r\n");
}

TEST_F(UploadScriptTest, TenThousandFilesAreTenThousandLines) {
    EXPECT_EQ(UploadScript({.files = QStringList(10'000, File(QStringLiteral("a.htm")))}).count("put \""),
              10'000);
}

} // namespace
