// The main frame as everything below the application sees it.
#pragma once

#include "editor/frame/SaveResult.h"
#include "platform/store/WriteResult.h"

#include <functional>
#include <memory>
#include <QString>
#include <typeindex>
#include <unordered_map>

class CommandSet;
class Document;
class Forms;
class Prompts;
class QPoint;
class QWidget;
class Settings;

class Frame {
  public:
    virtual ~Frame() = default;

    /// The active document, or null with none open. It stays the active one while a dialog has the focus.
    virtual Document* ActiveForm() = 0;
    /// Makes an open document the active one.
    virtual void ActivateDocument(Document& document) = 0;
    /// The window that owns dialogs.
    virtual QWidget* Window() = 0;
    virtual Forms& LoadedForms() = 0;
    virtual Settings& Store() = 0;
    virtual Prompts& Ask() = 0;
    /// The commands of menus, toolbar and buttons, by name.
    virtual CommandSet& Commands() = 0;

    /// Creates a blank document window and makes it the active one.
    virtual void NewDocument() = 0;
    /// Reads a file into a new window.
    virtual void OpenDocumentFile(const QString& path) = 0;
    /// The Save command on the active document.
    virtual SaveResult SaveActiveDocument() = 0;
    /// Lets a step write over the file of a document: one that others changed is asked about first, and a
    /// step that failed is told of.
    virtual SaveResult WriteOver(Document& document, const std::function<WriteResult()>& write) = 0;
    /// Shows the active document, or the given file, in the external browser.
    virtual void PreviewInBrowser(const QString& path = QString()) = 0;

    /// Writes panel 3 of the status bar; now paints it before returning.
    virtual void SetStatusPanel(const QString& text, bool now = false) = 0;
    /// Writes what the panel says when there is nothing to tell, as the caret's line: it stays behind a
    /// notice.
    virtual void SetIdlePanel(const QString& text) = 0;
    /// Writes panel 3 so that it outlasts windows coming up and going: until the next key or click, or until
    /// something else is told.
    virtual void ShowNotice(const QString& text) = 0;
    /// Selects the first document tab whose Tag equals a path.
    virtual void SelectDocumentTab(const QString& path) = 0;
    /// Pops up the Edit menu at a place on the screen, in pixels.
    virtual void PopUpEditMenu(QPoint at) = 0;
    /// Selects a tab of the mode strip by its caption, "Edit", "Design" or "View".
    virtual void SelectModeTab(const QString& caption) = 0;

    /// The one value of type T that belongs to this frame, made at first use: program-wide state, one type
    /// for all that changes together.
    template <typename T> T& State() {
        auto& slot = states_[std::type_index(typeid(T))];
        if (!slot)
            slot = std::make_shared<T>();
        return *static_cast<T*>(slot.get());
    }

  private:
    std::unordered_map<std::type_index, std::shared_ptr<void>> states_;
};
