// Ctrl+Tab among the documents.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QTimer>

class QKeyEvent;
class QMdiArea;
class QMdiSubWindow;
class WindowChooserList;

/// What the area does by itself with these keys, but seen: while Ctrl is held, Tab goes from document to
/// document in the order of their opening, Shift+Tab the other way; a list shows their names, and the chosen
/// one stands in front. Releasing Ctrl activates it; Esc, or leaving the frame, doesn't. Ctrl+Tab pressed
/// and released at once goes to the document that was active before, with no list.
class WindowChooser final : public QObject {
    Q_OBJECT

  public:
    explicit WindowChooser(QMdiArea& area);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Whether the key goes no further.
    bool Pressed(const QKeyEvent& key);
    void Released(const QKeyEvent& key);
    void Choose(int step);
    void Show();
    /// Brings the chosen one in front, as large as the one that fills the area, if one does.
    void RaiseChosen();
    /// Gives the one that was in front last its own size again.
    void PutBack();
    /// Takes the list away and puts the windows back into the order in which they lay.
    void Close();
    void Activate();
    QMdiSubWindow* ActiveBefore() const;

    QMdiArea& area_;
    /// A moment from the press of Ctrl on: who releases it by then wants the document that was active before.
    QTimer moment_;
    QPointer<QMdiSubWindow> chosen_;
    QPointer<WindowChooserList> list_;
    /// The windows as they lay when the list came up, the uppermost last.
    QList<QPointer<QMdiSubWindow>> lay_;
    QPointer<QMdiSubWindow> enlarged_;
    QRect place_; ///< of the enlarged one before
};
