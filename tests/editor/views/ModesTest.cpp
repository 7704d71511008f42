// Edit, Design and View: what is shown, what is saved, what is asked.
#include "editor/views/Modes.h"

#include "editor/views/DesignVisit.h"
#include "support/FakeWebControls.h"
#include "support/TestFrame.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QTest>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A frame whose documents have both views, and which opens a path as a new window.
class ModesFrame final : public TestFrame {
  public:
    ModesFrame() {
        State<WebControls>().Load = [this] { return &factory; };
        GiveModes(QStringLiteral("/site/a.htm"));
    }

    void OpenDocumentFile(const QString& path) override {
        TestFrame::OpenDocumentFile(path);
        SelectModeTab(QStringLiteral("Edit"));
        TestFrame::NewDocument();
        GiveModes(path);
    }
    SaveResult SaveActiveDocument() override {
        if (!nameGivenOnSave.isEmpty())
            active->caption = nameGivenOnSave;
        return TestFrame::SaveActiveDocument();
    }

    void GiveModes(const QString& path) {
        active->caption = path;
        active->modes = std::make_unique<DocumentModes>(*this, *active);
        active->modes->LoadControls();
    }
    void Click(const QString& tab) { ModeStrip_Click(*this, tab); }
    FakeDesign* Design() {
        return static_cast<FakeDesign*>(active->findChild<QWidget*>(QStringLiteral("DHTMLEdit")));
    }
    FakeBrowser* Browser() {
        return static_cast<FakeBrowser*>(active->findChild<QWidget*>(QStringLiteral("WebBrowser1")));
    }
    bool ComingFromDesign() { return State<DesignVisit>().ComingFromDesign(); }
    /// The controls that can be seen, by name.
    QStringList Shown() {
        QStringList names;
        for (const char* name : {"txtInput", "DHTMLEdit", "WebBrowser1"}) {
            const auto* control = active->findChild<QWidget*>(QString::fromLatin1(name));
            if (control && control->isVisible())
                names << QString::fromLatin1(name);
        }
        return names;
    }

    FakeFactory factory;
    QString nameGivenOnSave;
};

const QString edit = QStringLiteral("Edit");
const QString design = QStringLiteral("Design");
const QString view = QStringLiteral("View");

const QString cannotDisplay = QStringLiteral(
    "I cannot display an HTML file for one of these reasons:\r"
    "\r"
    "There is no active document - nothing to display.\r"
    "     or\r"
    "The active document has not been given a filename yet (use the Save command).\r"
    "     or\r"
    "You do not have Microsoft Internet Explorer 4.0 (or later) properly installed on your system.\r"
    "\r"
    "If you do not have MSIE 4 installed you may use Netscape (or another browser)\r"
    "by pressing the External browser button on the toolbar.\r"
    "\r"
    "Use the External Programs menu option under the Window menu to link me\r"
    "to your external browser.\r");

TEST(Modes, ControlsAreAddedHiddenAndOnce) {
    ModesFrame frame;
    EXPECT_EQ(frame.factory.made, 2);
    EXPECT_THAT(frame.Shown(), ElementsAre(QStringLiteral("txtInput")));
    frame.active->modes->LoadControls();
    EXPECT_EQ(frame.factory.made, 2);
    EXPECT_EQ(frame.active->findChildren<QWidget*>(QStringLiteral("DHTMLEdit")).size(), 1);
}

TEST(Modes, EachModeShowsItsOwnControl) {
    ModesFrame frame;
    const std::pair<QString, const char*> rows[] = {{design, "DHTMLEdit"},
                                                    {view, "WebBrowser1"},
                                                    {edit, "txtInput"},
                                                    {view, "WebBrowser1"},
                                                    {design, "DHTMLEdit"}};
    for (const auto& [tab, shown] : rows) {
        frame.State<DesignVisit>().End();
        frame.Click(tab);
        EXPECT_THAT(frame.Shown(), ElementsAre(QString::fromLatin1(shown))) << tab.toStdString();
    }
}

