// Edit, Design and View: which of its three controls a document window shows, and the click that switches.
#pragma once

#include "editor/frame/SaveResult.h"

#include <QString>

class BrowserControl;
class DesignControl;
class Document;
class Frame;
class QWidget;

/// Belongs to a document window. The window calls LoadControls while it loads if UseMSIE is 1, PlaceAtLoad at
/// the end of its load and PlaceAtResize at each resize. Controls that could not be made are passed over.
class DocumentModes {
  public:
    DocumentModes(Frame& frame, Document& document);

    /// Adds the controls "DHTMLEdit" and "WebBrowser1" beside txtInput, hidden; one that is there stays.
    void LoadControls();
    /// Shows the source.
    void EditClicked();
    /// Shows the design view and loads the document's file into it; it stays empty for a document without
    /// one.
    void DesignClicked();
    /// Shows the browser view, saves the document and shows its file there; says why it can't.
    void ViewClicked();
    /// Both save the page that the design view holds to the file it was loaded from.
    SaveResult EditAnsPos();
    SaveResult ViewAnsPos();
    /// Does nothing.
    void DesignAnsPos();

    /// The caption of the tab whose control is in front.
    QString ShownTab() const;

    /// The design view's place in a window just loaded. It differs from the one that the first resize gives.
    void PlaceAtLoad();
    /// The place of both views after a resize.
    void PlaceAtResize();

  private:
    enum class Shown { Source, Design, Browser };
    void Show(Shown shown);
    SaveResult SaveDesign();

    Frame& frame_;
    Document& document_;
    DesignControl* design_ = nullptr;
    BrowserControl* browser_ = nullptr;
    Shown shown_ = Shown::Source;
};

/// A click on the mode strip TabStrip3, on the tab that is shown already too; selected is the caption of the
/// tab that it left selected. Does nothing with no document open.
void ModeStrip_Click(Frame& frame, const QString& selected);

/// Shows the active document in the browser view.
void ShowInternal(Frame& frame);
