// Document windows: how they come, what they take from the settings, and how they go.
#include "app/documents/frmTemplate.h"

#include "app/RealFrame.h"
#include "app/surface/EditCommands.h"
#include "app/window/DocumentTabs.h"
#include "editor/autofill/frmDropDown.h"
#include "editor/views/Modes.h"
#include "editor/views/WebControls.h"
#include "tools/timer/frmTime.h"

#include <QDialog>
#include <QMdiArea>
#include <QMenu>
#include <QTabBar>
#include <QTimer>

namespace {

/// Views that show nothing, to see where they stand.
class PlainViews final : public WebControlsFactory {
  public:
    DesignControl* MakeDesign(QWidget* parent) override { return new Design(parent); }
    BrowserControl* MakeBrowser(QWidget* parent) override { return new Browser(parent); }

  private:
    class Design final : public QWidget, public DesignControl {
      public:
        explicit Design(QWidget* parent) : QWidget(parent) { hide(); }
        QWidget& widget() override { return *this; }
        void Load(const QString&) override {}
        QString LoadedPath() const override { return {}; }
        WriteResult Save(const QString&) override { return WriteResult::Failed({}); }
    };
    class Browser final : public QWidget, public BrowserControl {
      public:
        explicit Browser(QWidget* parent) : QWidget(parent) { hide(); }
        QWidget& widget() override { return *this; }
        bool Navigate(const QString&) override { return false; }
    };
};

class frmTemplateOf : public FrameTest {
  protected:
    /// The first document of a run in which one value is stored.
    frmTemplate& With(const SettingsKey& key, const char* text) {
        Write(key, text);
        run = std::make_unique<ProgramRun>();
        EXPECT_TRUE(run->Start());
        return run->New();
    }
    /// The first document of a run that could have a browser and a design view.
    frmTemplate& WithViews(PlainViews& views, const char* useMSIE = "1") {
        Write(Keys::UseMSIE, useMSIE);
        run = std::make_unique<ProgramRun>();
        run->frame->State<WebControls>().Load = [&views] { return &views; };
        EXPECT_TRUE(run->Start());
        return run->New();
    }
    frmTemplate& Fresh() { return With(Keys::TemplateWindowState, "0"); }

