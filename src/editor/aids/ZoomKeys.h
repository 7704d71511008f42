// Ctrl with the wheel, and with plus and minus, draws the text of all documents larger or smaller.
#pragma once

#include <QObject>

class Document;
class Frame;
class QWheelEvent;

/// Of one document. Ctrl and 0 of the keypad bring the normal size back; Ctrl and 0 among the digits is a
/// user button's.
class ZoomKeys final : public QObject {
    Q_OBJECT

  public:
    ZoomKeys(Frame& frame, Document& document, QObject* parent);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void txtInput_KeyDown(int& KeyCode, int Shift);
    void Turn(const QWheelEvent& wheel);
    void ZoomBy(int steps);
    void Draw(int percent);

    Frame& frame_;
    Document& document_;
    int turned_ = 0; ///< what the wheel turned since the last step
};