TEST(Modes, DesignSavesThenLoadsTheFile) {
    ModesFrame frame;
    frame.Click(design);
    EXPECT_EQ(frame.saves, 1);
    EXPECT_THAT(frame.Design()->loads, ElementsAre(QStringLiteral("/site/a.htm")));
    EXPECT_TRUE(frame.ComingFromDesign());
    EXPECT_THAT(frame.prompts.asked, IsEmpty());
}

TEST(Modes, ADocumentNamedWhileDesignSavesItLoadsThatFile) {
    ModesFrame frame;
    frame.active->caption.clear();
    frame.nameGivenOnSave = QStringLiteral("/site/new.htm");
    frame.Click(design);
    EXPECT_THAT(frame.Design()->loads, ElementsAre(QStringLiteral("/site/new.htm")));
}

// What others wrote is to stay as it is: the user stays where he is, with what he has.
TEST(Modes, DesignIsNotEnteredWhereTheSaveIsRefused) {
    for (const auto& [from, shown] : {std::pair(edit, "txtInput"), std::pair(view, "WebBrowser1")}) {
        ModesFrame frame;
        frame.Click(from);
        frame.saveResult = SaveResult::Refused;
        frame.Click(design);
        EXPECT_THAT(frame.Shown(), ElementsAre(QString::fromLatin1(shown)));
        EXPECT_EQ(frame.modeTabs.last(), from);
        EXPECT_THAT(frame.Design()->loads, IsEmpty());
        EXPECT_FALSE(frame.ComingFromDesign());
    }
}

TEST(Modes, DesignIsNotLoadedAnewWhereTheSaveIsRefused) {
    ModesFrame frame;
    frame.Click(design);
    frame.saveResult = SaveResult::Refused;
    frame.Click(design);
    EXPECT_EQ(frame.Design()->loads.size(), 1);
    EXPECT_EQ(frame.modeTabs.last(), design);
    EXPECT_TRUE(frame.ComingFromDesign());
}

TEST(Modes, ViewShowsWhatOthersWroteWhereTheSaveIsRefused) {
    ModesFrame frame;
    frame.saveResult = SaveResult::Refused;
    frame.Click(view);
    EXPECT_THAT(frame.Browser()->pages, ElementsAre(QStringLiteral("/site/a.htm")));
}

TEST(Modes, TheUserStaysInDesignWhereItsSaveIsRefused) {
    for (const QString& to : {edit, view}) {
        ModesFrame frame;
        frame.Click(design);
        frame.prompts.messageAnswers = {MsgAnswer::Yes};
        frame.overResult = SaveResult::Refused;
        frame.Click(to);
        EXPECT_THAT(frame.Shown(), ElementsAre(QStringLiteral("DHTMLEdit")));
        EXPECT_EQ(frame.modeTabs, QStringList{design});
        EXPECT_TRUE(frame.ComingFromDesign());
        EXPECT_THAT(frame.opened, IsEmpty());
        EXPECT_EQ(frame.saves, 1);
        // Once he lets it be overwritten he leaves as ever.
        frame.prompts.messageAnswers = {MsgAnswer::Yes};
        frame.overResult.reset();
        FakeDesign* left = frame.Design();
        frame.Click(to);
        EXPECT_THAT(left->saves, ElementsAre(QStringLiteral("/site/a.htm")));
        EXPECT_THAT(frame.opened, ElementsAre(QStringLiteral("/site/a.htm")));
    }
}

TEST(Modes, ViewSavesThenNavigates) {
    ModesFrame frame;
    frame.Click(view);
    EXPECT_EQ(frame.saves, 1);
    EXPECT_THAT(frame.Browser()->pages, ElementsAre(QStringLiteral("/site/a.htm")));
    EXPECT_FALSE(frame.ComingFromDesign());
}

