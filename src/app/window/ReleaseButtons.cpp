#include "app/window/ReleaseButtons.h"

#include <QAbstractButton>
#include <QEvent>

namespace {

class Watch final : public QObject {
  public:
    explicit Watch(QWidget& window) : QObject(&window), window_(window) { window.installEventFilter(this); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::WindowBlocked)
            for (QAbstractButton* button : window_.findChildren<QAbstractButton*>())
                button->setDown(false);
        return QObject::eventFilter(watched, event);
    }

  private:
    QWidget& window_;
};

} // namespace

void ReleaseButtonsWhenBlocked(QWidget& window) {
    new Watch(window);
}