    std::unique_ptr<ProgramRun> run;
};

// Coming

TEST_F(frmTemplateOf, NewWindowsAreBlankWithoutTitleOrTab) {
    Fresh();
    run->Entry("mnuNew").trigger();
    ASSERT_EQ(run->frame->Area().subWindowList().size(), 2);
    for (const QMdiSubWindow* window : run->frame->Area().subWindowList())
        EXPECT_EQ(window->windowTitle(), QString());
    EXPECT_EQ(run->Active().Caption(), QString());
    EXPECT_EQ(run->Active().txtInput().Text(), QString());
    EXPECT_FALSE(run->Active().Modified());
    EXPECT_EQ(run->frame->TabStrip2().count(), 0);
    EXPECT_EQ(run->Program().DocumentCount, 2);
}

TEST_F(frmTemplateOf, SavingANewWindowAddsExactlyOneTab) {
    Fresh();
    run->New().txtInput().SetSelText(QStringLiteral("x"));
    const QString path = TestFolder() + QStringLiteral("/new.html");
    run->prompts.saveAnswers = {ScriptedPrompts::Picked(path)};
    run->Entry("mnuSave").trigger();
    EXPECT_EQ(run->Active().Caption(), path);
    ASSERT_EQ(run->frame->TabStrip2().count(), 1);
    EXPECT_EQ(run->frame->TabStrip2().tabText(0), QStringLiteral("new.html"));
    EXPECT_EQ(run->frame->TabStrip2().Tag(0), path);
    run->Entry("mnuSave").trigger();
    EXPECT_EQ(run->frame->TabStrip2().count(), 1);
}

TEST_F(frmTemplateOf, PathWithAMarkInBracketsShowsRight) {
    frmTemplate& document = Fresh();
    document.SetCaption(QStringLiteral("/a[*]b[*][*].htm"));
    EXPECT_EQ(document.Caption(), QStringLiteral("/a[*]b[*][*].htm"));
    EXPECT_EQ(document.windowTitle(), QStringLiteral("/a[*][*]b[*][*][*][*].htm"));
}

TEST_F(frmTemplateOf, NewStartsTheModeStripOnEdit) {
    Fresh();
    run->frame->SelectModeTab(QStringLiteral("View"));
    auto& strip = run->Find<QTabBar>("TabStrip3");
    EXPECT_EQ(strip.tabText(strip.currentIndex()), QStringLiteral("View"));
    run->New();
    EXPECT_EQ(strip.tabText(strip.currentIndex()), QStringLiteral("Edit"));
}

TEST_F(frmTemplateOf, LoadResetsTheListsAndTheBuffer) {
    Fresh();
    run->Lists().Open();
    run->Lists().StopFollowing();
    run->Stream().Add(u"left over", {});
    run->New();
    EXPECT_FALSE(run->Lists().DropDownOpen());
    EXPECT_TRUE(run->Lists().DropDownFollowsCaret());
    EXPECT_EQ(run->Stream().RtfBuffer(), QString());
}

TEST_F(frmTemplateOf, LoadOfTheOnlyWindowEmptiesTheBufferToo) {
    run = std::make_unique<ProgramRun>();
    EXPECT_TRUE(run->Start());
    ASSERT_EQ(run->frame->ActiveForm(), nullptr);
    run->Stream().Add(u"left over", {});
    run->New();
    EXPECT_EQ(run->Stream().RtfBuffer(), QString());
}

TEST_F(frmTemplateOf, LoadTouchesNoOtherWindowWithColouringOff) {
    RichTextBox& before = With(Keys::ColoredTags, "0").txtInput();
    before.SetSelText(QStringLiteral("abc"));
    before.SetSelStart(0);
    before.SetSelLength(2);
    run->New();
    EXPECT_EQ(before.Text(), QStringLiteral("abc"));
    EXPECT_EQ(before.SelText(), QStringLiteral("ab"));
    EXPECT_FALSE(run->Active().Modified());
}

TEST_F(frmTemplateOf, DesignViewStandsInsideTheWindowUntilAResize) {
    PlainViews views;
    Write(Keys::TemplateWindowState, "0");
    frmTemplate& document = WithViews(views);
    auto* design = document.findChild<QWidget*>(QStringLiteral("DHTMLEdit"));
    auto* browser = document.findChild<QWidget*>(QStringLiteral("WebBrowser1"));
    ASSERT_TRUE(design && browser);
    EXPECT_EQ(design->geometry(), QRect(2, 1, document.width() - 4, document.height() - 3));
    document.resize(document.size() + QSize(40, 30));
    const QRect place(-3, -3, document.width() - 4, document.height() - 23);
    EXPECT_EQ(design->geometry(), place);
    EXPECT_EQ(browser->geometry(), place);
}

TEST_F(frmTemplateOf, ViewsLeaveNothingOfAMaximisedWindowBare) {
    PlainViews views;
    frmTemplate& document = WithViews(views);
    ASSERT_TRUE(document.isMaximized());
    const auto* browser = document.findChild<QWidget*>(QStringLiteral("WebBrowser1"));
    ASSERT_TRUE(browser);
    EXPECT_TRUE(browser->geometry().contains(document.widget()->rect()));
    run->frame->resize(run->frame->size() + QSize(40, 30));
    QCoreApplication::processEvents();
    EXPECT_TRUE(browser->geometry().contains(document.widget()->rect()));
    const auto* design = document.findChild<QWidget*>(QStringLiteral("DHTMLEdit"));
    EXPECT_TRUE(design->geometry().contains(document.widget()->rect()));
}

TEST_F(frmTemplateOf, ActivationLeavesAViewInFrontTheFocus) {
    PlainViews views;
    frmTemplate& document = WithViews(views);
    document.Modes()->DesignClicked();
    auto* design = document.findChild<QWidget*>(QStringLiteral("DHTMLEdit"));
    ASSERT_TRUE(design && design->isVisible());
    design->setFocusPolicy(Qt::StrongFocus);
    design->setFocus();
    ASSERT_EQ(run->frame->focusWidget(), design);
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(run->frame.get(), &activate);
    QCoreApplication::processEvents();
    EXPECT_EQ(run->frame->focusWidget(), design);
    // Nor does the Edit menu work on a text that nobody sees.
    document.txtInput().setFocus();
    mEdit_Click(*run->frame, 3);
    EXPECT_EQ(run->prompts.beeps, 1);
}

TEST_F(frmTemplateOf, ADocumentThatIsChosenGivesTheKeysToTheViewInFront) {
    PlainViews views;
    Write(Keys::TemplateWindowState, "0");
    frmTemplate& first = WithViews(views);
    first.Modes()->DesignClicked();
    auto* design = first.findChild<QWidget*>(QStringLiteral("DHTMLEdit"));
    ASSERT_TRUE(design && design->isVisible());
    design->setFocusPolicy(Qt::StrongFocus);
    design->setFocus();
    frmTemplate& second = run->New();
    ASSERT_EQ(run->frame->focusWidget(), &second.txtInput());
    run->frame->ActivateDocument(first);
    EXPECT_EQ(run->frame->focusWidget(), design);
    // Nor do they stay where the area left them.
    run->frame->setFocus();
    first.Form_Activate();
    EXPECT_EQ(run->frame->focusWidget(), design);
    run->frame->ActivateDocument(second);
    EXPECT_EQ(run->frame->focusWidget(), &second.txtInput());
}

TEST_F(frmTemplateOf, NoViewsUnlessTheyAreAskedFor) {
    for (const char* stored : {"0", "2", ""}) {
        PlainViews views;
        frmTemplate& document = WithViews(views, stored);
        EXPECT_EQ(document.findChild<QWidget*>(QStringLiteral("DHTMLEdit")), nullptr) << stored;
        EXPECT_EQ(document.findChild<QWidget*>(QStringLiteral("WebBrowser1")), nullptr) << stored;
    }
}

TEST_F(frmTemplateOf, WordWrapIsOnAtExactlyOne) {
    EXPECT_EQ(Fresh().txtInput().RightMargin(), 0);
    EXPECT_EQ(With(Keys::WordWrap, "0").txtInput().RightMargin(), 65000);
    EXPECT_EQ(With(Keys::WordWrap, "2").txtInput().RightMargin(), 65000);
    EXPECT_EQ(With(Keys::WordWrap, "1").txtInput().RightMargin(), 0);
}

TEST_F(frmTemplateOf, FontComesFromTheSettings) {
    EXPECT_EQ(Fresh().txtInput().Font().family(), QStringLiteral("Arial"));
    EXPECT_EQ(run->Active().txtInput().Font().pointSize(), 10);
    Write(Keys::EditorFont, "DejaVu Sans Mono");
    EXPECT_EQ(With(Keys::EditorFontSize, "17").txtInput().Font().pointSize(), 17);
    EXPECT_EQ(run->Active().txtInput().Font().family(), QStringLiteral("DejaVu Sans Mono"));
}

TEST_F(frmTemplateOf, BackgroundAboveZeroIsAppliedAtLoad) {
    EXPECT_EQ(With(Keys::Background2, "1193046").txtInput().BackColor(), 1193046);
}

TEST_F(frmTemplateOf, BlackIsAppliedAtActivationAlone) {
    Fresh();
    run->Editor().Background2 = 0;
    frmTemplate document(*run->frame);
    document.txtInput().SetBackColor(255);
    document.Form_Load();
    EXPECT_EQ(document.txtInput().BackColor(), 255);
    document.Form_Activate();
    EXPECT_EQ(document.txtInput().BackColor(), 0);
}

TEST_F(frmTemplateOf, BackgroundBelowZeroIsNotAppliedAtLoad) {
    Fresh();
    run->Editor().Background2 = -1;
    frmTemplate document(*run->frame);
    document.txtInput().SetBackColor(255);
    document.Form_Load();
    EXPECT_EQ(document.txtInput().BackColor(), 255);
}

TEST_F(frmTemplateOf, FocusOfTheWindowIsTheTexts) {
    frmTemplate& document = Fresh();
    run->frame->TabStrip2().setFocus();
    ASSERT_NE(run->frame->focusWidget(), &document.txtInput());
    document.widget()->setFocus();
    EXPECT_EQ(run->frame->focusWidget(), &document.txtInput());
}

TEST_F(frmTemplateOf, NewWindowsStandInSteps) {
    const QPoint first = Fresh().pos();
    const QPoint second = run->New().pos();
    EXPECT_GT(second.x(), first.x());
    EXPECT_GT(second.y(), first.y());
}

TEST_F(frmTemplateOf, ActivationColoursAndFocuses) {
    frmTemplate& first = Fresh();
    run->New();
    run->Editor().Background2 = 0;
    run->frame->ActivateDocument(first);
    EXPECT_EQ(run->frame->ActiveForm(), static_cast<Document*>(&first));
    EXPECT_EQ(first.txtInput().BackColor(), 0);
    EXPECT_EQ(first.focusWidget(), &first.txtInput());
}

TEST_F(frmTemplateOf, WindowTakesTheStateOfTheTemplate) {
    EXPECT_TRUE(With(Keys::TemplateWindowState, "2").isMaximized());
    EXPECT_TRUE(With(Keys::TemplateWindowState, "2.0").isMaximized());
    EXPECT_FALSE(With(Keys::TemplateWindowState, "0").isMaximized());
    frmTemplate& notMinimised = With(Keys::TemplateWindowState, "1");
    EXPECT_FALSE(notMinimised.isMinimized());
    EXPECT_FALSE(notMinimised.isMaximized());
}

TEST_F(frmTemplateOf, TimerComesUpOnlyIfUsed) {
    Fresh();
    Forms& forms = run->frame->LoadedForms();
    EXPECT_EQ(forms.Find<frmTime>(), nullptr);
    run->store.Write(Keys::UseWebTimer, QStringLiteral("1"));
    run->New();
    const frmTime* timer = forms.Find<frmTime>();
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isVisible());
    EXPECT_EQ(timer->parentWidget(), run->frame.get());
    // A later document finds it up; the keys are the document's.
    run->New();
    EXPECT_EQ(forms.Find<frmTime>(), timer);
    EXPECT_EQ(run->frame->ActiveForm(), static_cast<Document*>(&run->Active()));
    EXPECT_TRUE(run->frame->isActiveWindow());
}

