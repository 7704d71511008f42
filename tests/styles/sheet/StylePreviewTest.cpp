#include "styles/sheet/StylePreview.h"

#include "platform/store/ProgramFolder.h"
#include "styles/sheet/SheetTest.h"
#include "support/FakeWebControls.h"
#include "support/Files.h"

namespace {

class StylePreviewTest : public SheetTest {
  protected:
    void SetUp() override {
        StyleTest::SetUp();
        frame.Store().WriteFlag(Keys::UseMSIE, true);
        frame.State<WebControls>().Load = [this] { return &factory; };
    }
    /// Opens the form, active; what that showed is forgotten.
    void Begin() {
        OpenSheet();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
        QCoreApplication::processEvents();
        Forget();
    }
    FakeBrowser* Browser() { return static_cast<FakeBrowser*>(form->findChild<QWidget*>(T(u"WebBrowser1"))); }
    QString File() const { return InProgramFolder(T(u"_css.htm")); }
    QByteArray Page() const { return ReadFile(File()); }
    void Forget() {
        QFile::remove(File());
        if (Browser())
            Browser()->pages.clear();
    }
    /// Whether a page came up since the last look, once.
    bool Came() {
        const bool came = QFile::exists(File());
        if (Browser()) {
            EXPECT_EQ(Browser()->pages, came ? QStringList(File()) : QStringList());
        }
        Forget();
        return came;
    }

    FakeFactory factory;
};

TEST_F(StylePreviewTest, StandsInTheFormWhichIsHigherByIt) {
    Begin();
    ASSERT_TRUE(Browser());
    EXPECT_TRUE(Browser()->isVisible());
    EXPECT_GE(Browser()->width(), 440);
    EXPECT_GE(Browser()->height(), 100);
    EXPECT_GE(form->height(), 480);
    EXPECT_EQ(Browser()->focusPolicy(), Qt::NoFocus);
    EXPECT_GT(Browser()->y(), Sheet().geometry().bottom());
    EXPECT_LE(form->minimumSizeHint().height(), 600);
    const int with = form->height();
    form->close();
    frame.Store().WriteFlag(Keys::UseMSIE, false);
    OpenSheet();
    EXPECT_LT(form->height(), with);
}

TEST_F(StylePreviewTest, ShowsThePageAsTheFormBecomesActive) {
    OpenSheet();
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Browser()->pages.isEmpty(); }));
    EXPECT_EQ(Page(), QByteArray("<HTML><HEAD><STYLE type=text/css><!--H1 {  }--></STYLE></HEAD><BODY>"
                                 "<H1>Style H1</H1></BODY></HTML>\r\n"));
    Forget();
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(form, &activate);
    // The engine's first view makes the system's window anew, which is at work in this very event.
    EXPECT_FALSE(Came());
    QCoreApplication::processEvents();
    EXPECT_TRUE(Came());
}

TEST_F(StylePreviewTest, EveryStepRefreshesItButTheAddingToTheSheet) {
    Begin();
    ChooseElement(u"P");
    EXPECT_TRUE(Came()) << "an element clicked";
    QTest::keyClick(&Elements(), Qt::Key_Down);
    EXPECT_TRUE(Came()) << "an element by keys";
    ChooseProperty(u"Color");
    EXPECT_FALSE(Came()) << "a property";
    Click(Values(), 3);
    EXPECT_TRUE(Came()) << "a value clicked";
    QTest::keyClick(&Values(), Qt::Key_Return);
    EXPECT_TRUE(Came()) << "a value taken";
    ChooseProperty(u"font-family");
    EXPECT_FALSE(Came());
    QTest::keyClick(&Fonts(), Qt::Key_Down);
    QTest::keyClick(&Fonts(), Qt::Key_Return);
    EXPECT_TRUE(Came()) << "a font taken";
    Builder().setCurrentRow(0);
    QTest::keyClick(&Builder(), Qt::Key_Delete);
    EXPECT_TRUE(Came()) << "a line removed";
    Press(T(u"cmdAddSheet"));
    EXPECT_FALSE(Came()) << "a style added to the sheet";
    Tool(u"mnuClearAll");
    EXPECT_TRUE(Came()) << "all cleared";
    frame.prompts.inputAnswers = {T(u".x"), T(u".y")};
    Tool(u"tb_Add");
    EXPECT_FALSE(Came()) << "an element added";
    Tool(u"tb_Rename");
    EXPECT_TRUE(Came()) << "the element renamed";
    Tool(u"tb_Remove");
    EXPECT_TRUE(Came()) << "the element removed";
}

TEST_F(StylePreviewTest, ThePageHoldsTheStyleBeingBuiltAlone) {
    Begin();
    Add(u"Color", u"red");
    Press(T(u"cmdAddSheet"));
    Add(u"Color", u"blue");
    EXPECT_EQ(Page(), QByteArray("<HTML><HEAD><STYLE type=text/css><!--H1 { Color: blue;  }--></STYLE></HEAD>"
                                 "<BODY><H1>Style H1</H1></BODY></HTML>\r\n"));
    frame.prompts.inputAnswers = {T(u".x")};
    Tool(u"tb_Rename");
    EXPECT_EQ(Page(), QByteArray("<HTML><HEAD><STYLE type=text/css><!--.x { Color: blue;  }--></STYLE></HEAD>"
                                 "<BODY></BODY></HTML>\r\n"));
}

TEST_F(StylePreviewTest, AnyOtherSettingThanOneIsNoPreview) {
    for (const char16_t* value : {u"0", u"2", u"-1", u"", u"True", u"x"}) {
        frame.Store().Write(Keys::UseMSIE, T(value));
        Begin();
        EXPECT_EQ(Browser(), nullptr) << T(value).toStdString();
        ChooseElement(u"P");
        EXPECT_FALSE(QFile::exists(File())) << T(value).toStdString();
        form->close();
    }
    EXPECT_EQ(factory.made, 0);
}

TEST_F(StylePreviewTest, TheSettingIsReadAtEachStep) {
    Begin();
    frame.Store().WriteFlag(Keys::UseMSIE, false);
    ChooseElement(u"P");
    EXPECT_FALSE(Came());
    frame.Store().WriteFlag(Keys::UseMSIE, true);
    ChooseElement(u"P");
    EXPECT_TRUE(Came());
}

TEST_F(StylePreviewTest, WithoutAnEngineTheFormWorksAndHasNone) {
    class NoEngine final : public WebControlsFactory {
        DesignControl* MakeDesign(QWidget*) override { return nullptr; }
        BrowserControl* MakeBrowser(QWidget*) override { return nullptr; }
    } noEngine;
    for (WebControlsFactory* none :
         {static_cast<WebControlsFactory*>(nullptr), static_cast<WebControlsFactory*>(&noEngine)}) {
        frame.State<WebControls>().Load = [none] { return none; };
        Begin();
        EXPECT_EQ(Browser(), nullptr);
        Add(u"Color", u"red");
        Press(T(u"cmdAddSheet"));
        EXPECT_EQ(Sheet().Text(), T(u"H1 { Color: red;  }\r\n"));
        form->close();
    }
}

TEST_F(StylePreviewTest, APageThatCannotBeWrittenIsNotShown) {
    Begin();
    QDir().mkdir(File());
    Add(u"Color", u"red");
    EXPECT_EQ(Browser()->pages, QStringList());
    EXPECT_EQ(Rows(Builder()), QStringList(T(u"Color: red")));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

} // namespace
