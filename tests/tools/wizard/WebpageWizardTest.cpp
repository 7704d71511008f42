// The wizard from its first box to the page: each step, each way out, and what a person may do meanwhile.
#include "tools/wizard/WebpageWizard.h"

#include "dialogs/DialogState.h"
#include "platform/values/Dates.h"
#include "tools/ToolTest.h"
#include "tools/wizard/frmWizard.h"

#include <functional>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTimer>

/// Stands in for the dialogs that build a tag.
class TagStandIn final : public QDialog {
    Q_OBJECT

  public:
    TagStandIn(Frame& frame, const QString& name) : QDialog(frame.Window()), frame_(frame) {
        setObjectName(name);
    }
    /// As their OK does it: writes the tag, tells it, unloads.
    void Accept(const QString& tag) {
        frame_.ActiveForm()->txtInput().SetSelText(tag);
        frame_.State<DialogState>().TellBuilt(tag);
        reject();
    }
    void reject() override { frame_.LoadedForms().Unload(*this); }

  private:
    Frame& frame_;
};

namespace {

const char16_t* const welcome =
    u"Welcome to Webpage Wizard!This tool will take you through a few steps  and create "
    u"a basic webpage based on your input.";
const char16_t* const colors = u"Choose your document's colors.";
const char16_t* const picture = u"Now you can add a picture to your page.";
const char16_t* const paragraphs =
    u"Now add a few paragraphs of information.\r\r"
    u"Press the NEXT button to add a new paragraph, and the FINISH button when you are done.";
const char16_t* const titleQuestion = u"Enter the title of the page:";
const char16_t* const headingQuestion = u"Now add the top heading of the page";
const char16_t* const captionQuestion = u"Add a caption to the bottom of the picture:";

using Step = std::function<void()>;

class WebpageWizardTest : public ToolTest {
  protected:
    WebpageWizardTest() {
        frame.CloseDocument();
        CommandSet& commands = frame.Commands();
        commands.Set(T(u"mnuNew"), [this] { frame.NewDocument(); });
        commands.Set(T(u"mnuSave"), [this] { frame.active->caption = savedAs; });
        commands.Set(T(u"tb_body"), [this] { ShowDialog(T(u"frmBody"), onBody); });
        commands.Set(T(u"tb_image"), [this] { ShowDialog(T(u"frmGraphicLink"), onImage); });
        frame.prompts.messageAnswers = {MsgAnswer::OK, MsgAnswer::OK};
        frame.prompts.inputAnswers = {T(u"Title"), T(u"Heading"), T(u"Caption")};
        onBody = [this] { Dialog(u"frmBody").Accept(T(u"<BODY TEXT=x>")); };
        onImage = [this] { Dialog(u"frmGraphicLink").Accept(T(u"<IMG>")); };
        onParagraphs = [this] { Press(*Form<frmWizard>(), u"cmdFinish"); };
    }
    void RunWizard() {
        // frmWizard comes up modal: whoever acts on it has to come out of the event loop.
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            if (!Form<frmWizard>() || !Form<frmWizard>()->isVisible())
                return;
            poll.stop();
            onParagraphs();
        });
        poll.start(0);
        Run(u"mnuWizard");
    }
    TagStandIn& Dialog(const char16_t* name) {
        auto* dialog = qobject_cast<TagStandIn*>(frame.LoadedForms().Find(T(name)));
        if (!dialog)
            qFatal("no %s", qPrintable(T(name)));
        return *dialog;
    }
    QLineEdit& txtAddMe() { return Control<QLineEdit>(*Form<frmWizard>(), u"txtAddMe"); }
    static QString Created() {
        return T(u"</H5>Created: ") + LongDate(QDate::currentDate(), QLocale()) + T(u"</H5>");
    }
    QString Page() { return Box().Text(); }

    QString savedAs = T(u"/home/u/new.htm");
    Step onBody, onImage, onParagraphs;

  private:
    void ShowDialog(const QString& name, const Step& step) {
        if (!frame.LoadedForms().Find(name))
            frame.LoadedForms().Add(new TagStandIn(frame, name));
        frame.LoadedForms().Find(name)->show();
        QTimer::singleShot(0, frame.Window(), step);
    }
};