TEST_F(frmTemplateOf, TheTimerGoesWithAnyDocumentAndTheNextOneBringsAnother) {
    With(Keys::UseWebTimer, "1");
    run->New().txtInput().SetSelText(QStringLiteral("x"));
    Forms& forms = run->frame->LoadedForms();
    const auto lines = [this] {
        return run->frame->Store().Read(Keys::DateList).count(QStringLiteral(" - 0 Hrs 0 Mins 0 Secs"));
    };
    // A document that stays keeps its timer.
    run->prompts.messageAnswers = {MsgAnswer::Cancel, MsgAnswer::No};
    EXPECT_FALSE(run->Active().Unload());
    EXPECT_NE(forms.Find<frmTime>(), nullptr);
    EXPECT_EQ(lines(), 0);
    // The other one is open still, and has none from now on.
    EXPECT_TRUE(run->Active().Unload());
    EXPECT_EQ(forms.Find<frmTime>(), nullptr);
    EXPECT_EQ(lines(), 1);
    EXPECT_NE(run->frame->ActiveForm(), nullptr);
    run->New();
    EXPECT_NE(forms.Find<frmTime>(), nullptr);
    EXPECT_EQ(lines(), 1);
}

TEST_F(frmTemplateOf, TextCoversTheInsideAndItsBorderLiesOutside) {
    frmTemplate& document = Fresh();
    const QSize inside = document.widget()->size();
    EXPECT_EQ(document.txtInput().size(), inside + QSize(5, 5));
    document.resize(document.size() + QSize(40, 30));
    EXPECT_EQ(document.txtInput().size(), document.widget()->size() + QSize(5, 5));
    EXPECT_NE(document.widget()->size(), inside);
    EXPECT_TRUE(document.txtInput().geometry().contains(document.widget()->rect()));
}

