#include "app/window/LeaveByEscape.h"

#include "editor/frame/ActiveText.h"
#include "editor/frame/Frame.h"
#include "platform/text/RichTextBox.h"

#include <QKeyEvent>
#include <QWidget>

namespace {

class WayOut final : public QObject {
  public:
    WayOut(QWidget& control, Frame& frame) : QObject(&control), frame_(frame) {
        control.installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
            return QObject::eventFilter(watched, event);
        if (RichTextBox* txtInput = ActiveText(frame_))
            txtInput->SetFocus();
        return true;
    }

  private:
    Frame& frame_;
};

} // namespace

void LeaveByEscape(QWidget& control, Frame& frame) {
    new WayOut(control, frame);
}
