// What happens as the main frame loads: the settings come in, and the document of the command line.
#include "app/Startup.h"

#include "app/DocumentTabs.h"
#include "app/MainFrame.h"
#include "app/ProgramState.h"
#include "app/RecentFiles.h"
#include "app/UserButtons.h"
#include "app/Version.h"
#include "app/WindowPlace.h"
#include "dialogs/DialogState.h"
#include "editor/Commands.h"
#include "editor/EditorState.h"
#include "editor/SpellChecker.h"
#include "platform/Path.h"
#include "platform/Settings.h"
#include "platform/Twips.h"
#include "platform/Values.h"

#include <cmath>
#include <limits>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

constexpr int maximised = 2;
constexpr int storedButtons = 30;
constexpr int captionedButtons = 32;

QList<QRect> Screens() {
    QList<QRect> places;
    for (const QScreen* screen : QGuiApplication::screens())
        places << screen->availableGeometry();
    return places;
}

// Of several separators at the end exactly one goes. The root of a file system is nothing but its separator,
// and stays.
QString WithoutLastSeparator(const QString& folder) {
    if (folder.size() <= 1 || !folder.endsWith(Path::Separator(folder)))
        return folder;
    return folder.chopped(1);
}

} // namespace

Startup::Startup(MainFrame& frame, QString commandLine, std::function<bool()> anotherCopyRuns)
    : frame_(frame), commandLine_(std::move(commandLine)), anotherCopyRuns_(std::move(anotherCopyRuns)) {}

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
    TakeFlag(frame_.State<EditorState>().UseAutoFill, Keys::UseAutoFill);
}

void Startup::EndIfAnotherCopyRuns() {
    goOn_ = !anotherCopyRuns_();
}

void Startup::ResetDocumentCount() {
    frame_.State<ProgramState>().DocumentCount = 0;
}

void Startup::ReadGeometry() {
    TakeNumber(height_, Keys::MainFormHeight);
    TakeNumber(width_, Keys::MainFormWidth);
    TakeNumber(left_, Keys::MainFormLeft);
    TakeNumber(top_, Keys::MainFormTop);
}

void Startup::ShowStrips() {
    frame_.Picture4().setVisible(frame_.Store().ReadFlag(Keys::UseMSIE));
    frame_.Picture2().setVisible(frame_.Store().ReadFlag(Keys::ShowUserButtons));
}

void Startup::MoveFrame() {
    // The width alone tells whether a place was stored.
    if (width_ <= 0)
        return;
    const QSize size(Twips::ToPixels(width_), Twips::ToPixels(height_));
    const QPoint corner(Twips::ToPixels(left_), Twips::ToPixels(top_));
    // A place stored with screens that are gone: the window must stay within a person's reach.
    QWidget& window = *frame_.Window();
    const QRect place =
        WindowPlace::Reachable(QRect(corner, size.expandedTo(window.minimumSizeHint())), Screens());
    window.move(place.topLeft());
    window.resize(place.size());
}

void Startup::ReadDictionaries() {
    frame_.VSSpell1().StandardDic = Text(Keys::StandardDic());
    frame_.VSSpell1().CustomDic = Text(Keys::CustomDic());
}

void Startup::ReadEditorValues() {
    auto& program = frame_.State<ProgramState>();
    auto& editor = frame_.State<EditorState>();
    TakeNumber(program.FirstTimeAgain, Keys::FirstTimeAgain);
    for (size_t slot = 0; slot < editor.ColorTable.size(); ++slot)
        TakeColor(slot);
    program.UserTemplate = Text(Keys::UserTemplate);
    program.LinkColor = Text(Keys::LinkColor);
    program.TemplateWindowState = Text(Keys::TemplateWindowState);
    TakeNumber(editor.Background2, Keys::Background2);
    TakeFlag(program.ReloadFlag, Keys::ReloadFlag);
    program.TheOpenFile = Text(Keys::TheOpenFile);
}

void Startup::ReadLastDir() {
    frame_.State<DialogState>().LastDir = WithoutLastSeparator(Text(Keys::LastDir()));
}

void Startup::ReadProgramValues() {
    // WebTimer, UseDDE and TabOption stand in the store and are of no effect: they are not even read.
    auto& program = frame_.State<ProgramState>();
    TakeNumber(mainWindowState_, Keys::MainWindowState);
    program.WebPath = Text(Keys::Web);
    program.FtpPath = Text(Keys::FTP);
    TakeFlag(program.LocalPreview, Keys::LocalPreview);
    TakeFlag(program.LocalFTP, Keys::LocalFTP);
}

void Startup::ReadLists() {
    auto& program = frame_.State<ProgramState>();
    for (int n = 0; n < RecentFiles::Count; ++n)
        program.MenuArray[static_cast<size_t>(n)] = Text(Keys::MenuArray(n));
    auto& editor = frame_.State<EditorState>();
    for (int n = 0; n < storedButtons; ++n) {
        editor.FirstBut[static_cast<size_t>(n)] = Text(Keys::FirstBut(n));
        editor.SecondBut[static_cast<size_t>(n)] = Text(Keys::SecondBut(n));
        editor.ButCap[static_cast<size_t>(n)] = Text(Keys::ButCap(n));
    }
}

void Startup::MaximiseFrame() {
    if (mainWindowState_ == maximised)
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
    const auto& editor = frame_.State<EditorState>();
    // The strip has thirty buttons and passes over what lies beyond.
    for (int n = 0; n < captionedButtons; ++n)
        if (const QString& caption = editor.ButCap[static_cast<size_t>(n)]; !caption.isEmpty())
            frame_.Picture2().SetCaption(n, caption);
}

void Startup::TellOfSettings() {
    // Last of all: opening a document writes into the panel, too.
    if (const QStringList unreadable = frame_.Store().Unreadable(); !unreadable.isEmpty())
        frame_.SetStatusPanel(u"The settings can't be read, nor will they be kept: "_s + unreadable.first());
}

template <typename Number> void Startup::TakeNumber(Number& variable, const SettingsKey& key) {
    const std::optional<double> number = Values::ToNumber(Text(key));
    if (!number || *number < std::numeric_limits<Number>::lowest() ||
        *number > std::numeric_limits<Number>::max())
        return;
    variable = static_cast<Number>(std::is_integral_v<Number> ? std::nearbyint(*number) : *number);
}

void Startup::TakeFlag(bool& variable, const SettingsKey& key) {
    if (const std::optional<bool> flag = Values::ToBoolean(Text(key)))
        variable = *flag;
}

void Startup::TakeColor(size_t slot) {
    static const QRegularExpression entry(u"\\A\\\\red\\d+\\\\green\\d+\\\\blue\\d+\\z"_s);
    if (const QString color = Text(Keys::EdTextColor[slot]); entry.match(color).hasMatch())
        frame_.State<EditorState>().ColorTable[slot] = color;
}

QString Startup::Text(const SettingsKey& key) {
    return frame_.Store().Read(key);
}
