#include "app/window/frmTarnwick.h"

#include "app/documents/Arrivals.h"
#include "app/documents/DocumentPaths.h"
#include "app/documents/FileCommands.h"
#include "app/documents/frmTemplate.h"
#include "app/documents/OpenDocument.h"
#include "app/documents/Preview.h"
#include "app/documents/SaveOver.h"
#include "app/documents/Skeletons.h"
#include "app/help/HelpCommands.h"
#include "app/recovery/Recovery.h"
#include "app/run/frmSplash.h"
#include "app/run/ProgramState.h"
#include "app/run/Shutdown.h"
#include "app/run/WebPlugin.h"
#include "app/surface/CommandActions.h"
#include "app/surface/EditCommands.h"
#include "app/surface/MenuTree.h"
#include "app/surface/ToolbarCommands.h"
#include "app/surface/UserButtons.h"
#include "app/surface/WindowCommands.h"
#include "app/window/ChangedFiles.h"
#include "app/window/DocumentTabs.h"
#include "app/window/FileDrop.h"
#include "app/window/FrameFocus.h"
#include "app/window/FrameHints.h"
#include "app/window/KnownForms.h"
#include "app/window/LeaveByEscape.h"
#include "app/window/ModeStrip.h"
#include "app/window/OpenDocuments.h"
#include "app/window/ShutOut.h"
#include "app/window/StatusPanels.h"
#include "app/window/ToolbarHolder.h"
#include "builders/commands/EditTag.h"
#include "builders/commands/MenuTagCommands.h"
#include "editor/spelling/SpellChecker.h"
#include "editor/spelling/SpellCommands.h"
#include "editor/views/Modes.h"
#include "editor/views/WebControls.h"
#include "platform/text/RichTextBox.h"
#include "styles/StyleCommands.h"
#include "tools/ToolCommands.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// What a frame that never ran takes on a screen with room for it, in pixels.
constexpr QSize firstSize(960, 680);
// New windows stand one step further than the last, and start over where they would leave the area.
constexpr int cascadeStep = 26;
constexpr int cascadeSteps = 6;

/// What a window can take up at most. The desktop draws a title bar and edges around it, and as it is centred
/// without them, as much room as above it must be left below.
QSize RoomInside(const QWidget& window) {
    const QStyle& style = *window.style();
    const int edge = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const int title = style.pixelMetric(QStyle::PM_TitleBarHeight);
    return window.screen()->availableSize() - 2 * QSize(edge, title + edge);
}

QWidget* Strip(const QString& name, QWidget* content) {
    auto* strip = new QWidget;
    strip->setObjectName(name);
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(content);
    row->addStretch();
    return strip;
}

} // namespace

frmTarnwick::frmTarnwick(Settings& store, Prompts& ask)
    : store_(store), ask_(ask), forms_(new Forms(this)), area_(new QMdiArea(this)),
      documents_(new OpenDocuments(*area_, this)), focus_(new FrameFocus(*this, *area_, *documents_)),
      tabStrip2_(new DocumentTabs(this)), arrivals_(new Arrivals(*this, this)),
      recovery_(new Recovery(*this, this)), statusBar_(new StatusBar(this)),
      changedFiles_(new ChangedFiles(*this, *documents_, *statusBar_)), vsSpell1_(new SpellChecker(this)) {
    setObjectName(u"frmTarnwick"_s);
    vsSpell1_->setObjectName(u"VSSpell1"_s);
    setContextMenuPolicy(Qt::NoContextMenu);
    forms_->Add(this);
    FillCommands();
    BuildMenuBar();
    BuildStrips();
    EnableCommands(*this, commands_);
    HookWindow();
    AddHints(*this, *area_, *documents_);
    resize(firstSize.boundedTo(RoomInside(*this)));
}

frmTarnwick::~frmTarnwick() {
    // Documents and dialogs reach the frame as they go: they go first.
    while (forms_->Count() > 1)
        delete forms_->At(forms_->Count() - 1);
}

void frmTarnwick::FillCommands() {
    commands_.Set(u"mnuNew"_s, [this] { NewDocument(); });
    FillFileCommands(*this);
    FillEditCommands(*this);
    FillWindowCommands(commands_, *area_);
    FillSkeletonCommands(*this);
    FillPreviewCommands(*this);
    FillMenuTagCommands(*this);
    FillToolbarCommands(*this);
    FillSpellCommands(*this, *vsSpell1_);
    FillStyleCommands(*this);
    FillToolCommands(*this);
    FillHelpCommands(*this);
    FillFormCommands(*this, KnownForms());
    FillEditTagCommand(*this);
    UseWebPlugin(State<WebControls>());
}

void frmTarnwick::BuildMenuBar() {
    BuildMenus(*menuBar(), *this);
    auto* mMain = menuBar()->findChild<QMenu*>(u"mMain"_s);
    connect(mMain, &QMenu::aboutToShow, this, [this] { UpdateEditMenu(*this); });
    ListWindows(*menuBar()->findChild<QMenu*>(u"mnuWindow"_s), *this, *area_);
}