TEST_F(frmTemplateOf, ListTimerIsOneShotAndOff) {
    auto* timer = Fresh().findChild<QTimer*>(QStringLiteral("Timer1"));
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 1150);
    EXPECT_TRUE(timer->isSingleShot());
    EXPECT_FALSE(timer->isActive());
}

TEST_F(frmTemplateOf, EveryChangeSetsTheFlag) {
    frmTemplate& document = Fresh();
    document.txtInput().SetSelText(QStringLiteral("x"));
    EXPECT_TRUE(document.Modified());
}

TEST_F(frmTemplateOf, RightButtonDropsTheEditMenu) {
    frmTemplate& document = Fresh();
    QTest::mouseClick(document.txtInput().viewport(), Qt::RightButton);
    auto& menu = run->Find<QMenu>("mMain");
    EXPECT_TRUE(menu.isVisible());
    menu.hide();
}

// Going

TEST_F(frmTemplateOf, UnchangedWindowAsksNothing) {
    Fresh();
    run->Entry("mnuClose").trigger();
    EXPECT_EQ(run->frame->ActiveForm(), nullptr);
    EXPECT_TRUE(run->prompts.asked.isEmpty());
    EXPECT_EQ(run->Program().DocumentCount, 0);
}

TEST_F(frmTemplateOf, QuestionHasItsTextAndButtons) {
    Fresh().SetModified(true);
    run->prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_TRUE(run->Active().Unload());
    ASSERT_EQ(run->prompts.asked.size(), 1);
    EXPECT_EQ(run->prompts.asked[0].text, QStringLiteral("Do you want to save?"));
    EXPECT_EQ(run->prompts.asked[0].title, QStringLiteral("Save Document?"));
    EXPECT_EQ(run->prompts.asked[0].buttons, MsgButtons::YesNoCancel);
    EXPECT_EQ(run->prompts.asked[0].icon, MsgIcon::Question);
}

