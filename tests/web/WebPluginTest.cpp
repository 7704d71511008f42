// The plugin as the program loads it, and a document that goes from source to design and back.
#include "app/run/WebPlugin.h"

#include "editor/views/Modes.h"
#include "editor/views/WebControls.h"
#include "support/TestFrame.h"
#include "web/PageFiles.h"
#include "web/PageProbe.h"
#include "web/Sandbox.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QDir>
#include <QTest>

namespace {

const QStringList built = {QStringLiteral(TARNWICK_PLUGIN_FOLDER)};

TEST(WebPlugin, IsLoadedOnceFromTheFirstFolderThatHasIt) {
    WebControlsFactory* factory = LoadWebPlugin(QStringList(QStringLiteral("/no/such/folder")) + built);
    ASSERT_NE(factory, nullptr);
    EXPECT_EQ(LoadWebPlugin(built), factory);
}

TEST(WebPlugin, IsLookedForBesideTheProgramAndWhereItIsInstalled) {
    const QDir program(QCoreApplication::applicationDirPath());
    EXPECT_EQ(WebPluginFolders(),
              QStringList({program.path(),
                           QDir::cleanPath(program.filePath(QStringLiteral("../lib/tarnwick/plugins")))}));
}

TEST(WebPlugin, AbsentOrBrokenThereAreNoControls) {
    FreshUser();
    EXPECT_EQ(LoadWebPlugin({QStringLiteral("/no/such/folder")}), nullptr);
    EXPECT_EQ(LoadWebPlugin({}), nullptr);
    PageFiles::Write(QStringLiteral("tarnwick_web.so"), "no library");
    EXPECT_EQ(LoadWebPlugin({TestFolder()}), nullptr);
}

TEST(WebPlugin, OnlyRootDoesWithoutTheSandbox) {
    const char* const off = "QTWEBENGINE_DISABLE_SANDBOX";
    const QByteArray before = qgetenv(off);
    for (const unsigned int user : {1U, 1000U, 65534U}) {
        qunsetenv(off);
        DoWithoutSandboxAsRoot(user);
        EXPECT_FALSE(qEnvironmentVariableIsSet(off)) << user;
    }
    DoWithoutSandboxAsRoot(0);
    EXPECT_EQ(qgetenv(off), QByteArray("1"));
    before.isNull() ? qunsetenv(off) : qputenv(off, before);
}

TEST(WebPlugin, TheFocusComesBackToTheSource) {
    TestFrame frame;
    frame.State<WebControls>().Load = [] { return LoadWebPlugin(built); };
    frame.active->caption = PageFiles::Write(QStringLiteral("a.htm"), "<title>here</title><p>words</p>");
    frame.active->modes = std::make_unique<DocumentModes>(frame, *frame.active);
    frame.active->modes->LoadControls();
    frame.active->modes->PlaceAtResize();
    frame.window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame.window.get()));
    for (const auto& [tab, name] : {std::pair{"View", "WebBrowser1"}, {"Design", "DHTMLEdit"}}) {
        frame.Box().setFocus();
        ASSERT_TRUE(frame.Box().hasFocus());
        ModeStrip_Click(frame, QString::fromLatin1(tab));
        const auto* control = frame.active->findChild<QWidget*>(QString::fromLatin1(name));
        ASSERT_TRUE(Probe::Until(*control, QStringLiteral("document.title === 'here'")));
        // The engine's first view makes the system's window anew; here no window manager makes it active
        // again.
        frame.window->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&] { return control->isAncestorOf(QApplication::focusWidget()); }));
        frame.prompts.messageAnswers = {MsgAnswer::No};
        ModeStrip_Click(frame, QStringLiteral("Edit"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return frame.Box().hasFocus(); }))
            << tab << " "
            << (QApplication::focusWidget() ? QApplication::focusWidget()->metaObject()->className()
                                            : "none");
    }
}

TEST(WebPlugin, TypingInDesignComesBackIntoTheFile) {
    TestFrame frame;
    frame.State<WebControls>().Load = [] { return LoadWebPlugin(built); };
    const QString path = PageFiles::Write(
        QStringLiteral("a.htm"),
        "<!DOCTYPE html>\r\n<html><head></head><body>\r\n<p>words</p>\r\n</body></html>\r\n");
    frame.active->caption = path;
    frame.active->modes = std::make_unique<DocumentModes>(frame, *frame.active);
    frame.active->modes->LoadControls();
    frame.active->modes->PlaceAtResize();
    ModeStrip_Click(frame, QStringLiteral("Design"));
    const auto* design = frame.active->findChild<QWidget*>(QStringLiteral("DHTMLEdit"));
    ASSERT_NE(design, nullptr);
    EXPECT_TRUE(design->isVisible());
    ASSERT_TRUE(Probe::Until(*design, QStringLiteral("document.designMode === 'on'")));
    Probe::Run(*design, QStringLiteral("getSelection().collapse(document.querySelector('p').firstChild, 0);"
                                       "document.execCommand('insertText', false, 'typed ')"));
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    ModeStrip_Click(frame, QStringLiteral("Edit"));
    EXPECT_EQ(
        PageFiles::Read(path),
        QByteArray(
            "<!DOCTYPE html>\r\n<html><head></head><body>\r\n<p>typed words</p>\r\n</body></html>\r\n"));
    EXPECT_EQ(frame.opened, QStringList(path));
}

} // namespace
