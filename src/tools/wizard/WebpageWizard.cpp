#include "tools/wizard/WebpageWizard.h"

#include "dialogs/DialogState.h"
#include "editor/color/ColorizeText.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/text/RichTextBox.h"
#include "tools/wizard/frmWizard.h"
#include "tools/wizard/WaitForTag.h"
#include "tools/wizard/WizardPage.h"

#include <QDate>
#include <QLocale>

namespace {

struct WizardState {
    bool running = false;
};

/// One run, from the first box to the page.
class Wizard {
  public:
    explicit Wizard(Frame& frame) : frame_(frame), dialogs_(frame.State<DialogState>()) {}

    void Run() {
        dialogs_.TagBuilt = false;
        if (!Welcome() || !NewPage())
            return;
        text_ = WizardPage::Head(Ask("Enter the title of the page:", "My Webpage"));
        if (!AddBody())
            return;
        text_ += WizardPage::Heading(Ask("Now add the top heading of the page", "Welcome to my webpage!"));
        if (!AddPicture())
            return;
        text_ +=
            WizardPage::Caption(Ask("Add a caption to the bottom of the picture:", "This is my picture"));
        AddParagraphs();
        Write();
    }

  private:
    MsgAnswer Box(const char* text, MsgButtons buttons = MsgButtons::OK, MsgIcon icon = MsgIcon::None) {
        return frame_.Ask().MsgBox(frame_.Window(), QString::fromLatin1(text), buttons, icon, title_);
    }
    QString Ask(const char* prompt, const char* standard) {
        return frame_.Ask().InputBox(frame_.Window(), QString::fromLatin1(prompt), title_,
                                     QString::fromLatin1(standard));
    }

    bool Welcome() {
        return Box("Welcome to Webpage Wizard!"
                   "This tool will take you through a few steps "
                   " and create a basic webpage based on your input.",
                   MsgButtons::OKCancel) != MsgAnswer::Cancel;
    }

    /// The page needs a name, or there is no wizard.
    bool NewPage() {
        frame_.Commands().Run(QStringLiteral("mnuNew"));
        frame_.Commands().Run(QStringLiteral("mnuSave"));
        page_ = frame_.ActiveForm();
        if (page_ && !page_->Caption().isEmpty()) {
            window_ = &page_->Window();
            return true;
        }
        Box("You must save the document to continue.  Please try again.", MsgButtons::OK, MsgIcon::Critical);
        return false;
    }

    bool AddBody() {
        dialogs_.LastBuiltTag.clear();
        Box("Choose your document's colors.");
        if (!Build("tb_body", "frmBody"))
            return false;
        text_ += WizardPage::Body(dialogs_.LastBuiltTag);
        return true;
    }

    bool AddPicture() {
        // Either answer goes on.
        Box("Now you can add a picture to your page.", MsgButtons::OKCancel);
        if (!Build("tb_image", "frmGraphicLink"))
            return false;
        text_ += WizardPage::Picture(dialogs_.LastBuiltTag);
        return true;
    }

    /// Lets a dialog build its tag. What it wrote into the page goes again.
    bool Build(const char* command, const char* form) {
        WaitForTag(frame_, *window_, QString::fromLatin1(command), QString::fromLatin1(form));
        if (!TurnToPage())
            return false;
        page_->txtInput().SetText(QString());
        return true;
    }

    void AddParagraphs() {
        Box("Now add a few paragraphs of information.\r\r"
            "Press the NEXT button to add a new paragraph, and the FINISH button when you are done.");
        dialogs_.LastBuiltTag.clear();
        frame_.LoadedForms().Load<frmWizard>(frame_).exec();
        text_ += WizardPage::End(dialogs_.LastBuiltTag, QDate::currentDate(), QLocale());
    }

    void Write() {
        if (TurnToPage())
            ColorizeText(frame_, text_, KeepDocument::No, CaretToTop::No);
    }

    /// A person may have gone to another document: that one is left alone. False where the page was closed.
    bool TurnToPage() {
        if (!frame_.LoadedForms().Holds(window_))
            return false;
        if (frame_.ActiveForm() != page_)
            frame_.ActivateDocument(*page_);
        return true;
    }

    const QString title_ = QStringLiteral("Webpage Wizard");
    Frame& frame_;
    DialogState& dialogs_;
    Document* page_ = nullptr;
    const QWidget* window_ = nullptr; ///< the page's, which may be gone
    QString text_;
};

} // namespace

void mnuWizard_Click(Frame& frame) {
    bool& running = frame.State<WizardState>().running;
    if (running)
        return;
    running = true;
    Wizard(frame).Run();
    running = false;
}
