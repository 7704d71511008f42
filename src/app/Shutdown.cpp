// What happens as the main frame closes: dialogs and documents go, and the settings go out.
#include "app/Shutdown.h"

#include "app/KnownForms.h"
#include "app/MainFrame.h"
#include "app/ProgramState.h"
#include "app/RecentFiles.h"
#include "app/UserButtons.h"
#include "dialogs/DialogState.h"
#include "dialogs/frmImage.h"
#include "editor/Document.h"
#include "editor/EditorState.h"
#include "editor/Forms.h"
#include "editor/SpellChecker.h"
#include "platform/Settings.h"
#include "platform/Twips.h"
#include "platform/Values.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int storedButtons = 30;

} // namespace

Shutdown::Shutdown(MainFrame& frame) : frame_(frame) {}

std::vector<const char*> Shutdown::UnloadedForms() {
    return FormsToUnload(KnownForms());
}

std::span<const Shutdown::Step> Shutdown::Steps() {
    static constexpr Step steps[] = {
        {"UnhookWindow", &Shutdown::UnhookWindow},
        {"KeepWindowState", &Shutdown::KeepWindowState},
        {"KeepRecentFiles", &Shutdown::KeepRecentFiles},
        {"WriteFirstTimeAgain", &Shutdown::WriteFirstTimeAgain},
        {"WriteDictionaries", &Shutdown::WriteDictionaries},
        {"WriteTextColors", &Shutdown::WriteTextColors},
        {"WriteEditorValues", &Shutdown::WriteEditorValues},
        {"WriteGeometry", &Shutdown::WriteGeometry},
        {"WriteMainWindowState", &Shutdown::WriteMainWindowState},
        {"WriteUseDDE", &Shutdown::WriteUseDDE},
        {"WriteRecentFiles", &Shutdown::WriteRecentFiles},
        {"WriteUserButtons", &Shutdown::WriteUserButtons},
        {"UnloadImageDialog", &Shutdown::UnloadImageDialog},
    };
    return steps;
}

bool Shutdown::Run() {
    UnloadForms();
    if (!UnloadDocuments())
        return false;
    for (const Step& step : Steps()) {
        Watch(step.name);
        (this->*step.run)();
    }
    frame_.Store().Sync();
    return true;
}

void Shutdown::UnloadForms() {
    for (const char* form : UnloadedForms()) {
        Watch(form);
        if (QWidget* loaded = frame_.LoadedForms().Find(QString::fromLatin1(form)))
            frame_.LoadedForms().Unload(*loaded);
    }
}

// The active one first; each that goes leaves another one active. One that went is never active again, so
// that every turn leaves one document less.
bool Shutdown::UnloadDocuments() {
    while (Document* document = frame_.ActiveForm())
        if (!document->Unload())
            return false;
    return true;
}

void Shutdown::UnhookWindow() {
    frame_.SetHooks(false, false);
}

void Shutdown::KeepWindowState() {
    const QWidget& window = *frame_.Window();
    mainWindowState_ = window.isMinimized() ? u"1"_s : window.isMaximized() ? u"2"_s : u"0"_s;
}

void Shutdown::KeepRecentFiles() {
    auto& program = frame_.State<ProgramState>();
    for (int n = 0; n < RecentFiles::Count; ++n)
        program.MenuArray[static_cast<size_t>(n)] = RecentFiles::Caption(frame_, n);
}

void Shutdown::WriteFirstTimeAgain() {
    // The greatest count can't be counted on; it stays, as any step that fails leaves things as they are.
    const int runs = frame_.State<ProgramState>().FirstTimeAgain;
    if (runs < std::numeric_limits<int>::max())
        frame_.Store().WriteNumber(Keys::FirstTimeAgain, runs + 1);
}

void Shutdown::WriteDictionaries() {
    frame_.Store().Write(Keys::StandardDic(), frame_.VSSpell1().StandardDic);
    frame_.Store().Write(Keys::CustomDic(), frame_.VSSpell1().CustomDic);
}

void Shutdown::WriteTextColors() {
    const auto& colors = frame_.State<EditorState>().ColorTable;
    for (size_t slot = 0; slot < colors.size(); ++slot)
        frame_.Store().Write(Keys::EdTextColor[slot], colors[slot]);
}

void Shutdown::WriteEditorValues() {
    Settings& store = frame_.Store();
    const auto& program = frame_.State<ProgramState>();
    store.Write(Keys::LinkColor, program.LinkColor);
    store.Write(Keys::UserTemplate, program.UserTemplate);
    store.Write(Keys::TemplateWindowState, program.TemplateWindowState);
    store.WriteNumber(Keys::Background2, frame_.State<EditorState>().Background2);
    store.Write(Keys::ReloadFlag, Values::FromBoolean(program.ReloadFlag));
    store.Write(Keys::TheOpenFile, program.TheOpenFile);
    store.Write(Keys::LastDir(), frame_.State<DialogState>().LastDir);
}

void Shutdown::WriteGeometry() {
    // A maximised or minimised frame keeps the geometry of its last normal run.
    if (mainWindowState_ != u"0")
        return;
    Settings& store = frame_.Store();
    const QWidget& window = *frame_.Window();
    store.WriteNumber(Keys::MainFormHeight, Twips::FromPixels(window.height()));
    store.WriteNumber(Keys::MainFormWidth, Twips::FromPixels(window.width()));
    store.WriteNumber(Keys::MainFormLeft, Twips::FromPixels(window.x()));
    store.WriteNumber(Keys::MainFormTop, Twips::FromPixels(window.y()));
}

void Shutdown::WriteMainWindowState() {
    frame_.Store().Write(Keys::MainWindowState, mainWindowState_);
}

void Shutdown::WriteUseDDE() {
    frame_.Store().Write(Keys::UseDDE, QString());
}

void Shutdown::WriteRecentFiles() {
    const auto& program = frame_.State<ProgramState>();
    for (int n = 0; n < RecentFiles::Count; ++n)
        frame_.Store().Write(Keys::MenuArray(n), program.MenuArray[static_cast<size_t>(n)]);
}

void Shutdown::WriteUserButtons() {
    Settings& store = frame_.Store();
    const auto& editor = frame_.State<EditorState>();
    for (int n = 0; n < storedButtons; ++n) {
        store.Write(Keys::FirstBut(n), editor.FirstBut[static_cast<size_t>(n)]);
        store.Write(Keys::SecondBut(n), editor.SecondBut[static_cast<size_t>(n)]);
        store.Write(Keys::ButCap(n), frame_.Picture2().Caption(n));
    }
}

void Shutdown::UnloadImageDialog() {
    frame_.LoadedForms().Unload<frmImage>();
}

void Shutdown::Watch(const char* name) const {
    if (watch)
        watch(name);
}
