// Where the keys go when the frame comes to the front, or is clicked beside its documents.
#pragma once

#include <QObject>

class Frame;
class OpenDocuments;
class QMdiArea;

/// Gives the focus to the text of the active document: when the application or the frame becomes active, and
/// when a person presses the frame itself or the empty part of its area. A right click there drops the File
/// menu.
class FrameFocus final : public QObject {
    Q_OBJECT

  public:
    FrameFocus(Frame& frame, QMdiArea& area, OpenDocuments& documents);

    /// Gives the focus to the text of the active document.
    void FocusDocument();
    /// Brings a form up and gives it the focus; a document out of its minimised state if need be.
    void FocusForm(QWidget& form);
    /// Whether the application's becoming active counts.
    void SetHook(bool activation) { activationHook_ = activation; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void FrameActivated();
    void TellDocument();
    void AreaReleased(const QMouseEvent& release);

    Frame& frame_;
    QMdiArea& area_;
    OpenDocuments& documents_;
    bool activationHook_ = false;
};
