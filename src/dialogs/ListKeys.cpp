#include "dialogs/ListKeys.h"

#include <QKeyEvent>
#include <QListWidget>
#include <vector>

namespace {

class KeyFilter final : public QObject {
  public:
    KeyFilter(QObject* list, std::vector<int> keys, std::function<void()> action)
        : QObject(list), keys_(std::move(keys)), action_(std::move(action)) {
        list->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return QObject::eventFilter(watched, event);
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (std::find(keys_.begin(), keys_.end(), key) == keys_.end())
            return QObject::eventFilter(watched, event);
        action_();
        return true;
    }

  private:
    std::vector<int> keys_;
    std::function<void()> action_;
};

} // namespace

void OnListKeys(QListWidget* list, std::initializer_list<Qt::Key> keys, std::function<void()> action) {
    // The filter belongs to the list and goes with it.
    new KeyFilter(list, std::vector<int>(keys.begin(), keys.end()), std::move(action));
}