TEST(Modes, TheViewsHearOfTheDocumentsEncoding) {
    ModesFrame frame;
    frame.active->SetEncoding(TextEncoding::Utf8WithMark);
    frame.Click(QStringLiteral("Design"));
    EXPECT_THAT(frame.Design()->encodings, ElementsAre(TextEncoding::Utf8WithMark));
    frame.active->SetEncoding(TextEncoding::CodePage1252);
    frame.prompts.messageAnswers = {MsgAnswer::No};
    frame.Click(QStringLiteral("View"));
    EXPECT_EQ(frame.Browser()->encodings.back(), TextEncoding::CodePage1252);
}

TEST(Modes, ClickingTheTabThatIsShownSavesAgain) {
    ModesFrame frame;
    frame.Click(view);
    frame.Click(view);
    EXPECT_EQ(frame.saves, 2);
    EXPECT_EQ(frame.Browser()->pages.size(), 2);
    frame.Click(design);
    frame.Click(design);
    EXPECT_EQ(frame.saves, 4);
    EXPECT_EQ(frame.Design()->loads.size(), 2);
    EXPECT_THAT(frame.prompts.asked, IsEmpty());
}

TEST(Modes, FromDesignToEditAsksAndYesSavesAndReopens) {
    ModesFrame frame;
    frame.Click(design);
    const QPointer<QWidget> before = frame.active;
    const QPointer<FakeDesign> control = frame.Design();
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    frame.Click(edit);
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.prompts.asked[0].text, QStringLiteral("Save Changes?"));
    EXPECT_EQ(frame.prompts.asked[0].title, QStringLiteral("The Tarnwick"));
    EXPECT_EQ(frame.prompts.asked[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::None);
    EXPECT_THAT(control->saves, ElementsAre(QStringLiteral("/site/a.htm")));
    EXPECT_THAT(frame.opened, ElementsAre(QStringLiteral("/site/a.htm")));
    EXPECT_NE(frame.active, before.data());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(before.isNull()) << "the old window went";
    EXPECT_THAT(frame.Shown(), ElementsAre(QStringLiteral("txtInput")));
    EXPECT_FALSE(frame.ComingFromDesign());
    frame.Click(edit);
    EXPECT_EQ(frame.prompts.asked.size(), 1);
}

TEST(Modes, FromDesignToEditNoKeepsTheSourceAndTheNextDesignReloads) {
    ModesFrame frame;
    frame.SetText(QStringLiteral("<p>old"));
    frame.Click(design);
    frame.prompts.messageAnswers = {MsgAnswer::No};
    frame.Click(edit);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<p>old"));
    EXPECT_THAT(frame.Design()->saves, IsEmpty());
    EXPECT_THAT(frame.opened, IsEmpty());
    EXPECT_THAT(frame.Shown(), ElementsAre(QStringLiteral("txtInput")));
    EXPECT_FALSE(frame.ComingFromDesign());
    frame.Click(design);
    EXPECT_EQ(frame.Design()->loads.size(), 2);
}

TEST(Modes, FromDesignToViewYesShowsTheNewWindowInView) {
    ModesFrame frame;
    frame.Click(design);
    const QPointer<FakeDesign> control = frame.Design();
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    frame.Click(view);
    EXPECT_THAT(control->saves, ElementsAre(QStringLiteral("/site/a.htm")));
    EXPECT_THAT(frame.opened, ElementsAre(QStringLiteral("/site/a.htm")));
    EXPECT_THAT(frame.modeTabs, ElementsAre(edit, view));
    EXPECT_THAT(frame.Shown(), ElementsAre(QStringLiteral("WebBrowser1")));
    EXPECT_THAT(frame.Browser()->pages, ElementsAre(QStringLiteral("/site/a.htm")));
    EXPECT_FALSE(frame.ComingFromDesign());
}

TEST(Modes, FromDesignToViewNoShowsTheFileAsItStands) {
    ModesFrame frame;
    frame.Click(design);
    frame.prompts.messageAnswers = {MsgAnswer::No};
    frame.Click(view);
    EXPECT_THAT(frame.Design()->saves, IsEmpty());
    EXPECT_THAT(frame.opened, IsEmpty());
    EXPECT_THAT(frame.modeTabs, IsEmpty());
    EXPECT_THAT(frame.Shown(), ElementsAre(QStringLiteral("WebBrowser1")));
}

