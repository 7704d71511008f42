// Keys and mouse as they come from the desktop: to a window, which finds the control by itself.
#pragma once

#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <QWindow>

class QMimeData;

/// The toolkit keeps what a modal dialog or a menu shuts out from its window, as it does with a person's.
class Hand {
  public:
    /// Goes to the window that has the keys; to none where no window has.
    void Key(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {});
    /// The keys of a text, and an input method's way for what no key gives.
    void Type(const QString& text);

    /// The place is the widget's own.
    void Press(QWidget& at, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {});
    void MoveTo(QWidget& at, QPoint place);
    void Release();
    void Click(QWidget& at, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {});
    void DoubleClick(QWidget& at, QPoint place);
    void Wheel(QWidget& at, QPoint place, int delta, Qt::KeyboardModifiers modifiers = {});
    /// Something that another program drops.
    void Drop(QWidget& at, QPoint place, const QMimeData& data);

    /// A button that is held down.
    bool Holds() const { return button_ != Qt::NoButton; }

  private:
    void Send(QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void PointTo(QWidget& at, QPoint place);

    QPointer<QWindow> window_;
    QPointF place_;
    Qt::MouseButton button_ = Qt::NoButton;
    int time_ = 1000;
};
