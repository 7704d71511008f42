// The marks of documents whose text changed since it was loaded or saved.
#pragma once

#include <QObject>

class DocumentTabs;
class Frame;
class frmTemplate;
class OpenDocuments;
class QMdiArea;

/// A dot on the document's tab and on its window's icon, which a maximised window has in the menu bar, and
/// the word for screen readers. Titles and captions stay as they are. A text that is changed and set back
/// within one event, as by loading, makes no mark.
class ModifiedMarks final : public QObject {
    Q_OBJECT

  public:
    ModifiedMarks(Frame& frame, QMdiArea& area, OpenDocuments& documents, DocumentTabs& tabs);

  private:
    void Follow(frmTemplate& document);
    void Schedule();
    void Update();
    static void Mark(frmTemplate& document);

    QMdiArea& area_;
    DocumentTabs& tabs_;
    bool scheduled_ = false;
};