TEST_F(WebpageWizardTest, AsksItsQuestionsInTheirOrder) {
    RunWizard();
    EXPECT_EQ(Questions(), (QStringList{T(welcome), T(titleQuestion), T(colors), T(headingQuestion),
                                        T(picture), T(captionQuestion), T(paragraphs)}));
    for (const auto& asked : frame.prompts.asked) {
        EXPECT_EQ(asked.title, T(u"Webpage Wizard"));
        EXPECT_EQ(asked.icon, MsgIcon::None);
    }
    EXPECT_EQ(frame.prompts.asked[0].buttons, MsgButtons::OKCancel);
    EXPECT_EQ(frame.prompts.asked[2].buttons, MsgButtons::OK);
    EXPECT_EQ(frame.prompts.asked[4].buttons, MsgButtons::OKCancel);
    EXPECT_EQ(frame.prompts.asked[6].buttons, MsgButtons::OK);
}

TEST_F(WebpageWizardTest, EachQuestionHasItsDefault) {
    RunWizard();
    EXPECT_EQ(frame.prompts.asked[1].standard, T(u"My Webpage"));
    EXPECT_EQ(frame.prompts.asked[3].standard, T(u"Welcome to my webpage!"));
    EXPECT_EQ(frame.prompts.asked[5].standard, T(u"This is my picture"));
}

TEST_F(WebpageWizardTest, WritesThePageFromItsParts) {
    onParagraphs = [this] {
        txtAddMe().setText(T(u"a"));
        Press(*Form<frmWizard>(), u"cmdNext");
        txtAddMe().setText(T(u"b"));
        Press(*Form<frmWizard>(), u"cmdFinish");
    };
    RunWizard();
    EXPECT_EQ(Page(), T(u"<!--This document was created with The Tarnwick-->\r\n<HTML>\r\n<HEAD>\r\n"
                        u"<TITLE>Title</TITLE>\r\n</HEAD>\r\n<BODY TEXT=x>\r\n"
                        u"<CENTER><H1>Heading</H1>\r\n<BR>\r\n<IMG>\r\n<BR>\r\nCaption\r\n</CENTER>\r\n\r\n"
                        u"<H3>a</H3>\r\n\r\n<H3>b</H3>\r\n\r\n\r\n\r\n") +
                          Created() + T(u"\r\n</BODY>\r\n\r\n</HTML>"));
    EXPECT_EQ(frame.active->caption, savedAs);
    // Only its name was saved.
    EXPECT_TRUE(frame.active->modified);
    EXPECT_FALSE(frame.State<DialogState>().TagBuilt);
    // The page is coloured: the heading's text stands out from its tag.
    const int heading = static_cast<int>(Page().indexOf(T(u"<H1>")));
    EXPECT_NE(Box().ColorAt(heading), Box().ColorAt(heading + 4));
}

TEST_F(WebpageWizardTest, OneUndoTakesThePageBack) {
    RunWizard();
    Box().Send(RichTextBox::Message::Undo);
    EXPECT_EQ(Page(), QString());
}

TEST_F(WebpageWizardTest, EmptyAnswersGoOn) {
    frame.prompts.inputAnswers = {QString(), QString(), QString()};
    // Its answer is of no use.
    frame.prompts.messageAnswers = {MsgAnswer::OK, MsgAnswer::Cancel};
    RunWizard();
    EXPECT_EQ(Page(), T(u"<!--This document was created with The Tarnwick-->\r\n<HTML>\r\n<HEAD>\r\n"
                        u"<TITLE></TITLE>\r\n</HEAD>\r\n<BODY TEXT=x>\r\n"
                        u"<CENTER>\r\n < BR > \r\n<IMG>\r\n<BR>\r\n\r\n</CENTER>\r\n\r\n\r\n\r\n") +
                          Created() + T(u"\r\n</BODY>\r\n\r\n</HTML>"));
}

TEST_F(WebpageWizardTest, WithoutColoringThePageEndsAsTheColoringPassLeavesIt) {
    frame.Store().WriteFlag(Keys::ColoredTags, false);
    RunWizard();
    EXPECT_TRUE(Page().endsWith(T(u"\r\n</BODY>\r\n\r\n</HTML>\\cf1 "))) << Page().right(40).toStdString();
}

