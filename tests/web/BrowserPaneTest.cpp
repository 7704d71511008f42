// The browser control in the real engine: what it shows, and what it keeps from pages.
#include "support/Text.h"
#include "web/OnePageServer.h"
#include "web/PagePane.h"

#include <QDir>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineView>

namespace {

using Browser = PagePane;

TEST_F(Browser, ShowsAPageAndTheNextAndTheSameAgain) {
    const QString first = PageFiles::Write(QStringLiteral("a.htm"), "<title>first</title>");
    EXPECT_TRUE(pane.Navigate(first));
    EXPECT_TRUE(Shows(QStringLiteral("first")));
    EXPECT_TRUE(pane.Navigate(PageFiles::Write(QStringLiteral("b.htm"), "<title>second</title>")));
    EXPECT_TRUE(Shows(QStringLiteral("second")));
    PageFiles::Write(QStringLiteral("b.htm"), "<title>second, changed</title>");
    EXPECT_TRUE(pane.Navigate(TestFolder() + QStringLiteral("/b.htm")));
    EXPECT_TRUE(Shows(QStringLiteral("second, changed")));
}

TEST_F(Browser, NamesWithSignsOfAddressesAreFileNames) {
    EXPECT_TRUE(pane.Navigate(PageFiles::Write(QStringLiteral("50% #1?.htm"), "<title>signs</title>")));
    EXPECT_TRUE(Shows(QStringLiteral("signs")));
}

TEST_F(Browser, WhatIsNoFileCannotBeShown) {
    EXPECT_FALSE(pane.Navigate(QString()));
    EXPECT_FALSE(pane.Navigate(TestFolder()));
    EXPECT_FALSE(pane.Navigate(TestFolder() + QStringLiteral("/missing.htm")));
    EXPECT_EQ(Probe::Page(pane), nullptr);
}

TEST_F(Browser, ShowsThePagesColours) {
    ASSERT_TRUE(
        pane.Navigate(PageFiles::Write(QStringLiteral("c.htm"), "<body bgcolor=\"#00a040\"></body>")));
    const auto shown = [this] { return pane.grab().toImage().pixelColor(300, 200); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == QColor(0x00, 0xa0, 0x40); }, 20000));
}

TEST_F(Browser, APageFromTheDiskRunsItsScriptsAndFollowsItsLinks) {
    PageFiles::Write(QStringLiteral("b.htm"), "<title>followed</title>");
    const QString page =
        PageFiles::Write(QStringLiteral("a.htm"), "<title>t</title><a id=a href=b.htm>b</a>"
                                                  "<script>document.title = 'scripted'</script>");
    ASSERT_TRUE(pane.Navigate(page));
    ASSERT_TRUE(Shows(QStringLiteral("scripted")));
    Probe::Run(pane, QStringLiteral("document.getElementById('a').click(); 0"));
    EXPECT_TRUE(Shows(QStringLiteral("followed")));
}

TEST_F(Browser, ARemotePageCannotReachFiles) {
    const QString secret = PageFiles::Write(QStringLiteral("secret.htm"), "<title>secret</title>");
    const QString address = QStringLiteral("file://") + secret;
    OnePageServer server(QStringLiteral("<title>asking</title><iframe id=f src='%1'></iframe><script>"
                                        "fetch('%1').then(() => document.title = 'read',"
                                        "                 () => document.title = 'kept')</script>")
                             .arg(address)
                             .toUtf8());
    ASSERT_TRUE(pane.Navigate(PageFiles::Write(QStringLiteral("a.htm"),
                                               "<a id=a href='" + server.Address().toUtf8() + "'>out</a>")));
    ASSERT_TRUE(Probe::Until(pane, QStringLiteral("!!document.getElementById('a')")));
    Probe::Run(pane, QStringLiteral("document.getElementById('a').click(); 0"));
    EXPECT_TRUE(Shows(QStringLiteral("kept")));
    Probe::Run(pane, QStringLiteral("location.href = %1; 0").arg(Probe::Quoted(address)));
    Probe::Settle(pane);
    EXPECT_TRUE(Shows(QStringLiteral("kept"))) << "it went to a file";
}

