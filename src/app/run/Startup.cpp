#include "app/run/Startup.h"

#include "app/documents/RecentFiles.h"
#include "app/run/ProgramState.h"
#include "app/run/Version.h"
#include "app/surface/UserButtons.h"
#include "app/window/DocumentTabs.h"
#include "app/window/MainFrame.h"
#include "app/window/WindowPlace.h"
#include "editor/frame/Commands.h"
#include "editor/typing/UserButtonTexts.h"
#include "platform/store/Settings.h"
#include "platform/values/Twips.h"
#include "platform/values/Values.h"

#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

constexpr int maximised = 2;
constexpr int captionedButtons = 32;

QList<QRect> Screens() {
    QList<QRect> places;
    for (const QScreen* screen : QGuiApplication::screens())
        places << screen->availableGeometry();
    return places;
}

} // namespace

Startup::Startup(MainFrame& frame, QString commandLine, std::function<bool()> anotherCopyRuns)
    : frame_(frame), commandLine_(std::move(commandLine)), anotherCopyRuns_(std::move(anotherCopyRuns)),
      values_(frame) {}

std::span<const Startup::Step> Startup::Steps() {
    static constexpr Step steps[] = {
        {"CentreFrame", &Startup::CentreFrame},
        {"SetCaption", &Startup::SetCaption},
        {"HookActivation", &Startup::HookActivation},
        {"AcceptDroppedFiles", &Startup::AcceptDroppedFiles},
        {"SetFindMode", &Startup::SetFindMode},
        {"ReadUseAutoFill", &Startup::ReadUseAutoFill},
        {"EndIfAnotherCopyRuns", &Startup::EndIfAnotherCopyRuns},
        {"ResetDocumentCount", &Startup::ResetDocumentCount},
        {"ReadGeometry", &Startup::ReadGeometry},
        {"ShowStrips", &Startup::ShowStrips},
        {"MoveFrame", &Startup::MoveFrame},
        {"ReadDictionaries", &Startup::ReadDictionaries},
        {"ReadEditorValues", &Startup::ReadEditorValues},
        {"ReadLastDir", &Startup::ReadLastDir},
        {"ReadProgramValues", &Startup::ReadProgramValues},
        {"ReadLists", &Startup::ReadLists},
        {"MaximiseFrame", &Startup::MaximiseFrame},
        {"ShowRecentFiles", &Startup::ShowRecentFiles},
        {"ShowOptionsOnFirstRun", &Startup::ShowOptionsOnFirstRun},
        {"RemoveTabs", &Startup::RemoveTabs},
        {"OpenCommandLine", &Startup::OpenCommandLine},
        {"CaptionUserButtons", &Startup::CaptionUserButtons},
        {"TellOfSettings", &Startup::TellOfSettings},
    };
    return steps;
}

bool Startup::Run() {
    for (const Step& step : Steps()) {
        if (watch)
            watch(step.name);
        (this->*step.run)();
        if (!goOn_)
            return false;
    }
    return true;
}

void Startup::CentreFrame() {
    QWidget& window = *frame_.Window();
    window.move(WindowPlace::Centred(window.size(), window.screen()->geometry()).topLeft());
}

void Startup::SetCaption() {
    frame_.Window()->setWindowTitle(u"The Tarnwick Pro %1.%2"_s.arg(Version::Major).arg(Version::Minor));
}

void Startup::HookActivation() {
    frame_.SetHooks(true, false);
}

void Startup::AcceptDroppedFiles() {
    frame_.SetHooks(true, true);
}

void Startup::SetFindMode() {
    frame_.State<ProgramState>().FindMode = 1;
}

void Startup::ReadUseAutoFill() {
    values_.Read(ReadAt::UseAutoFill);
}

void Startup::EndIfAnotherCopyRuns() {
    goOn_ = !anotherCopyRuns_();
}

void Startup::ResetDocumentCount() {
    frame_.State<ProgramState>().DocumentCount = 0;
}

void Startup::ReadGeometry() {
    values_.Read(ReadAt::Geometry);
}

void Startup::ShowStrips() {
    frame_.Picture4().setVisible(frame_.Store().ReadFlag(Keys::UseMSIE));
    frame_.Picture2().setVisible(frame_.Store().ReadFlag(Keys::ShowUserButtons));
}

void Startup::MoveFrame() {
    // The width alone tells whether a place was stored.
    const auto& program = frame_.State<ProgramState>();
    if (program.MainFormWidth <= 0)
        return;
    const QSize size(Twips::ToPixels(program.MainFormWidth), Twips::ToPixels(program.MainFormHeight));
    const QPoint corner(Twips::ToPixels(program.MainFormLeft), Twips::ToPixels(program.MainFormTop));
    // A place stored with screens that are gone: the window must stay within a person's reach.
    QWidget& window = *frame_.Window();
    const QRect place =
        WindowPlace::Reachable(QRect(corner, size.expandedTo(window.minimumSizeHint())), Screens());
    window.move(place.topLeft());
    window.resize(place.size());
}

void Startup::ReadDictionaries() {
    values_.Read(ReadAt::Dictionaries);
}

void Startup::ReadEditorValues() {
    values_.Read(ReadAt::EditorValues);
}

void Startup::ReadLastDir() {
    values_.Read(ReadAt::LastDir);
}

void Startup::ReadProgramValues() {
    // WebTimer, UseDDE and TabOption stand in the store and are of no effect: they are not even read.
    values_.Read(ReadAt::ProgramValues);
}

void Startup::ReadLists() {
    values_.Read(ReadAt::Lists);
}

void Startup::MaximiseFrame() {
    if (Values::ToNumber(frame_.State<ProgramState>().MainWindowState) == maximised)
        frame_.Window()->setWindowState(Qt::WindowMaximized);
}

void Startup::ShowRecentFiles() {
    const auto& program = frame_.State<ProgramState>();
    for (int n = 0; n < RecentFiles::Count; ++n)
        RecentFiles::SetCaption(frame_, n, program.MenuArray[static_cast<size_t>(n)]);
}

void Startup::ShowOptionsOnFirstRun() {
    // The command waits for the end of the dialog.
    if (frame_.State<ProgramState>().FirstTimeAgain == 0)
        frame_.Commands().Run(u"mnuWebBrowser"_s);
}

void Startup::RemoveTabs() {
    frame_.TabStrip2().RemoveAll();
}

void Startup::OpenCommandLine() {
    if (!commandLine_.isEmpty())
        frame_.OpenDocumentFile(commandLine_);
}

void Startup::CaptionUserButtons() {
    const auto& editor = frame_.State<UserButtonTexts>();
    // The strip has thirty buttons and passes over what lies beyond.
    for (int n = 0; n < captionedButtons; ++n)
        if (const QString& caption = editor.ButCap[static_cast<size_t>(n)]; !caption.isEmpty())
            frame_.Picture2().SetCaption(n, caption);
}

void Startup::TellOfSettings() {
    // Last of all: opening a document writes into the panel, too.
    if (const QStringList unreadable = frame_.Store().Unreadable(); !unreadable.isEmpty())
        frame_.ShowNotice(u"The settings can't be read, nor will they be kept: "_s + unreadable.first());
}
