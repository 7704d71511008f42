// The mode strip of the real frame: what a click on it does to the documents and their files.
#include "app/options/frmExternal.h"
#include "app/RealFrame.h"
#include "app/window/DocumentTabs.h"
#include "app/window/KnownForms.h"
#include "support/FakeWebControls.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>

namespace {

class ModeStripOf : public FrameTest {
  protected:
    ModeStripOf() { path = MakeFile(QStringLiteral("a.htm"), "<p>words</p>"); }

    void Start(const char* useMSIE = "1") {
        Write(Keys::UseMSIE, useMSIE);
        run = std::make_unique<ProgramRun>();
        run->frame->State<WebControls>().Load = [this] { return &factory; };
        ASSERT_TRUE(run->Start());
    }
    void Open() {
        run->frame->OpenDocumentFile(path);
        ASSERT_EQ(run->Active().Caption(), path);
    }
    QTabBar& Strip() { return run->Find<QTabBar>("TabStrip3"); }
    void Click(int tab) {
        QTest::mouseClick(&Strip(), Qt::LeftButton, {}, Strip().tabRect(tab).center());
        EXPECT_EQ(Strip().currentIndex(), tab);
    }
    FakeDesign* Design() {
        return dynamic_cast<FakeDesign*>(run->Active().findChild<QWidget*>(QStringLiteral("DHTMLEdit")));
    }
    FakeBrowser* Browser() {
        return dynamic_cast<FakeBrowser*>(run->Active().findChild<QWidget*>(QStringLiteral("WebBrowser1")));
    }
    QByteArray Content() const {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static constexpr int edit = 0, design = 1, view = 2;

    FakeFactory factory;
    QString path;
    std::unique_ptr<ProgramRun> run;
};

TEST_F(ModeStripOf, OnlyAtExactlyOneAreThereModes) {
    const struct {
        const char* stored;
        int made;
    } rows[] = {{"0", 0}, {"", 0}, {"2", 0}, {"-1", 0}, {"True", 0}, {"1", 2}};
    for (const auto& row : rows) {
        factory.made = 0;
        Start(row.stored);
        run->New();
        EXPECT_EQ(factory.made, row.made) << row.stored;
        EXPECT_EQ(Design() != nullptr, row.made > 0) << row.stored;
        EXPECT_EQ(Browser() != nullptr, row.made > 0) << row.stored;
        EXPECT_EQ(run->frame->Picture4().isVisible(), row.made > 0) << row.stored;
    }
}

TEST_F(ModeStripOf, LoadAndResizeDisagreeOnThePlace) {
    Write(Keys::TemplateWindowState, "0");
    Start();
    frmTemplate& document = run->New();
    EXPECT_EQ(Design()->geometry(), QRect(2, 1, document.width() - 4, document.height() - 3));
    EXPECT_TRUE(Design()->isHidden());
    EXPECT_TRUE(Browser()->isHidden());
    document.resize(document.size() - QSize(40, 40));
    QCoreApplication::processEvents();
    const QRect place(-3, -3, document.width() - 4, document.height() - 23);
    EXPECT_EQ(Design()->geometry(), place);
    EXPECT_EQ(Browser()->geometry(), place);
}

TEST_F(ModeStripOf, EachClickCountsOnceAlsoOnTheTabThatIsShown) {
    Start();
    Open();
    Click(view);
    EXPECT_EQ(Browser()->pages, QStringList(path));
    EXPECT_TRUE(Browser()->isVisible());
    Click(view);
    EXPECT_EQ(Browser()->pages.size(), 2);
    Click(edit);
    EXPECT_TRUE(run->Active().txtInput().isVisible());
    Click(design);
    EXPECT_EQ(Design()->loads, QStringList(path));
    Click(design);
    EXPECT_EQ(Design()->loads.size(), 2);
    EXPECT_TRUE(run->prompts.asked.isEmpty());
}

TEST_F(ModeStripOf, ViewAndDesignSaveTheTextFirst) {
    Start();
    Open();
    for (const int tab : {view, design}) {
        run->Active().txtInput().SetText(QStringLiteral("<p>mode %1").arg(tab));
        ASSERT_TRUE(run->Active().Modified());
        Click(tab);
        EXPECT_EQ(Content(), "<p>mode " + QByteArray::number(tab) + "\r\n");
        EXPECT_FALSE(run->Active().Modified());
        run->Design().End();
        Click(edit);
    }
}

TEST_F(ModeStripOf, WhatDesignSavedComesBackInANewWindow) {
    Start();
    Open();
    run->Active().txtInput().SetSelStart(5);
    Click(design);
    const QPointer<frmTemplate> before = &run->Active();
    Design()->writes = [](const QString& file) {
        QFile(file).remove();
        MakeFile(QStringLiteral("a.htm"), "<p>designed</p>");
        EXPECT_TRUE(QFile::exists(file));
    };
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    Click(edit);
    ASSERT_EQ(run->prompts.Messages(), QStringList(QStringLiteral("Save Changes?")));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(before.isNull());
    EXPECT_EQ(run->Active().Caption(), path);
    EXPECT_EQ(run->Active().txtInput().Text(), QStringLiteral("<p>designed</p>"));
    EXPECT_EQ(run->Active().txtInput().SelStart(), 0);
    EXPECT_TRUE(run->Active().txtInput().isVisible());
    EXPECT_FALSE(run->Design().ComingFromDesign());
    EXPECT_EQ(run->Program().DocumentCount, 1);
    EXPECT_EQ(run->frame->TabStrip2().count(), 1);
}

TEST_F(ModeStripOf, FromDesignToViewTheNewWindowStandsInView) {
    Start();
    Open();
    Click(design);
    const QPointer<frmTemplate> before = &run->Active();
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    Click(view);
    EXPECT_NE(&run->Active(), before.data());
    EXPECT_EQ(Browser()->pages, QStringList(path)) << "the tab that the program selects is no second click";
    EXPECT_TRUE(Browser()->isVisible());
    EXPECT_FALSE(run->Design().ComingFromDesign());
    EXPECT_EQ(run->prompts.Messages().size(), 1);
}

TEST_F(ModeStripOf, ClicksWithoutADocumentDoNothing) {
    Start();
    for (const int tab : {design, view, edit, edit})
        Click(tab);
    EXPECT_FALSE(run->Design().ComingFromDesign());
    EXPECT_TRUE(run->prompts.asked.isEmpty());
    EXPECT_EQ(factory.made, 0);
}

class ModesByOptions : public ModeStripOf {
  protected:
    frmExternal& Options() { return run->frame->LoadedForms().Load<frmExternal>(*run->frame); }
};

TEST_F(ModesByOptions, ADocumentThatStandsOpenGetsTheControlsAtOnce) {
    Start("0");
    Open();
    ASSERT_EQ(Design(), nullptr);
    auto& box = *Options().findChild<QCheckBox*>(QStringLiteral("chkMSIEInstalled"));
    box.click();
    EXPECT_TRUE(run->frame->Picture4().isVisible());
    ASSERT_NE(Design(), nullptr);
    const frmTemplate& document = run->Active();
    const QRect place(-3, -3, document.width() - 4, document.height() - 23);
    EXPECT_EQ(Design()->geometry(), place);
    EXPECT_EQ(Browser()->geometry(), place);
    box.click();
    EXPECT_FALSE(run->frame->Picture4().isVisible());
    EXPECT_NE(Design(), nullptr);
    Click(view);
    EXPECT_EQ(Browser()->pages.size(), 1);
}

TEST_F(ModesByOptions, ANewBackgroundShowsAsSoonAsTheDialogIsGone) {
    Start("0");
    Open();
    FillFormCommands(*run->frame, AppForms());
    run->prompts.colorAnswers = {0x123456};
    QTimer::singleShot(0, run->frame.get(), [this] {
        auto* form = run->frame->LoadedForms().Find<frmExternal>();
        ASSERT_NE(form, nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowActive(form));
        form->findChild<QTabBar*>(QStringLiteral("TabStrip1"))->setCurrentIndex(1);
        auto* ground = form->findChild<QWidget*>(QStringLiteral("lblTagBG"));
        QTest::mouseDClick(ground, Qt::LeftButton, {}, QPoint(3, 3));
        form->findChild<QPushButton*>(QStringLiteral("Command2"))->click();
    });
    run->frame->Commands().Run(QStringLiteral("mnuWebBrowser"));
    EXPECT_EQ(run->Editor().Background2, 0x123456);
    // Here no window manager brings the frame back.
    run->frame->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(run->frame.get()));
    EXPECT_TRUE(QTest::qWaitFor([this] { return run->Active().txtInput().BackColor() == 0x123456; }));
    EXPECT_EQ(run->Active().txtInput().Text(), QStringLiteral("<p>words</p>"));
}

} // namespace
