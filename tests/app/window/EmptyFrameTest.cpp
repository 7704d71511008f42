// The text of the empty frame: when it is there, what it offers, and what its links do.
#include "app/RealFrame.h"
#include "app/window/EmptyFrameText.h"
#include "app/window/LinkButton.h"
#include "support/DarkPalette.h"

#include <QMenu>
#include <QScopeGuard>

namespace {

class EmptyFrameTest : public FrameTest {
  protected:
    void Start(const QString& commandLine = QString()) {
        run.emplace();
        ASSERT_TRUE(run->Start(commandLine));
        QCoreApplication::processEvents();
    }
    void StoreRecent(const QStringList& paths) {
        for (qsizetype n = 0; n < paths.size(); ++n)
            Settings().Write(Keys::MenuArray(static_cast<int>(n)), paths[n]);
    }
    EmptyFrameText* Hint() { return run->frame->findChild<EmptyFrameText*>(); }
    bool Shown() { return Hint() && Hint()->isVisible(); }
    LinkButton& Link(const char* name) { return run->Find<LinkButton>(name); }
    /// The tips of the files that are offered, which are their paths.
    QStringList Files() {
        QStringList files;
        for (const LinkButton* link : Hint()->findChildren<LinkButton*>())
            if (link->isVisible() && link->objectName().startsWith(QStringLiteral("recent_")))
                files << link->toolTip();
        return files;
    }
    bool OffersSoon(const QStringList& paths) {
        return QTest::qWaitFor([&] { return Files() == paths; });
    }
    std::optional<ProgramRun> run;
};

TEST_F(EmptyFrameTest, IsThereExactlyWhileNoDocumentIsOpen) {
    Start();
    EXPECT_TRUE(Shown());
    frmTemplate& first = run->New();
    EXPECT_FALSE(Shown());
    frmTemplate& second = run->New();
    EXPECT_TRUE(first.Unload());
    QCoreApplication::processEvents();
    EXPECT_FALSE(Shown());
    EXPECT_TRUE(second.Unload());
    QCoreApplication::processEvents();
    EXPECT_TRUE(Shown());
}

TEST_F(EmptyFrameTest, IsNotMadeForAFrameThatStartsWithADocument) {
    Start(MakeFile(QStringLiteral("a.htm"), "x"));
    EXPECT_EQ(Hint(), nullptr);
}

TEST_F(EmptyFrameTest, IsNotThereWithoutItsSetting) {
    Write(Keys::EmptyFrameText, "0");
    Start();
    run->New().Unload();
    QCoreApplication::processEvents();
    EXPECT_EQ(Hint(), nullptr);
}

TEST_F(EmptyFrameTest, StaysWhereADocumentIsNotClosed) {
    Start();
    frmTemplate& document = run->New();
    document.txtInput().SetSelText(QStringLiteral("x"));
    run->prompts.messageAnswers = {MsgAnswer::Cancel};
    EXPECT_FALSE(document.Unload());
    QCoreApplication::processEvents();
    EXPECT_FALSE(Shown());
}

TEST_F(EmptyFrameTest, OffersTheRecentFilesThatAreThere) {
    const QString a = MakeFile(QStringLiteral("a.htm"), "a");
    const QString b = MakeFile(QStringLiteral("b & c.htm"), "b");
    StoreRecent(
        {a, TestFolder() + QStringLiteral("/gone.htm"), MakeFile(QStringLiteral("empty.htm"), ""), b});
    Start();
    EXPECT_TRUE(OffersSoon({a, QString(b).replace(u'&', QStringLiteral("&amp;"))}));
    EXPECT_EQ(Link("recent_1").accessibleName(), QStringLiteral("b & c.htm, ") + TestFolder());
}

TEST_F(EmptyFrameTest, AFileThatGoesIsOfferedNoMoreWhenTheFrameComesToTheFront) {
    const QString a = MakeFile(QStringLiteral("a.htm"), "a");
    const QString b = MakeFile(QStringLiteral("b.htm"), "b");
    StoreRecent({a, b});
    Start();
    ASSERT_TRUE(OffersSoon({a, b}));
    ASSERT_TRUE(QFile::remove(a));
    QWidget other;
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    run->frame->activateWindow();
    EXPECT_TRUE(OffersSoon({b}));
    // The link in the first place is the other file's now.
    Link("recent_0").click();
    EXPECT_EQ(run->Active().Caption(), b);
}

TEST_F(EmptyFrameTest, AClickOpensTheFileAndItsTextHasTheFocus) {
    const QString a = MakeFile(QStringLiteral("a.htm"), "<P>a");
    const QString b = MakeFile(QStringLiteral("b.htm"), "<P>b");
    StoreRecent({a, b});
    Start();
    ASSERT_TRUE(OffersSoon({a, b}));
    QTest::mouseClick(&Link("recent_1"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(run->Active().Caption(), b);
    EXPECT_TRUE(run->Active().txtInput().hasFocus());
    EXPECT_FALSE(Shown());
    // The list keeps its order, as from the menu.
    EXPECT_EQ(run->Entry("mnuFileArray_0").text(), a);
}

TEST_F(EmptyFrameTest, TheKeyboardReachesAndPressesEveryLink) {
    const QString a = MakeFile(QStringLiteral("a.htm"), "<P>a");
    StoreRecent({a});
    Start();
    ASSERT_TRUE(OffersSoon({a}));
    Hint()->TakeFocus();
    QStringList reached;
    for (int n = 0; n < 5; ++n) {
        reached << QApplication::focusWidget()->objectName();
        if (n < 4)
            QTest::keyClick(QApplication::focusWidget(), n % 2 == 0 ? Qt::Key_Tab : Qt::Key_Down);
    }
    EXPECT_EQ(reached, QStringList({QStringLiteral("begin_tb_new"), QStringLiteral("begin_mnuOpen"),
                                    QStringLiteral("begin_mnuWizard"), QStringLiteral("begin_mnuMainHelp"),
                                    QStringLiteral("recent_0")}));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(run->Active().Caption(), a);
    EXPECT_TRUE(run->Active().txtInput().hasFocus());
}

TEST_F(EmptyFrameTest, TheFirstLinksRunTheirCommands) {
    Start();
    QStringList ran;
    for (const char* name : {"mnuOpen", "mnuWizard", "mnuMainHelp"})
        run->frame->Commands().Set(QString::fromLatin1(name),
                                   [&ran, name] { ran << QString::fromLatin1(name); });
    QTest::mouseClick(&Link("begin_mnuOpen"), Qt::LeftButton);
    QTest::mouseClick(&Link("begin_mnuWizard"), Qt::LeftButton);
    QTest::keyClick(&Link("begin_mnuMainHelp"), Qt::Key_Space);
    EXPECT_EQ(ran, QStringList({QStringLiteral("mnuOpen"), QStringLiteral("mnuWizard"),
                                QStringLiteral("mnuMainHelp")}));
    QTest::mouseClick(&Link("begin_tb_new"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_TRUE(run->Active().txtInput().Text().contains(QStringLiteral("<HTML>")));
    EXPECT_TRUE(run->Active().txtInput().hasFocus());
}

TEST_F(EmptyFrameTest, ARightClickOnItDropsTheFileMenuAsBesideIt) {
    Start();
    auto& menu = run->Find<QMenu>("mnuFile");
    for (QWidget* place : {static_cast<QWidget*>(Hint()), static_cast<QWidget*>(&Link("begin_tb_new"))}) {
        QTest::mouseClick(place, Qt::RightButton, {}, QPoint(3, 3));
        EXPECT_TRUE(menu.isVisible());
        menu.hide();
    }
    EXPECT_EQ(run->frame->ActiveForm(), nullptr);
}

TEST_F(EmptyFrameTest, LeavesOutWhatHasNoRoomFromTheEnd) {
    QStringList paths;
    for (int n = 0; n < 8; ++n)
        paths << MakeFile(QStringLiteral("%1.htm").arg(n), "x");
    StoreRecent(paths);
    Start();
    ASSERT_TRUE(OffersSoon(paths));
    qsizetype before = paths.size();
    for (int height = Hint()->height(); height > 0; height -= 20) {
        Hint()->resize(Hint()->width(), height);
        const QStringList files = Files();
        EXPECT_LE(files.size(), before);
        EXPECT_EQ(files, paths.first(files.size()));
        for (const QWidget* line : Hint()->findChildren<QWidget*>()) {
            EXPECT_TRUE(!line->isVisible() || Hint()->rect().contains(line->geometry()));
        }
        before = files.size();
    }
    EXPECT_EQ(before, 0);
}

TEST_F(EmptyFrameTest, ALongPathStaysInside) {
    QString folder = TestFolder();
    for (int n = 0; n < 6; ++n)
        folder += u'/' + QString(30, u'w');
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString path = folder + u'/' + QString(100, u'x') + QStringLiteral(".htm");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("x");
    file.close();
    StoreRecent({path});
    Start();
    ASSERT_TRUE(OffersSoon({path}));
    run->frame->resize(640, 480);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Hint()->rect().contains(Link("recent_0").geometry()));
    EXPECT_EQ(Hint()->geometry(), run->frame->Area().geometry());
}

TEST_F(EmptyFrameTest, IsReadableOnLightAndDark) {
    const QPalette light = QApplication::palette();
    const auto back = qScopeGuard([&light] { QApplication::setPalette(light); });
    for (const QPalette& palette : {light, DarkPalette()}) {
        QApplication::setPalette(palette);
        Start();
        const QColor behind = run->frame->Area().background().color();
        const QColor text = Hint()->palette().color(QPalette::WindowText);
        EXPECT_GE(std::abs(qGray(behind.rgb()) - qGray(text.rgb())), 100)
            << behind.name().toStdString() << text.name().toStdString();
    }
}

} // namespace
