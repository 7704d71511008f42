#include "editor/views/Modes.h"

#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "editor/views/DesignVisit.h"
#include "editor/views/WebControls.h"
#include "platform/desktop/Prompts.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/Twips.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QPointer>
#include <QStyle>

namespace {

const QString editTab = QStringLiteral("Edit");
const QString designTab = QStringLiteral("Design");
const QString viewTab = QStringLiteral("View");

// Its lines end with a carriage return alone.
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

/// The document window with its frame and title: in the MDI area that is the sub-window around it.
QSize OuterSize(QWidget& window) {
    for (QWidget* around = &window; around; around = around->parentWidget()) {
        if (qobject_cast<QMdiSubWindow*>(around))
            return around->size();
    }
    return window.frameSize();
}

/// A maximised document has its frame and its title outside of what is seen of the area: its inside fills it.
/// It isn't called maximised while the area takes another size.
QSize UnseenFrame(const QWidget& window) {
    const auto* document = qobject_cast<const QMdiSubWindow*>(&window);
    if (!document || !document->widget() || document->widget()->size() != document->size())
        return {0, 0};
    const QStyle& style = *window.style();
    const int frame = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &window);
    return {2 * frame, frame + style.pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window)};
}

/// Left and top in twips, and what width and height fall short of the window's, in twips too.
void Place(QWidget& view, QSize outer, int left, int top, int lessWidth, int lessHeight) {
    view.setGeometry(Twips::ToPixels(left), Twips::ToPixels(top), outer.width() - Twips::ToPixels(lessWidth),
                     outer.height() - Twips::ToPixels(lessHeight));
}

} // namespace

DocumentModes::DocumentModes(Frame& frame, Document& document) : frame_(frame), document_(document) {}

void DocumentModes::LoadControls() {
    if (design_ && browser_)
        return;
    WebControlsFactory* factory = frame_.State<WebControls>().Factory();
    if (!factory)
        return;
    QWidget* parent = document_.txtInput().parentWidget();
    if (!design_)
        design_ = factory->MakeDesign(parent);
    if (design_)
        design_->widget().setObjectName(QStringLiteral("DHTMLEdit"));
    if (!browser_)
        browser_ = factory->MakeBrowser(parent);
    if (browser_)
        browser_->widget().setObjectName(QStringLiteral("WebBrowser1"));
}

void DocumentModes::Show(Shown shown) {
    shown_ = shown;
    RichTextBox& source = document_.txtInput();
    // A control of the strips keeps the focus. The engine's first view makes the system's window anew, and
    // then nothing has it until the window is active again.
    const QWidget* focused = QApplication::focusWidget();
    const bool mayFocus = !focused || source.parentWidget()->isAncestorOf(focused);
    QWidget* front = &source;
    if (design_ && shown == Shown::Design)
        front = &design_->widget();
    if (browser_ && shown == Shown::Browser)
        front = &browser_->widget();
    source.setVisible(shown == Shown::Source);
    if (design_)
        design_->widget().setVisible(shown == Shown::Design);
    if (browser_)
        browser_->widget().setVisible(shown == Shown::Browser);
    // Hiding a control sends its focus off to any other; the one in front takes it.
    if (mayFocus && front->isVisible())
        front->setFocus();
}

void DocumentModes::EditClicked() {
    Show(Shown::Source);
}

void DocumentModes::DesignClicked() {
    Show(Shown::Design);
    if (!design_ || document_.Caption().isEmpty())
        return;
    design_->TakeEncoding(document_.Encoding());
    design_->Load(document_.Caption());
}

void DocumentModes::ViewClicked() {
    Show(Shown::Browser);
    frame_.SaveActiveDocument();
    const QString path = document_.Caption();
    if (browser_)
        browser_->TakeEncoding(document_.Encoding());
    if (browser_ && !path.isEmpty() && browser_->Navigate(path))
        return;
    frame_.Ask().MsgBox(frame_.Window(), cannotDisplay, MsgButtons::OK, MsgIcon::Exclamation, ProgramTitle);
}

QString DocumentModes::ShownTab() const {
    switch (shown_) {
    case Shown::Design:
        return designTab;
    case Shown::Browser:
        return viewTab;
    case Shown::Source:
        break;
    }
    return editTab;
}

