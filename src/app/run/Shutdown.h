// What happens as the main frame closes: dialogs and documents go, and the settings go out.
#pragma once

#include "app/run/CarriedValues.h"

#include <functional>
#include <QString>
#include <span>
#include <vector>

class MainFrame;

class Shutdown {
  public:
    using Writing = void (Shutdown::*)();

    /// One step of the unload, by its name.
    struct Step {
        const char* name;
        Writing run;
    };

    explicit Shutdown(MainFrame& frame);

    /// The forms that the query unload takes down, in their order; the active document comes after them.
    static std::vector<const char*> UnloadedForms();
    /// The steps of the unload in the order in which they are done.
    static std::span<const Step> Steps();

    /// Query unload of the frame, then of each document, then the frame's unload. False if a document's
    /// question was answered with Cancel: the frame stays, and no setting was written.
    bool Run();

    /// Told the name of each form and each step before its turn.
    std::function<void(const char*)> watch;

  private:
    void UnloadForms();
    bool UnloadDocuments();
    void UnhookWindow();
    void KeepWindowState();
    void KeepRecentFiles();
    void WriteFirstTimeAgain();
    void WriteDictionaries();
    void WriteTextColors();
    void WriteEditorValues();
    void WriteGeometry();
    void WriteMainWindowState();
    void WriteUseDDE();
    void WriteRecentFiles();
    void WriteUserButtons();
    void UnloadImageDialog();
    void Watch(const char* name) const;

    MainFrame& frame_;
    CarriedValues values_;
};
