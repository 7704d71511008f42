// The main frame: the one window that owns menus, strips and document windows, for the whole run.
#pragma once

#include "app/window/MainFrame.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Forms.h"

#include <QMainWindow>

class Arrivals;
class ChangedFiles;
class FileDrop;
class FrameFocus;
class frmTemplate;
class ModeStrip;
class OpenDocuments;
class Prompts;
class QMdiArea;
class QMdiSubWindow;
class Recovery;
class Settings;
class StatusBar;
class ToolbarHolder;

class frmTarnwick final : public QMainWindow, public MainFrame {
    Q_OBJECT

  public:
    frmTarnwick(Settings& store, Prompts& ask);
    ~frmTarnwick() override;

    Document* ActiveForm() override;
    void ActivateDocument(Document& document) override;
    QWidget* Window() override { return this; }
    Forms& LoadedForms() override { return *forms_; }
    Settings& Store() override { return store_; }
    Prompts& Ask() override { return ask_; }
    CommandSet& Commands() override { return commands_; }

    void NewDocument() override;
    void OpenDocumentFile(const QString& path) override;
    SaveResult SaveActiveDocument() override;
    SaveResult WriteOver(Document& document, const std::function<WriteResult()>& write) override;
    void PreviewInBrowser(const QString& path = QString()) override;

    void SetStatusPanel(const QString& text, bool now = false) override;
    void SetIdlePanel(const QString& text) override;
    void ShowNotice(const QString& text) override;
    void SelectDocumentTab(const QString& path) override;
    void PopUpEditMenu(QPoint at) override;
    void SelectModeTab(const QString& caption) override;

    QMdiArea& Area() { return *area_; }
    DocumentTabs& TabStrip2() override { return *tabStrip2_; }
    UserButtons& Picture2() override { return *picture2_; }
    QWidget& Picture4() override;
    StatusBar& Panels() override { return *statusBar_; }
    SpellChecker& VSSpell1() override { return *vsSpell1_; }
    void SetHooks(bool activation, bool drops) override;

    /// What another copy of the program, or a drop, brings.
    Arrivals& FromOutside() { return *arrivals_; }
    /// What tells of files that others changed.
    ChangedFiles& ChangedByOthers() { return *changedFiles_; }
    /// What keeps copies of the changed documents.
    Recovery& Copies() { return *recovery_; }
    /// Comes to the front of the desktop, out of the minimised state if need be.
    void ComeToFront();

  Q_SIGNALS:
    /// The frame is unloaded and its settings are written: the process ends.
    void Stopped();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void FillCommands();
    void BuildMenuBar();
    void BuildStrips();
    void HookWindow();
    void PathTaken(const QString& path, const QString& caption);
    void TabStrip2_Click(int index);
    void SubWindowActivated(QMdiSubWindow* window);

    Settings& store_;
    Prompts& ask_;
    CommandSet commands_;
    Forms* forms_;
    QMdiArea* area_;
    OpenDocuments* documents_;
    FrameFocus* focus_;
    DocumentTabs* tabStrip2_;
    Arrivals* arrivals_;
    Recovery* recovery_;
    ToolbarHolder* picture3_ = nullptr;
    UserButtons* picture2_ = nullptr;
    ModeStrip* picture4_ = nullptr;
    StatusBar* statusBar_;
    ChangedFiles* changedFiles_;
    SpellChecker* vsSpell1_;
    FileDrop* fileDrop_ = nullptr;
    bool closing_ = false;
    bool stopped_ = false;
};