TEST_F(WebpageWizardTest, TheDateHasTheLettersThatTheDocumentHolds) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Greek));
    const QString date = LongDate(QDate::currentDate(), QLocale());
    for (const bool colored : {true, false}) {
        for (const CharacterSet holds : {CharacterSet::CodePage1252, CharacterSet::Unicode}) {
            frame.Store().WriteFlag(Keys::ColoredTags, colored);
            frame.prompts.messageAnswers = {MsgAnswer::OK, MsgAnswer::OK};
            frame.prompts.inputAnswers = {T(u"Title"), T(u"Heading"), T(u"Caption")};
            onParagraphs = [this, holds] {
                Box().SetHolds(holds);
                Press(*Form<frmWizard>(), u"cmdFinish");
            };
            RunWizard();
            EXPECT_TRUE(Page().contains(T(u"</H5>Created: ") + HeldBy(holds, date) + T(u"</H5>")))
                << Page().right(120).toStdString();
        }
    }
    QLocale::setDefault(before);
}

TEST_F(WebpageWizardTest, CancelInTheFirstBoxLeavesNoNewDocument) {
    frame.prompts.messageAnswers = {MsgAnswer::Cancel};
    Run(u"mnuWizard");
    EXPECT_EQ(Questions(), QStringList{T(welcome)});
    EXPECT_EQ(frame.active, nullptr);
}

TEST_F(WebpageWizardTest, APageThatWasNotNamedEndsIt) {
    savedAs.clear();
    Run(u"mnuWizard");
    ASSERT_EQ(Questions(),
              (QStringList{T(welcome), T(u"You must save the document to continue.  Please try again.")}));
    EXPECT_EQ(frame.prompts.asked[1].icon, MsgIcon::Critical);
    EXPECT_EQ(frame.prompts.asked[1].title, T(u"Webpage Wizard"));
    EXPECT_EQ(Page(), QString());
}

TEST_F(WebpageWizardTest, DialogsClosedWithoutOKBuildNothing) {
    onBody = [this] { Dialog(u"frmBody").reject(); };
    onImage = [this] { Dialog(u"frmGraphicLink").close(); };
    RunWizard();
    EXPECT_TRUE(Page().contains(T(u"</HEAD>\r\n<BODY>\r\n<CENTER>")));
    EXPECT_TRUE(Page().contains(T(u"</H1>\r\n<BR>\r\n\r\n<BR>\r\nCaption")));
}

TEST_F(WebpageWizardTest, ABodyTagIsNotWrittenAgainForAPicture) {
    onImage = [this] { Dialog(u"frmGraphicLink").reject(); };
    RunWizard();
    EXPECT_EQ(Page().count(T(u"<BODY")), 1);
    EXPECT_TRUE(Page().contains(T(u"<BODY TEXT=x>")));
}

TEST_F(WebpageWizardTest, ATagThatWasBuiltBeforeCountsForNothing) {
    frame.State<DialogState>().TellBuilt(T(u"<OLD>"));
    onBody = [this] { Dialog(u"frmBody").reject(); };
    RunWizard();
    EXPECT_FALSE(Page().contains(T(u"<OLD>")));
}

// The wait is for a tag, whichever dialog tells it.
TEST_F(WebpageWizardTest, TheImageDialogEndsTheWaitForTheBody) {
    Step onOther = onImage;
    bool early = true;
    onBody = [&] { Run(u"tb_image"); };
    onImage = [&] {
        Dialog(u"frmGraphicLink").Accept(early ? T(u"<IMG EARLY>") : T(u"<IMG>"));
        early = false;
    };
    RunWizard();
    EXPECT_TRUE(Page().contains(T(u"</HEAD>\r\n<IMG EARLY>\r\n<CENTER>")));
    EXPECT_TRUE(Dialog(u"frmBody").isVisible());
}

TEST_F(WebpageWizardTest, AnotherFormThatGoesEndsNoWait) {
    onBody = [this] {
        auto* other = new TagStandIn(frame, T(u"frmElse"));
        frame.LoadedForms().Add(other);
        other->reject();
        QTimer::singleShot(0, frame.Window(), [this] { Dialog(u"frmBody").Accept(T(u"<BODY LATE>")); });
    };
    RunWizard();
    EXPECT_TRUE(Page().contains(T(u"<BODY LATE>")));
}

TEST_F(WebpageWizardTest, APageThatIsClosedMeanwhileEndsItSilently) {
    onBody = [this] { frame.CloseDocument(); };
    RunWizard();
    EXPECT_EQ(Questions(), (QStringList{T(welcome), T(titleQuestion), T(colors)}));
    Dialog(u"frmBody").reject();
    // It can be chosen again.
    frame.prompts.messageAnswers = {MsgAnswer::Cancel};
    Run(u"mnuWizard");
    EXPECT_EQ(frame.prompts.asked.size(), 4);
}