TEST_F(frmTemplateOf, YesSavesAndCloses) {
    Fresh();
    const QString path = MakeFile(QStringLiteral("a.htm"), "<P>old");
    run->frame->OpenDocumentFile(path);
    run->Active().txtInput().SetSelText(QStringLiteral("new "));
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    EXPECT_TRUE(run->Active().Unload());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("new <P>old\r\n"));
    EXPECT_EQ(run->frame->TabStrip2().count(), 0);
    EXPECT_EQ(run->Program().DocumentCount, 1);
}

TEST_F(frmTemplateOf, YesSavesTheWindowThatAskedNotTheOneInFront) {
    Fresh();
    const QString path = MakeFile(QStringLiteral("a.htm"), "<P>old");
    run->frame->OpenDocumentFile(path);
    frmTemplate& behind = run->Active();
    behind.txtInput().SetSelText(QStringLiteral("new "));
    run->New().txtInput().SetSelText(QStringLiteral("in front"));
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    EXPECT_TRUE(behind.close());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("new <P>old\r\n"));
    EXPECT_TRUE(run->Active().Modified());
}

TEST_F(frmTemplateOf, AFileToBeLeftAsOthersWroteItKeepsTheWindow) {
    Fresh();
    const QString path = MakeFile(QStringLiteral("a.htm"), "<P>old");
    run->frame->OpenDocumentFile(path);
    frmTemplate& document = run->Active();
    document.txtInput().SetSelText(QStringLiteral("new "));
    MakeFile(QStringLiteral("a.htm"), "theirs");
    const auto expectAllIsLeft = [&] {
        EXPECT_EQ(&run->Active(), &document);
        EXPECT_TRUE(document.isVisible());
        EXPECT_TRUE(document.Modified());
        EXPECT_EQ(run->frame->TabStrip2().count(), 1);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), QByteArray("theirs"));
    };
    run->prompts.messageAnswers = {MsgAnswer::Yes, MsgAnswer::No};
    EXPECT_FALSE(document.Unload());
    expectAllIsLeft();
    run->prompts.messageAnswers = {MsgAnswer::Yes, MsgAnswer::No};
    EXPECT_FALSE(run->Stop());
    expectAllIsLeft();
    run->prompts.messageAnswers = {MsgAnswer::Yes, MsgAnswer::No};
    EXPECT_FALSE(document.SaveAtSessionEnd());
    expectAllIsLeft();
    EXPECT_EQ(run->prompts.asked.size(), 6);
    run->prompts.messageAnswers = {MsgAnswer::Yes, MsgAnswer::Yes};
    EXPECT_TRUE(document.Unload());
    EXPECT_EQ(run->prompts.asked.size(), 8);
}

