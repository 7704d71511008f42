#include "app/run/Shutdown.h"

#include "app/documents/RecentFiles.h"
#include "app/run/ProgramState.h"
#include "app/window/KnownForms.h"
#include "app/window/MainFrame.h"
#include "dialogs/frmImage.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "platform/desktop/WindowState.h"
#include "platform/store/Settings.h"
#include "platform/values/Twips.h"

using namespace Qt::StringLiterals;

Shutdown::Shutdown(MainFrame& frame) : frame_(frame), values_(frame) {}

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
    frame_.State<ProgramState>().MainWindowState = WindowStateDigit(*frame_.Window());
}

void Shutdown::KeepRecentFiles() {
    auto& program = frame_.State<ProgramState>();
    for (int n = 0; n < RecentFiles::Count; ++n)
        program.MenuArray[static_cast<size_t>(n)] = RecentFiles::Caption(frame_, n);
}

void Shutdown::WriteFirstTimeAgain() {
    values_.Write(WrittenAt::RunCount);
}

void Shutdown::WriteDictionaries() {
    values_.Write(WrittenAt::Dictionaries);
}

void Shutdown::WriteTextColors() {
    values_.Write(WrittenAt::TextColors);
}

void Shutdown::WriteEditorValues() {
    values_.Write(WrittenAt::LinkColor);
    values_.Write(WrittenAt::EditorValues);
}

void Shutdown::WriteGeometry() {
    // A maximised or minimised frame keeps the geometry of its last normal run.
    auto& program = frame_.State<ProgramState>();
    if (program.MainWindowState != u"0")
        return;
    const QWidget& window = *frame_.Window();
    program.MainFormHeight = Twips::FromPixels(window.height());
    program.MainFormWidth = Twips::FromPixels(window.width());
    program.MainFormLeft = Twips::FromPixels(window.x());
    program.MainFormTop = Twips::FromPixels(window.y());
    values_.Write(WrittenAt::Geometry);
}

void Shutdown::WriteMainWindowState() {
    values_.Write(WrittenAt::WindowState);
}

void Shutdown::WriteUseDDE() {
    frame_.Store().Write(Keys::UseDDE, QString());
}

void Shutdown::WriteRecentFiles() {
    values_.Write(WrittenAt::RecentFiles);
}

void Shutdown::WriteUserButtons() {
    values_.Write(WrittenAt::UserButtons);
}

void Shutdown::UnloadImageDialog() {
    frame_.LoadedForms().Unload<frmImage>();
}

void Shutdown::Watch(const char* name) const {
    if (watch)
        watch(name);
}