TEST(Modes, WithoutADocumentAClickDoesNothingAndForgetsNothing) {
    ModesFrame frame;
    frame.State<DesignVisit>().Begin();
    frame.CloseDocument();
    for (const QString& tab : {edit, design, view})
        frame.Click(tab);
    EXPECT_TRUE(frame.ComingFromDesign());
    EXPECT_EQ(frame.saves, 0);
    EXPECT_THAT(frame.prompts.asked, IsEmpty());
    ShowInternal(frame);
    EXPECT_THAT(frame.prompts.asked, IsEmpty());
}

TEST(Modes, DesignOfADocumentWithoutAFileStaysEmptyAndKeepsTheWindow) {
    ModesFrame frame;
    frame.active->caption.clear();
    frame.SetText(QStringLiteral("mine"));
    const QWidget* window = frame.active;
    frame.Click(design);
    EXPECT_THAT(frame.Design()->loads, IsEmpty());
    EXPECT_THAT(frame.Shown(), ElementsAre(QStringLiteral("DHTMLEdit")));
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    frame.Click(edit);
    EXPECT_THAT(frame.Design()->saves, IsEmpty());
    EXPECT_THAT(frame.opened, IsEmpty());
    EXPECT_EQ(frame.active, window);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("mine"));
    EXPECT_THAT(frame.Shown(), ElementsAre(QStringLiteral("txtInput")));
}

TEST(Modes, ViewOfADocumentWithoutAFileSaysWhyWithTheBrowserInFront) {
    ModesFrame frame;
    frame.active->caption.clear();
    frame.Click(view);
    EXPECT_EQ(frame.saves, 1);
    EXPECT_THAT(frame.Browser()->pages, IsEmpty());
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.prompts.asked[0].text, cannotDisplay);
    EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(frame.prompts.asked[0].buttons, MsgButtons::OK);
    EXPECT_EQ(frame.prompts.asked[0].title, QStringLiteral("The Tarnwick"));
    EXPECT_THAT(frame.Shown(), ElementsAre(QStringLiteral("WebBrowser1")));
}

TEST(Modes, ViewThatCannotNavigateSaysWhy) {
    ModesFrame frame;
    frame.Browser()->works = false;
    ShowInternal(frame);
    EXPECT_THAT(frame.prompts.Messages(), ElementsAre(cannotDisplay));
}

TEST(Modes, WithoutControlsTheViewsShowNothing) {
    ModesFrame frame;
    frame.State<WebControls>().Load = [] { return nullptr; };
    frame.CloseDocument();
    frame.OpenDocumentFile(QStringLiteral("/site/b.htm"));
    EXPECT_EQ(frame.Design(), nullptr);
    EXPECT_EQ(frame.Browser(), nullptr);
    frame.Click(design);
    EXPECT_THAT(frame.Shown(), IsEmpty());
    EXPECT_THAT(frame.prompts.asked, IsEmpty());
    frame.prompts.messageAnswers = {MsgAnswer::No};
    frame.Click(view);
    EXPECT_THAT(frame.prompts.Messages(), ElementsAre(QStringLiteral("Save Changes?"), cannotDisplay));
    EXPECT_THAT(frame.Shown(), IsEmpty());
    frame.Click(edit);
    EXPECT_THAT(frame.Shown(), ElementsAre(QStringLiteral("txtInput")));
    frame.active->modes->PlaceAtLoad();
    frame.active->modes->PlaceAtResize();
}

TEST(Modes, AFrameWithoutAFactoryHasNoControls) {
    TestFrame frame;
    frame.active->modes = std::make_unique<DocumentModes>(frame, *frame.active);
    frame.active->modes->LoadControls();
    EXPECT_EQ(frame.active->findChild<QWidget*>(QStringLiteral("DHTMLEdit")), nullptr);
}