SaveResult DocumentModes::SaveDesign() {
    if (!design_ || design_->LoadedPath().isEmpty())
        return SaveResult::Cancelled;
    // The save waits for the page, and the window may be gone behind it, this object with it.
    Frame& frame = frame_;
    const QString path = design_->LoadedPath();
    const QPointer<QWidget> view = &design_->widget();
    const SaveResult result = frame.WriteOver(document_, [this, path] { return design_->Save(path); });
    if (result != SaveResult::Failed || !view)
        return result;
    const auto& keep = frame.State<UnsavedDesign>().Keep;
    if (const std::optional<QByteArray> page = design_->Unsaved(); page && keep)
        keep(path, *page);
    return result;
}

SaveResult DocumentModes::EditAnsPos() {
    return SaveDesign();
}

SaveResult DocumentModes::ViewAnsPos() {
    return SaveDesign();
}

void DocumentModes::DesignAnsPos() {}

void DocumentModes::PlaceAtLoad() {
    if (design_)
        Place(design_->widget(), OuterSize(document_.Window()), 30, 15, 60, 40);
}

void DocumentModes::PlaceAtResize() {
    const QSize outer = OuterSize(document_.Window()) + UnseenFrame(document_.Window());
    if (design_)
        Place(design_->widget(), outer, -50, -50, 60, 340);
    if (browser_)
        Place(browser_->widget(), outer, -50, -50, 60, 340);
}

namespace {

DocumentModes* ActiveModes(Frame& frame) {
    Document* document = frame.ActiveForm();
    return document ? document->Modes() : nullptr;
}

/// The tab of what is in front: the one that was clicked is not switched to.
void StayInMode(Frame& frame) {
    const DocumentModes* modes = ActiveModes(frame);
    const QString shown = modes ? modes->ShownTab() : editTab;
    frame.SelectModeTab(shown);
    if (shown == designTab)
        frame.State<DesignVisit>().Begin();
}

/// The active document comes out of Design: saves what was done there and opens the file anew. A document
/// that has no file keeps its window and its text. False where the user wants the file left as others wrote
/// it: what was done in Design stays there.
bool Reopen(Frame& frame, SaveResult (DocumentModes::*save)()) {
    Document* document = frame.ActiveForm();
    const QString fileName = document->Caption();
    DocumentModes* modes = document->Modes();
    if (modes && (modes->*save)() == SaveResult::Refused) {
        StayInMode(frame);
        return false;
    }
    if (fileName.isEmpty())
        return true;
    document->Unload();
    frame.OpenDocumentFile(fileName);
    return true;
}

bool WantsChangesSaved(Frame& frame) {
    return frame.Ask().MsgBox(frame.Window(), QStringLiteral("Save Changes?"), MsgButtons::YesNo,
                              MsgIcon::None, ProgramTitle) == MsgAnswer::Yes;
}

/// What others wrote is not to be edited as if it were this document: where that is to be left as it is, the
/// document stays in front.
void ShowDesign(Frame& frame) {
    if (frame.SaveActiveDocument() == SaveResult::Refused)
        return StayInMode(frame);
    if (DocumentModes* modes = ActiveModes(frame))
        modes->DesignClicked();
    frame.State<DesignVisit>().Begin();
}

} // namespace

void ModeStrip_Click(Frame& frame, const QString& selected) {
    if (!frame.ActiveForm())
        return;
    // Cleared before the question: the answer decides for this visit to the design view, and a further click
    // is a further question.
    const bool fromDesign = frame.State<DesignVisit>().End();
    if (selected == editTab && fromDesign && WantsChangesSaved(frame) &&
        !Reopen(frame, &DocumentModes::EditAnsPos))
        return;
    if (selected == viewTab && fromDesign && WantsChangesSaved(frame)) {
        if (!Reopen(frame, &DocumentModes::ViewAnsPos))
            return;
        frame.SelectModeTab(viewTab);
    }
    if (selected == designTab)
        ShowDesign(frame);
    else if (selected == viewTab)
        ShowInternal(frame);
    else if (DocumentModes* modes = ActiveModes(frame))
        modes->EditClicked();
}

void ShowInternal(Frame& frame) {
    if (DocumentModes* modes = ActiveModes(frame))
        modes->ViewClicked();
}
