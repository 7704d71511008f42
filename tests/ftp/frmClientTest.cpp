// The client's window, used as a person does, at real servers.
#include "ftp/frmClient.h"

#include "ftp/TestServer.h"
#include "support/Files.h"
#include "support/FreshUser.h"

#include <curl/curl.h>
#include <gtest/gtest.h>
#include <QAccessible>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

class frmClientTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { curl_global_init(CURL_GLOBAL_DEFAULT); }
    void SetUp() override { FreshUser(); }
    void TearDown() override { form.reset(); }

    void Open(const TestServer& server, const QByteArray& script) {
        Arguments arguments;
        arguments.server = {Q("127.0.0.1"), server.Port()};
        if (!script.isNull()) {
            arguments.script = TestFolder() + Q("/send.out");
            WriteFile(arguments.script, script);
        }
        form = std::make_unique<frmClient>(arguments);
        QObject::connect(form.get(), &frmClient::Ended, form.get(), [this] { ended = true; });
        form->show();
        form->activateWindow();
        form->Start();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    template <typename T> T& Control(const char* name) {
        return *form->findChild<T*>(QString::fromLatin1(name));
    }
    QString Transcript() { return Control<QPlainTextEdit>("txtTranscript").toPlainText(); }
    bool Waits(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 60'000); }
    /// Until the prompt is there, or another question.
    bool Prompts(const char* prompt = "ftp> ") {
        return Waits([&] {
            return Control<QLabel>("lblPrompt").text() == Q(prompt) &&
                   !Control<QPushButton>("cmdStop").isEnabled();
        });
    }
    bool Shows(const char* text) {
        return Waits([&] { return Transcript().contains(Q(text)); });
    }
    void Type(const char* line) {
        QTest::keyClicks(&Control<QLineEdit>("txtCommand"), Q(line));
        QTest::keyClick(&Control<QLineEdit>("txtCommand"), Qt::Key_Return);
    }
    QMessageBox* Box() { return form->findChild<QMessageBox*>(Q("CertificateBox")); }

    std::unique_ptr<frmClient> form;
    bool ended = false;
};

TEST_F(frmClientTest, WorksOffTheScriptAndStaysAtThePrompt) {
    TestServer server("plain");
    const QString file = TestFolder() + Q("/a.htm");
    WriteFile(file, QByteArray(5'000'000, 'x'));
    Open(server, "jo\r\nse cret\r\nhash\r\nbin\r\nput \"" + file.toUtf8() + "\" a.htm\r\nls\r\n");
    EXPECT_EQ(form->windowTitle(), Q("127.0.0.1:%1 - FTP").arg(server.Port()));
    ASSERT_TRUE(Shows("5000000 bytes sent."));
    ASSERT_TRUE(Prompts());
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(ended);
    EXPECT_EQ(Transcript().count(u'#'), 5'000'000 / 65'536 + 1); // one of them in the answer to "hash"
    EXPECT_FALSE(Transcript().contains(Q("se cret")));
    EXPECT_EQ(form->focusWidget(), &Control<QWidget>("txtCommand"));
    EXPECT_EQ(Control<QLabel>("lblFile").text(), QString());

    Type("frob");
    EXPECT_TRUE(Shows("ftp> frob\n?Invalid command.\n"));
    Type("quit");
    EXPECT_TRUE(Waits([&] { return ended; }));
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(form->AllWentUp());
}

TEST_F(frmClientTest, AFileThatFailsIsToldByTheEnd) {
    TestServer server("plain");
    Open(server, "jo\r\nse cret\r\nput \"/nowhere\" \r\n");
    ASSERT_TRUE(Prompts());
    form->close();
    EXPECT_TRUE(Waits([&] { return ended; }));
    EXPECT_FALSE(form->AllWentUp());
}

TEST_F(frmClientTest, TheBarShowsHowFarAFileIs) {
    // A server that takes no more than a little keeps the bar where it is.
    TestServer server("slow");
    const QString file = TestFolder() + Q("/big.htm");
    WriteFile(file, QByteArray(100'000'000, 'x'));
    Open(server, "jo\r\nse cret\r\nput \"" + file.toUtf8() + "\" big.htm\r\n");
    auto& bar = Control<QProgressBar>("ProgressBar1");
    EXPECT_TRUE(Waits([&] { return bar.value() > 0; }));
    EXPECT_LT(bar.value(), bar.maximum());
    EXPECT_EQ(Control<QLabel>("lblFile").text(), Q("big.htm"));
    // Stop ends the file and leaves the prompt.
    Control<QPushButton>("cmdStop").click();
    ASSERT_TRUE(Prompts());
    EXPECT_TRUE(Shows("Not sent: stopped."));
    EXPECT_EQ(bar.value(), 0);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(frmClientTest, ACertificateIsAskedAboutInABox) {
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        TestServer server("tls");
        Open(server, "jo\r\nse cret\r\n");
        ASSERT_TRUE(Waits([&] { return Box() && Box()->isVisible(); }));
        EXPECT_TRUE(Box()->informativeText().contains(Q("Issued to: CN = test server")));
        EXPECT_TRUE(Box()->informativeText().contains(Q("SHA-256 fingerprint: ")));
        EXPECT_EQ(Box()->defaultButton(), Box()->button(QMessageBox::No));
        EXPECT_FALSE(server.Told().contains("USER"));
        Box()->button(answer)->click();
        ASSERT_TRUE(Prompts());
        EXPECT_EQ(Transcript().contains(Q("The connection is encrypted.")), answer == QMessageBox::Yes);
        EXPECT_EQ(form->focusWidget(), &Control<QWidget>("txtCommand"));
    }
}

TEST_F(frmClientTest, CanAlwaysBeClosed) {
    for (const char* kind :
         {"hang", "hang-later", "flood", "flood-line", "flood-later", "list-flood", "slow", "tls"}) {
        TestServer server(kind);
        const QString file = TestFolder() + Q("/big.htm");
        WriteFile(file, QByteArray(50'000'000, 'x'));
        ended = false;
        Open(server, "jo\r\nse cret\r\ncd x\r\nls\r\nput \"" + file.toUtf8() + "\" big.htm\r\n");
        EXPECT_TRUE(Shows(QByteArray(kind) == "hang-later" ? "ftp> cd x" : "Connecting")) << kind;
        if (QByteArray(kind) == "tls") {
            EXPECT_TRUE(Waits([&] { return Box() && Box()->isVisible(); }));
        }
        form->close();
        EXPECT_FALSE(form->isVisible());
        EXPECT_TRUE(Waits([&] { return ended; })) << kind;
    }
}

TEST_F(frmClientTest, WithoutAScriptItAsksWhoLogsIn) {
    TestServer server("plain");
    Open(server, QByteArray());
    ASSERT_TRUE(Waits([&] { return Control<QLabel>("lblPrompt").text() == Q("User: "); }));
    Type("jo");
    auto& field = Control<QLineEdit>("txtCommand");
    ASSERT_TRUE(Waits([&] { return Control<QLabel>("lblPrompt").text() == Q("Password: "); }));
    EXPECT_EQ(field.echoMode(), QLineEdit::Password);
    Type("se cret");
    ASSERT_TRUE(Shows("230 Login successful."));
    ASSERT_TRUE(Prompts());
    EXPECT_EQ(field.echoMode(), QLineEdit::Normal);
    EXPECT_FALSE(Transcript().contains(Q("se cret")));
    // Nor do the arrow keys bring it back.
    Type("pwd");
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(&field, Qt::Key_Up);
        EXPECT_NE(field.text(), Q("se cret"));
    }
}

TEST_F(frmClientTest, TheArrowKeysBringBackWhatWasTyped) {
    TestServer server("plain");
    Open(server, "jo\r\nse cret\r\n");
    ASSERT_TRUE(Prompts());
    auto& field = Control<QLineEdit>("txtCommand");
    Type("hash");
    Type("bin");
    const std::pair<Qt::Key, const char*> rows[] = {{Qt::Key_Up, "bin"},
                                                    {Qt::Key_Up, "hash"},
                                                    {Qt::Key_Up, "hash"},
                                                    {Qt::Key_Down, "bin"},
                                                    {Qt::Key_Down, ""}};
    for (const auto& [key, text] : rows) {
        QTest::keyClick(&field, key);
        EXPECT_EQ(field.text(), Q(text));
    }
}

TEST_F(frmClientTest, EveryControlIsNamedForAScreenReader) {
    TestServer server("plain");
    Open(server, "jo\r\nse cret\r\n");
    for (const char* name : {"txtTranscript", "txtCommand", "ProgressBar1", "cmdStop"})
        EXPECT_FALSE(
            QAccessible::queryAccessibleInterface(&Control<QWidget>(name))->text(QAccessible::Name).isEmpty())
            << name;
}

} // namespace