TEST_F(frmTemplateOf, YesWithoutAPathClosesEvenIfSaveAsIsCancelled) {
    Fresh().txtInput().SetSelText(QStringLiteral("x"));
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    run->prompts.saveAnswers = {ScriptedPrompts::Cancelled()};
    EXPECT_TRUE(run->Active().Unload());
    EXPECT_EQ(run->frame->ActiveForm(), nullptr);
    EXPECT_EQ(run->prompts.asked.size(), 2);
}

TEST_F(frmTemplateOf, YesWithoutAPathTakesTheNewTabAwayWithTheWindow) {
    Fresh().txtInput().SetSelText(QStringLiteral("x"));
    const QString path = TestFolder() + QStringLiteral("/late.htm");
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    run->prompts.saveAnswers = {ScriptedPrompts::Picked(path)};
    EXPECT_TRUE(run->Active().Unload());
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_EQ(run->frame->TabStrip2().count(), 0);
}

TEST_F(frmTemplateOf, NoClosesWithoutSaving) {
    Fresh();
    const QString path = MakeFile(QStringLiteral("a.htm"), "<P>old");
    run->frame->OpenDocumentFile(path);
    run->Active().txtInput().SetSelText(QStringLiteral("new "));
    run->prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_TRUE(run->Active().Unload());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("<P>old"));
    EXPECT_EQ(run->prompts.asked.size(), 1);
}

TEST_F(frmTemplateOf, CancelChangesNothing) {
    Fresh();
    run->frame->OpenDocumentFile(MakeFile(QStringLiteral("a.htm"), "<P>old"));
    frmTemplate& document = run->Active();
    document.SetModified(true);
    run->Program().TemplateWindowState = QStringLiteral("7");
    run->frame->LoadedForms().Load<frmTime>(*run->frame);
    run->prompts.messageAnswers = {MsgAnswer::Cancel};
    EXPECT_FALSE(document.Unload());
    EXPECT_EQ(run->frame->ActiveForm(), static_cast<Document*>(&document));
    EXPECT_TRUE(document.isVisible());
    EXPECT_EQ(run->frame->TabStrip2().count(), 1);
    EXPECT_EQ(run->Program().DocumentCount, 2);
    EXPECT_EQ(run->Program().TemplateWindowState, QStringLiteral("7"));
    EXPECT_NE(run->frame->LoadedForms().Find<frmTime>(), nullptr);
    EXPECT_EQ(Read(Keys::DateList), QString());
    EXPECT_TRUE(document.Modified());
}

TEST_F(frmTemplateOf, ClosingTakesListAndTimerDown) {
    frmTemplate& document = Fresh();
    Forms& forms = run->frame->LoadedForms();
    forms.Show<frmDropDown>(*run->frame);
    forms.Load<frmTime>(*run->frame);
    EXPECT_TRUE(document.Unload());
    EXPECT_EQ(forms.Find<frmDropDown>(), nullptr);
    EXPECT_EQ(forms.Find<frmTime>(), nullptr);
}

TEST_F(frmTemplateOf, ClosingAnyDocumentTakesTheTimerDown) {
    frmTemplate& behind = Fresh();
    run->New();
    Forms& forms = run->frame->LoadedForms();
    forms.Load<frmTime>(*run->frame);
    EXPECT_TRUE(behind.Unload());
    EXPECT_EQ(forms.Find<frmTime>(), nullptr);
    run->store.Sync();
    EXPECT_TRUE(Read(Keys::DateList).endsWith(QStringLiteral(" - 0 Hrs 0 Mins 0 Secs")));
    EXPECT_EQ(run->Program().DocumentCount, 1);
}