// 800 by 600 pixels are 12000 by 9000 twips.
TEST(Modes, AfterLoadTheDesignViewStandsInsideTheWindow) {
    ModesFrame frame;
    frame.active->modes->PlaceAtLoad();
    EXPECT_EQ(frame.Design()->geometry(), QRect(2, 1, 800 - 4, 600 - 3));
    EXPECT_NE(frame.Browser()->geometry(), frame.Design()->geometry());
}

TEST(Modes, AResizePutsBothViewsElsewhere) {
    ModesFrame frame;
    frame.active->modes->PlaceAtLoad();
    frame.active->modes->PlaceAtResize();
    const QRect place(-3, -3, 800 - 4, 600 - 23);
    EXPECT_EQ(frame.Design()->geometry(), place);
    EXPECT_EQ(frame.Browser()->geometry(), place);
}

TEST(Modes, TheFocusFollowsToTheControlInFront) {
    ModesFrame frame;
    frame.window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame.window.get()));
    frame.Browser()->setFocusPolicy(Qt::StrongFocus);
    frame.Box().setFocus();
    ASSERT_TRUE(frame.Box().hasFocus());
    frame.Click(view);
    EXPECT_TRUE(frame.Browser()->hasFocus());
    frame.Click(edit);
    EXPECT_TRUE(frame.Box().hasFocus());
}

TEST(Modes, TheCaretStaysWhereItWas) {
    ModesFrame frame;
    frame.SetText(QStringLiteral("<p>one two"));
    frame.Box().SetSelStart(4);
    frame.Box().SetSelLength(3);
    for (const QString& tab : {view, edit, design, edit}) {
        frame.prompts.messageAnswers = {MsgAnswer::No};
        frame.Click(tab);
        EXPECT_EQ(frame.Box().SelStart(), 4) << tab.toStdString();
        EXPECT_EQ(frame.Box().SelLength(), 3) << tab.toStdString();
    }
}

TEST(Modes, TheQuestionComesOnceForAllDocuments) {
    // The flag is the frame's: a document that was never in Design is asked about as well.
    ModesFrame frame;
    frame.Click(design);
    const QPointer<FakeDesign> first = frame.Design();
    frame.NewDocument();
    frame.GiveModes(QStringLiteral("/site/b.htm"));
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    frame.Click(edit);
    EXPECT_THAT(frame.prompts.Messages(), ElementsAre(QStringLiteral("Save Changes?")));
    EXPECT_THAT(first->saves, IsEmpty());
    // It holds no page, and so saves none; it is opened anew all the same.
    EXPECT_THAT(frame.opened, ElementsAre(QStringLiteral("/site/b.htm")));
}

TEST(Modes, DesignAnsPosIsEmptyAndTheOtherTwoAreTheSame) {
    ModesFrame frame;
    frame.Click(design);
    frame.active->modes->DesignAnsPos();
    EXPECT_THAT(frame.Design()->saves, IsEmpty());
    frame.active->modes->EditAnsPos();
    frame.active->modes->ViewAnsPos();
    EXPECT_THAT(frame.Design()->saves,
                ElementsAre(QStringLiteral("/site/a.htm"), QStringLiteral("/site/a.htm")));
}

TEST(Modes, PageThatCannotBeSavedIsHandedOn) {
    ModesFrame frame;
    QStringList kept;
    frame.State<UnsavedDesign>().Keep = [&](const QString& path, const QByteArray& bytes) {
        kept << path << QString::fromLatin1(bytes);
    };
    frame.Click(design);
    frame.active->modes->EditAnsPos();
    EXPECT_THAT(kept, IsEmpty());
    frame.Design()->unsaved = "page";
    frame.active->modes->EditAnsPos();
    EXPECT_THAT(kept, ElementsAre(QStringLiteral("/site/a.htm"), QStringLiteral("page")));
    // Nobody keeps it.
    frame.State<UnsavedDesign>().Keep = {};
    frame.active->modes->EditAnsPos();
}

} // namespace