void frmTarnwick::BuildStrips() {
    picture3_ = new ToolbarHolder(*this);
    picture2_ = new UserButtons(*this);
    picture4_ = new ModeStrip(*this);
    connect(picture4_, &ModeStrip::Click, this,
            [this](const QString& mode) { ModeStrip_Click(*this, mode); });
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);

    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(picture3_);
    column->addWidget(picture2_);
    column->addWidget(Strip(u"Picture1"_s, tabStrip2_));
    column->addWidget(area_, 1);
    column->addWidget(picture4_);
    setCentralWidget(content);
    setStatusBar(statusBar_);
}

void frmTarnwick::HookWindow() {
    BindHelpKey(*this, *this);
    KeepShutOutWindowsStill(*this);
    connect(area_, &QMdiArea::subWindowActivated, this, &frmTarnwick::SubWindowActivated);
    // The text tells it too, but only where it gets the focus by it.
    connect(documents_, &OpenDocuments::Activated, tabStrip2_,
            [this](const frmTemplate& document) { tabStrip2_->Select(document.Caption()); });
    LeaveByEscape(*tabStrip2_, *this);
    const auto& paths = State<DocumentPaths>();
    connect(&paths, &DocumentPaths::Taken, this, &frmTarnwick::PathTaken);
    connect(&paths, &DocumentPaths::Left, tabStrip2_, &DocumentTabs::Remove);
    connect(tabStrip2_, &DocumentTabs::Click, this, &frmTarnwick::TabStrip2_Click);
    fileDrop_ = new FileDrop(this);
    fileDrop_->Watch(*this);
    connect(fileDrop_, &FileDrop::Dropped, arrivals_, &Arrivals::Open);
}

Document* frmTarnwick::ActiveForm() {
    return documents_->Active();
}

void frmTarnwick::ActivateDocument(Document& document) {
    documents_->Activate(document);
}

void frmTarnwick::NewDocument() {
    SelectModeTab(u"Edit"_s);
    auto* document = new frmTemplate(*this);
    forms_->Add(document);
    recovery_->Watch(*document);
    area_->addSubWindow(document);
    const int step = State<ProgramState>().DocumentCount % cascadeSteps * cascadeStep;
    document->move(step, step);
    fileDrop_->Watch(*document->txtInput().viewport());
    document->Form_Load();
    documents_->Activate(*document);
}

void frmTarnwick::OpenDocumentFile(const QString& path) {
    ::OpenDocumentFile(*this, path);
}

SaveResult frmTarnwick::SaveActiveDocument() {
    return mnuSave_Click(*this);
}

SaveResult frmTarnwick::WriteOver(Document& document, const std::function<WriteResult()>& write) {
    return ::WriteOver(*this, document, write);
}

void frmTarnwick::PreviewInBrowser(const QString& path) {
    ::PreviewInBrowser(*this, path);
}

void frmTarnwick::SetStatusPanel(const QString& text, bool now) {
    statusBar_->SetPanel3(text, now);
}

void frmTarnwick::SetIdlePanel(const QString& text) {
    statusBar_->SetIdle(text);
}

void frmTarnwick::ShowNotice(const QString& text) {
    statusBar_->ShowNotice(text);
}

void frmTarnwick::SelectDocumentTab(const QString& path) {
    tabStrip2_->Select(path);
}

void frmTarnwick::PopUpEditMenu(QPoint at) {
    menuBar()->findChild<QMenu*>(u"mMain"_s)->popup(at);
}

void frmTarnwick::SelectModeTab(const QString& caption) {
    picture4_->Select(caption);
}

void frmTarnwick::PathTaken(const QString& path, const QString& caption) {
    tabStrip2_->Add(path, caption);
    // The strip shows which document has the focus; that of a document just opened came before it had a path.
    if (Document* document = ActiveForm(); document && document->Caption() == path)
        tabStrip2_->Select(path);
}

void frmTarnwick::TabStrip2_Click(int index) {
    if (QWidget* form = forms_->FindByCaption(tabStrip2_->Tag(index)))
        focus_->FocusForm(*form);
}

QWidget& frmTarnwick::Picture4() {
    return *picture4_;
}

void frmTarnwick::SetHooks(bool activation, bool drops) {
    focus_->SetHook(activation);
    fileDrop_->SetActive(drops);
}

void frmTarnwick::SubWindowActivated(QMdiSubWindow* window) {
    if (auto* document = qobject_cast<frmTemplate*>(window))
        document->Form_Activate();
}

void frmTarnwick::ComeToFront() {
    setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    raise();
    activateWindow();
}

void frmTarnwick::resizeEvent(QResizeEvent* event) {
    forms_->Unload<frmSplash>();
    picture3_->TakeWidth(width());
    QMainWindow::resizeEvent(event);
}

void frmTarnwick::closeEvent(QCloseEvent* event) {
    if (!stopped_ && !closing_) {
        closing_ = true;
        stopped_ = Shutdown(*this).Run();
        closing_ = false;
        if (stopped_) {
            arrivals_->Stop();
            Q_EMIT Stopped();
        }
    }
    event->setAccepted(stopped_);
}

bool frmTarnwick::event(QEvent* event) {
    // Whatever came while a modal dialog was up.
    if (event->type() == QEvent::WindowUnblocked)
        arrivals_->Resume();
    return QMainWindow::event(event);
}
