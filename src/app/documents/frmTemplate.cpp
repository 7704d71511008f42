#include "app/documents/frmTemplate.h"

#include "app/documents/DocumentPaths.h"
#include "app/documents/EncodingNote.h"
#include "app/documents/WordWrap.h"
#include "app/run/ProgramState.h"
#include "dialogs/Icons.h"
#include "editor/aids/Aids.h"
#include "editor/autofill/frmDropDown.h"
#include "editor/color/WriteColoredText.h"
#include "editor/frame/EditorFont.h"
#include "editor/frame/EditorOptions.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "editor/typing/TypingEngine.h"
#include "editor/views/Modes.h"
#include "platform/desktop/Prompts.h"
#include "platform/desktop/WindowState.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/Twips.h"
#include "platform/values/Values.h"
#include "tools/timer/frmTime.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QMdiArea>
#include <QMenu>
#include <QTimer>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// So much larger than the window's inside is the text, so that its border lies outside.
constexpr int borderTwips = 75;

// The window's own system menu takes Ctrl+W as well as Ctrl+F4: two actions on one key, and neither would
// work.
void LeaveCtrlWToTheFileMenu(QMenu* systemMenu) {
    for (QAction* entry : systemMenu->actions())
        if (entry->shortcuts().contains(QKeySequence(Qt::CTRL | Qt::Key_W)))
            entry->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F4));
}

} // namespace

frmTemplate::frmTemplate(Frame& frame)
    : frame_(frame), client_(new QWidget(this)), txtInput_(new RichTextBox(client_)),
      timer1_(new QTimer(this)) {
    setObjectName(u"frmTemplate"_s);
    txtInput_->setObjectName(u"txtInput"_s);
    txtInput_->setAccessibleName(tr("Document text"));
    txtInput_->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    txtInput_->setLineWidth(2);
    client_->setFocusProxy(txtInput_);
    client_->installEventFilter(this);
    setWidget(client_);
    setWindowIcon(ProgramIcon());
    LeaveCtrlWToTheFileMenu(systemMenu());

    timer1_->setObjectName(u"Timer1"_s);
    new TypingEngine(frame_, *this, *timer1_, this);
    modes_ = std::make_unique<DocumentModes>(frame_, *this);
}

frmTemplate::~frmTemplate() = default;

void frmTemplate::Form_Load() {
    // Through its own control: with colouring off the call empties a selection, and the active one is still
    // another document's.
    ResetColoredText(frame_, *this);
    ReadSettings();
    ++frame_.State<ProgramState>().DocumentCount;
    ShowInItsState();
    modes_->PlaceAtLoad();
}

void frmTemplate::ShowInItsState() {
    const int state = Values::WholeVal(frame_.State<ProgramState>().TemplateWindowState);
    if (state == 2)
        showMaximized();
    else
        show();
}

void frmTemplate::ReadSettings() {
    const Settings& store = frame_.Store();
    if (store.ReadFlag(Keys::UseMSIE))
        modes_->LoadControls();
    SetWordWrap(*txtInput_, store.ReadFlag(Keys::WordWrap));
    if (store.ReadFlag(Keys::UseWebTimer))
        ShowWebTimer(frame_);
    Form_Resize();
    if (const int background = frame_.State<EditorOptions>().Background2; background > 0)
        txtInput_->SetBackColor(background);
    txtInput_->SetFont(StoredEditorFont(store));
    AttachAids(frame_, *this, this);
}

void frmTemplate::TakeBackground() {
    txtInput_->SetBackColor(frame_.State<EditorOptions>().Background2);
}

void frmTemplate::Form_Activate() {
    TakeBackground();
    FocusFront(Qt::OtherFocusReason);
    TellEncoding(frame_, *this);
}

