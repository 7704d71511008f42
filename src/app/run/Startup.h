// What happens as the main frame loads: the settings come in, and the document of the command line.
#pragma once

#include "app/run/CarriedValues.h"

#include <functional>
#include <QString>
#include <span>

class MainFrame;

class Startup {
  public:
    using Reading = void (Startup::*)();

    /// One step, by its name.
    struct Step {
        const char* name;
        Reading run;
    };

    /// anotherCopyRuns tells whether the program is running already.
    Startup(MainFrame& frame, QString commandLine, std::function<bool()> anotherCopyRuns);

    /// The steps in the order in which they are done. A step that fails leaves what it was to set as it was,
    /// and the next one runs.
    static std::span<const Step> Steps();

    /// Does the steps. False if another copy of the program is running: then nothing after that step was
    /// done, nothing was written, and this copy has to end.
    bool Run();

    /// Told the name of each step before it runs.
    std::function<void(const char*)> watch;

  private:
    void CentreFrame();
    void SetCaption();
    void HookActivation();
    void AcceptDroppedFiles();
    void SetFindMode();
    void ReadUseAutoFill();
    void EndIfAnotherCopyRuns();
    void ResetDocumentCount();
    void ReadGeometry();
    void ShowStrips();
    void MoveFrame();
    void ReadDictionaries();
    void ReadEditorValues();
    void ReadLastDir();
    void ReadProgramValues();
    void ReadLists();
    void MaximiseFrame();
    void ShowRecentFiles();
    void ShowOptionsOnFirstRun();
    void RemoveTabs();
    void OpenCommandLine();
    void CaptionUserButtons();
    void TellOfSettings();

    MainFrame& frame_;
    QString commandLine_;
    std::function<bool()> anotherCopyRuns_;
    bool goOn_ = true;
    CarriedValues values_;
};