TEST_F(frmTemplateOf, CancelStillTakesTheListDown) {
    Fresh().SetModified(true);
    Forms& forms = run->frame->LoadedForms();
    forms.Show<frmDropDown>(*run->frame);
    run->prompts.messageAnswers = {MsgAnswer::Cancel};
    EXPECT_FALSE(run->Active().Unload());
    EXPECT_EQ(forms.Find<frmDropDown>(), nullptr);
}

TEST_F(frmTemplateOf, LastWindowClosedDecidesHowTheNextOpens) {
    const struct {
        Qt::WindowStates state;
        const char* digit;
        bool nextMaximised;
    } rows[] = {{Qt::WindowMaximized, "2", true},
                {Qt::WindowNoState, "0", false},
                {Qt::WindowMinimized, "1", false},
                {Qt::WindowMaximized, "2", true},
                {Qt::WindowMinimized | Qt::WindowMaximized, "1", false}};
    Fresh();
    EXPECT_TRUE(run->Active().Unload());
    for (const auto& row : rows) {
        run->New().setWindowState(row.state);
        EXPECT_TRUE(run->Active().Unload());
        EXPECT_EQ(run->Program().TemplateWindowState, QString::fromLatin1(row.digit));
        EXPECT_EQ(run->New().isMaximized(), row.nextMaximised) << row.digit;
        EXPECT_FALSE(run->Active().isMinimized());
        EXPECT_TRUE(run->Active().Unload());
    }
}

TEST_F(frmTemplateOf, LastOfThreeMaximisedWindowsStoresTheirState) {
    With(Keys::TemplateWindowState, "2");
    run->New();
    run->New();
    run->Program().TemplateWindowState = QStringLiteral("0");
    while (run->frame->ActiveForm())
        ASSERT_TRUE(run->Active().Unload());
    EXPECT_EQ(run->Program().TemplateWindowState, QStringLiteral("2"));
}

TEST_F(frmTemplateOf, MinimisedWindowStaysSoWhenAMaximisedOneGoes) {
    frmTemplate& icon = Fresh();
    icon.showMinimized();
    frmTemplate& large = run->New();
    large.showMaximized();
    ASSERT_TRUE(icon.isMinimized());
    EXPECT_TRUE(large.Unload());
    EXPECT_EQ(run->frame->ActiveForm(), static_cast<Document*>(&icon));
    EXPECT_TRUE(icon.isMinimized());
    EXPECT_FALSE(icon.isMaximized());
}

TEST_F(frmTemplateOf, ClosedWindowBringsUpNoList) {
    QTimer& timer = Fresh().Timer1();
    timer.start();
    EXPECT_TRUE(run->Active().Unload());
    EXPECT_FALSE(timer.isActive());
}

TEST_F(frmTemplateOf, ClosedWindowIsGoneAtOnceForEveryone) {
    Fresh();
    const QString path = MakeFile(QStringLiteral("a.htm"), "x");
    run->frame->OpenDocumentFile(path);
    const int forms = run->frame->LoadedForms().Count();
    EXPECT_TRUE(run->Active().Unload());
    EXPECT_EQ(run->frame->LoadedForms().Count(), forms - 1);
    EXPECT_EQ(run->Active().Caption(), QString());
    run->frame->OpenDocumentFile(path);
    EXPECT_TRUE(run->prompts.asked.isEmpty());
    EXPECT_EQ(run->Active().Caption(), path);
}

TEST_F(frmTemplateOf, CloseButtonAsksToo) {
    Fresh().SetModified(true);
    run->prompts.messageAnswers = {MsgAnswer::Cancel, MsgAnswer::No};
    EXPECT_FALSE(run->Active().close());
    EXPECT_TRUE(run->Active().isVisible());
    EXPECT_TRUE(run->Active().close());
    EXPECT_EQ(run->frame->ActiveForm(), nullptr);
}