TEST_F(Browser, WindowsAndDownloadsAreRefused) {
    PageFiles::Write(QStringLiteral("b.bin"), QByteArray(100, '\0'));
    ASSERT_TRUE(pane.Navigate(PageFiles::Write(QStringLiteral("a.htm"),
                                               "<title>here</title><a id=n target=_blank href=a.htm>new</a>"
                                               "<a id=d download href=b.bin>down</a>")));
    ASSERT_TRUE(Shows(QStringLiteral("here")));
    int finished = 0;
    QObject::connect(Probe::Page(pane)->profile(), &QWebEngineProfile::downloadRequested, &pane,
                     [&] { ++finished; });
    const qsizetype windows = QApplication::topLevelWidgets().size();
    Probe::Run(pane, QStringLiteral("document.getElementById('n').click();"
                                    "document.getElementById('d').click(); 0"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return finished == 1; }, 20000));
    EXPECT_EQ(Probe::Run(pane, QStringLiteral("window.open('a.htm') === null")), QVariant(true));
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
    EXPECT_EQ(QDir(TestFolder()).entryList(QDir::Files).size(), 2);
}

TEST_F(Browser, NoPageGetsPlacesMicrophonesOrNotices) {
    ASSERT_TRUE(
        Open(QStringLiteral("a.htm"),
             "const told = []; const tell = words => { told.push(words); document.title = told.sort() };"
             "navigator.geolocation.getCurrentPosition(() => tell('given'), e => tell('place ' + e.code));"
             "navigator.mediaDevices.getUserMedia({audio: true}).then(() => tell('given'), "
             "() => tell('media'));"
             "Notification.requestPermission().then(answer => tell('notice ' + answer));"
             "navigator.clipboard.readText().then(() => tell('given'), () => tell('clipboard'))"));
    EXPECT_TRUE(Shows(QStringLiteral("clipboard,media,notice denied,place 1")))
        << Probe::Run(pane, QStringLiteral("document.title")).toString().toStdString();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Browser, NothingIsKeptOnTheDisk) {
    ASSERT_TRUE(pane.Navigate(PageFiles::Write(QStringLiteral("a.htm"), "<title>here</title>")));
    ASSERT_TRUE(Shows(QStringLiteral("here")));
    const QWebEngineProfile* profile = Probe::Page(pane)->profile();
    EXPECT_TRUE(profile->isOffTheRecord());
    EXPECT_EQ(profile->persistentCookiesPolicy(), QWebEngineProfile::NoPersistentCookies);
    EXPECT_EQ(profile->httpCacheType(), QWebEngineProfile::MemoryHttpCache);
}

TEST_F(Browser, ADeadEngineLeavesAnEmptyViewThatCanShowAgain) {
    const QString page = PageFiles::Write(QStringLiteral("a.htm"), "<title>here</title>");
    ASSERT_TRUE(pane.Navigate(page));
    ASSERT_TRUE(Shows(QStringLiteral("here")));
    ASSERT_TRUE(Probe::Kill(pane));
    EXPECT_TRUE(pane.Navigate(page));
    EXPECT_TRUE(Shows(QStringLiteral("here")));
}

TEST_F(Browser, EachPageOfAViewThatHasTheKeysTakesThem) {
    const QString hasKeys = QStringLiteral("document.hasFocus()");
    ASSERT_TRUE(pane.Navigate(PageFiles::Write(QStringLiteral("a.htm"), "<title>first</title>")));
    ASSERT_TRUE(Shows(QStringLiteral("first")));
    window.activateWindow();
    pane.setFocus();
    EXPECT_TRUE(Probe::Until(pane, hasKeys));
    ASSERT_TRUE(pane.Navigate(PageFiles::Write(QStringLiteral("b.htm"), "<title>second</title>")));
    ASSERT_TRUE(Shows(QStringLiteral("second")));
    EXPECT_TRUE(Probe::Until(pane, hasKeys));
}

TEST_F(Browser, PanesShareOneProfileThatGoesWithTheLast) {
    QPointer<QWebEngineProfile> profile;
    {
        BrowserPane first(&window);
        BrowserPane second(&window);
        const QString page = PageFiles::Write(QStringLiteral("a.htm"), "<title>here</title>");
        ASSERT_TRUE(first.Navigate(page));
        ASSERT_TRUE(second.Navigate(page));
        profile = Probe::Page(first)->profile();
        EXPECT_EQ(Probe::Page(second)->profile(), profile);
        EXPECT_EQ(SharedWebProfile().get(), profile);
    }
    EXPECT_TRUE(profile.isNull()) << "the test's own pane never asked for one";
}

} // namespace
