// The documents that stand open in the frame's area, and which of them is the active one.
#pragma once

#include <QObject>
#include <QPointer>

class Document;
class frmTemplate;
class QMdiArea;

/// The area's own answer does not always hold: where the frame is minimised, or a window goes that never had
/// the focus, it names a window that is gone, or none at all. Commands, saving and the program's end need one
/// that does.
class OpenDocuments final : public QObject {
    Q_OBJECT

  public:
    OpenDocuments(QMdiArea& area, QObject* parent);

    /// The document that commands work on: always one that is open, and null only where none is.
    frmTemplate* Active() const;
    /// All that are open, in the order in which they were opened.
    QList<frmTemplate*> All() const;
    /// Makes a document the active one, in front of the others.
    void Activate(Document& document);
    /// Gives the focus to the text of the active one, if that is on view.
    void FocusText();
    /// Gives the focus to what the active one has on view: its text, the design or the browser view.
    void FocusView();
    /// Makes the area follow again after it lost its way, and the focus with it.
    void Wake();

  Q_SIGNALS:
    /// Another document is the active one than before.
    void Activated(frmTemplate& document);

  private:
    void Follow(QWidget* widget);

    QMdiArea& area_;
    /// The one that was activated last, by the area, by its focus or by the program.
    QPointer<frmTemplate> latest_;
};