TEST_F(frmTemplateOf, CtrlWClosesOneWindow) {
    Fresh();
    run->New();
    QTest::keyClick(&run->Active().txtInput(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(run->Program().DocumentCount, 1);
}

// The active document

TEST_F(frmTemplateOf, ActiveDocumentStaysWhileADialogHasTheFocus) {
    frmTemplate& document = Fresh();
    auto& dialog = run->ShowStandIn("frmBody");
    dialog.activateWindow();
    QCoreApplication::processEvents();
    EXPECT_EQ(run->frame->ActiveForm(), static_cast<Document*>(&document));
}

TEST_F(frmTemplateOf, ClosingUnderADialogLeavesTheNextDocumentActive) {
    frmTemplate& first = Fresh();
    frmTemplate& second = run->New();
    frmTemplate& third = run->New();
    auto& dialog = run->ShowStandIn("frmBody");
    dialog.activateWindow();
    QCoreApplication::processEvents();
    EXPECT_TRUE(second.Unload());
    EXPECT_EQ(run->frame->ActiveForm(), static_cast<Document*>(&third));
    EXPECT_TRUE(third.Unload());
    EXPECT_EQ(run->frame->ActiveForm(), static_cast<Document*>(&first));
    EXPECT_TRUE(first.Unload());
    EXPECT_EQ(run->frame->ActiveForm(), nullptr);
}

TEST_F(frmTemplateOf, DocumentsOfAFrameNotYetShownBecomeActiveInTurn) {
    ProgramRun hidden;
    frmTemplate& first = hidden.New();
    EXPECT_EQ(hidden.frame->ActiveForm(), static_cast<Document*>(&first));
    frmTemplate& second = hidden.New();
    EXPECT_EQ(hidden.frame->ActiveForm(), static_cast<Document*>(&second));
    hidden.frame->show();
    QCoreApplication::processEvents();
    EXPECT_EQ(hidden.frame->ActiveForm(), static_cast<Document*>(&second));
    EXPECT_TRUE(second.Unload());
    EXPECT_EQ(hidden.frame->ActiveForm(), static_cast<Document*>(&first));
}

TEST_F(frmTemplateOf, FrameNamesTheMaximisedDocumentWheneverItWasOpened) {
    Write(Keys::TemplateWindowState, "2");
    const QString first = MakeFile(QStringLiteral("a.htm"), "a");
    const QString second = MakeFile(QStringLiteral("b.htm"), "b");
    ProgramRun run;
    const auto title = [&] {
        QCoreApplication::processEvents();
        return run.frame->windowTitle();
    };
    const QString own = QStringLiteral("The Tarnwick Pro 3.0");
    ASSERT_TRUE(run.Start(first));
    EXPECT_EQ(title(), own + QStringLiteral(" - [") + first + u']');
    run.frame->OpenDocumentFile(second);
    EXPECT_EQ(title(), own + QStringLiteral(" - [") + second + u']');
    run.New();
    EXPECT_EQ(title(), own);
    EXPECT_TRUE(run.Active().Unload());
    run.Active().showNormal();
    EXPECT_EQ(title(), own);
    run.Active().showMaximized();
    EXPECT_NE(title(), own);
    while (run.frame->ActiveForm())
        EXPECT_TRUE(run.Active().Unload());
    EXPECT_EQ(title(), own);
}

TEST_F(frmTemplateOf, SecondRequestToCloseWhileItAsksIsRefused) {
    frmTemplate& document = Fresh();
    document.SetModified(true);
    bool refused = false;
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    run->prompts.saveAnswers = {ScriptedPrompts::Cancelled()};
    run->prompts.whileOpen = [&](const FileRequest&) { refused = !document.close() && document.isVisible(); };
    EXPECT_TRUE(document.Unload());
    EXPECT_TRUE(refused);
    EXPECT_EQ(run->prompts.asked.size(), 2);
}

TEST_F(frmTemplateOf, ActiveDocumentStaysWhileItIsMinimised) {
    frmTemplate& document = Fresh();
    document.showMinimized();
    EXPECT_EQ(run->frame->ActiveForm(), static_cast<Document*>(&document));
}

} // namespace