TEST_F(WebpageWizardTest, ClosingItInTheSecondWaitLeavesOtherDocumentsAlone) {
    frame.NewDocument();
    TestDocument* other = frame.active;
    other->input->SetText(T(u"other"));
    onImage = [&] {
        frame.CloseDocument();
        frame.active = other;
    };
    RunWizard();
    EXPECT_EQ(other->input->Text(), T(u"other"));
    EXPECT_EQ(Questions().last(), T(picture));
}

TEST_F(WebpageWizardTest, ADocumentThatAPersonTurnsToIsLeftAlone) {
    frame.NewDocument();
    TestDocument* other = frame.active;
    other->input->SetText(T(u"other"));
    TestDocument* page = nullptr;
    onImage = [&] {
        page = frame.active;
        frame.ActivateDocument(*other);
        Dialog(u"frmGraphicLink").reject();
    };
    RunWizard();
    EXPECT_EQ(other->input->Text(), T(u"other"));
    ASSERT_TRUE(page);
    EXPECT_EQ(frame.active, page);
    EXPECT_TRUE(Page().contains(T(u"<TITLE>Title</TITLE>")));
}

TEST_F(WebpageWizardTest, ChosenAgainWhileItWaitsItDoesNothing) {
    onBody = [this] {
        const auto asked = frame.prompts.asked.size();
        Run(u"mnuWizard");
        EXPECT_EQ(frame.prompts.asked.size(), asked);
        Dialog(u"frmBody").reject();
    };
    RunWizard();
    EXPECT_TRUE(Page().contains(T(u"<TITLE>Title</TITLE>")));
}

TEST_F(WebpageWizardTest, TheLastStepLooksAsItShould) {
    onParagraphs = [this] {
        const frmWizard& form = *Form<frmWizard>();
        EXPECT_TRUE(form.isModal());
        EXPECT_EQ(form.parentWidget(), frame.Window());
        EXPECT_EQ(form.windowTitle(), T(u"Webpage Wizard"));
        const auto* label = form.findChild<QLabel*>();
        EXPECT_EQ(label->text().remove(u'&'), T(u"Add a Paragraph:"));
        EXPECT_EQ(label->buddy(), &txtAddMe());
        EXPECT_EQ(Control<QPushButton>(*Form<frmWizard>(), u"cmdNext").text(), T(u"&Next >"));
        EXPECT_EQ(Control<QPushButton>(*Form<frmWizard>(), u"cmdFinish").text(), T(u"&Finish"));
        Press(*Form<frmWizard>(), u"cmdFinish");
    };
    RunWizard();
    EXPECT_EQ(Form<frmWizard>(), nullptr);
}

TEST_F(WebpageWizardTest, NextByEnterEmptiesTheFieldAndKeepsTheKeysThere) {
    onParagraphs = [this] {
        Form<frmWizard>()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Form<frmWizard>()));
        txtAddMe().setFocus();
        QTest::keyClicks(&txtAddMe(), T(u"one"));
        QTest::keyClick(&txtAddMe(), Qt::Key_Return);
        EXPECT_EQ(txtAddMe().text(), QString());
        Press(*Form<frmWizard>(), u"cmdNext");
        EXPECT_TRUE(txtAddMe().hasFocus());
        QTest::keyClicks(&txtAddMe(), T(u"two"));
        Press(*Form<frmWizard>(), u"cmdFinish");
    };
    RunWizard();
    EXPECT_TRUE(
        Page().contains(T(u"</CENTER>\r\n\r\n<H3>one</H3>\r\n\r\n<H3>two</H3>\r\n\r\n\r\n\r\n</H5>")));
}

TEST_F(WebpageWizardTest, ALastStepThatIsClosedAddsNoParagraphs) {
    onParagraphs = [this] {
        txtAddMe().setText(T(u"one"));
        Press(*Form<frmWizard>(), u"cmdNext");
        QTest::keyClick(&txtAddMe(), Qt::Key_Escape);
    };
    RunWizard();
    EXPECT_FALSE(Page().contains(T(u"<H3>")));
    EXPECT_TRUE(Page().contains(T(u"</CENTER>\r\n\r\n\r\n\r\n</H5>")));
    EXPECT_EQ(Form<frmWizard>(), nullptr);
}

} // namespace

#include "WebpageWizardTest.moc"