void frmTemplate::FocusFront(Qt::FocusReason reason) {
    if (!txtInput_->isHidden())
        return txtInput_->SetFocus();
    for (QWidget* view : client_->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (view->isVisible())
            return view->setFocus(reason);
}

void frmTemplate::Form_Resize() {
    const int border = Twips::ToPixels(borderTwips);
    const QPoint corner(-txtInput_->frameWidth(), -txtInput_->frameWidth());
    txtInput_->setGeometry(QRect(corner, client_->size() + QSize(border, border)));
    if (modes_)
        modes_->PlaceAtResize();
}

QSize frmTemplate::sizeHint() const {
    const QMdiArea* area = mdiArea();
    return area ? area->viewport()->size() * 3 / 4 : QMdiSubWindow::sizeHint();
}

void frmTemplate::SetEncoding(TextEncoding encoding) {
    encoding_ = encoding;
    txtInput_->SetHolds(CharactersOf(encoding));
    Q_EMIT Altered();
}

void frmTemplate::SetModified(bool modified) {
    if (std::exchange(modified_, modified) != modified)
        Q_EMIT ModifiedChanged();
    Q_EMIT Altered();
}

void frmTemplate::SetCaption(const QString& path) {
    caption_ = path;
    QString title = path;
    // A title takes "[*]" for the place of a change mark; doubled it is just text.
    setWindowTitle(title.replace(u"[*]"_s, u"[*][*]"_s));
    Q_EMIT Altered();
}

MsgAnswer frmTemplate::AskAboutSaving() {
    frame_.LoadedForms().Unload<frmDropDown>();
    if (!Modified())
        return MsgAnswer::Yes;
    // The question is about the window that a person sees on top, and saving works on the active one.
    frame_.ActivateDocument(*this);
    const MsgAnswer answer =
        frame_.Ask().MsgBox(frame_.Window(), u"Do you want to save?"_s, MsgButtons::YesNoCancel,
                            MsgIcon::Question, u"Save Document?"_s);
    if (answer == MsgAnswer::Yes && frame_.SaveActiveDocument() == SaveResult::Refused)
        return MsgAnswer::Cancel;
    // The changes are given up: nobody is to ask again, or to keep them.
    if (answer == MsgAnswer::No)
        SetModified(false);
    return answer;
}

bool frmTemplate::Form_QueryUnload() {
    if (AskAboutSaving() == MsgAnswer::Cancel)
        return false;
    Q_EMIT frame_.State<DocumentPaths>().Left(Caption());
    auto& program = frame_.State<ProgramState>();
    --program.DocumentCount;
    program.TemplateWindowState = WindowStateDigit(*this);
    frame_.LoadedForms().Unload<frmTime>();
    return true;
}

bool frmTemplate::Unload() {
    if (stage_ != Open)
        return stage_ == Unloaded;
    // A second request to close while the question is up gets the answer Cancel.
    stage_ = Asking;
    stage_ = Form_QueryUnload() ? Unloaded : Open;
    if (stage_ == Unloaded)
        TakeDown();
    return stage_ == Unloaded;
}

bool frmTemplate::SaveAtSessionEnd() {
    if (stage_ != Open)
        return stage_ == Unloaded;
    stage_ = Asking;
    const MsgAnswer answer = AskAboutSaving();
    stage_ = Open;
    return answer == MsgAnswer::No ? Unload() : answer == MsgAnswer::Yes;
}

void frmTemplate::TakeDown() {
    timer1_->stop();
    Q_EMIT Going();
    // Its handlers may still be running, so it is deleted later; from now on no one finds it.
    frame_.LoadedForms().Remove(this);
    QMdiArea* area = mdiArea();
    const bool maximised = isMaximized();
    hide();
    deleteLater();
    if (!area)
        return;
    area->removeSubWindow(this);
    Document* next = frame_.ActiveForm();
    if (!next)
        return;
    frame_.ActivateDocument(*next);
    // The window that comes to sight takes over the state of the one that filled the area.
    if (maximised && !next->Window().isMinimized())
        next->Window().showMaximized();
}

void frmTemplate::showEvent(QShowEvent* event) {
    QMdiSubWindow::showEvent(event);
    // A maximised window puts its title into the frame's when the title changes, but only while it is
    // visible: one that took its path before the frame was on the screen has to tell it now.
    const QMdiArea* area = mdiArea();
    if (!area || frame_.ActiveForm() != this)
        return;
    QEvent titleChange(QEvent::WindowTitleChange);
    QCoreApplication::sendEvent(this, &titleChange);
}

void frmTemplate::closeEvent(QCloseEvent* event) {
    event->setAccepted(Unload());
}

bool frmTemplate::eventFilter(QObject* watched, QEvent* event) {
    if (watched == client_ && event->type() == QEvent::Resize)
        Form_Resize();
    return QMdiSubWindow::eventFilter(watched, event);
}
