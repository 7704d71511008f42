#include "app/surface/ShownTextEntry.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QMenu>
#include <QRegularExpression>

namespace {

class EntryAccessible final : public QAccessibleObject, public QAccessibleActionInterface {
  public:
    explicit EntryAccessible(ShownTextEntry& entry) : QAccessibleObject(&entry), entry_(entry) {}

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(const_cast<QMenu*>(&entry_.Menu()));
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::MenuItem; }
    QString text(QAccessible::Text text) const override {
        static const QRegularExpression mnemonic(QStringLiteral("&(.)"));
        return text == QAccessible::Name ? QString(entry_.Shown()).replace(mnemonic, QStringLiteral("\\1"))
                                         : QString();
    }
    QRect rect() const override {
        const QRect place = entry_.Menu().actionGeometry(&entry_);
        return QRect(entry_.Menu().mapToGlobal(place.topLeft()), place.size());
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.focused = entry_.Menu().activeAction() == &entry_;
        state.disabled = !entry_.isEnabled();
        state.checkable = entry_.isCheckable();
        state.checked = entry_.isChecked();
        state.invisible = !entry_.Menu().isVisible() || !entry_.isVisible();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction())
            entry_.trigger();
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    ShownTextEntry& entry_;
};

QAccessibleInterface* Create(const QString& className, QObject* object) {
    auto* entry = className == QLatin1String(ShownTextEntry::staticMetaObject.className())
                      ? qobject_cast<ShownTextEntry*>(object)
                      : nullptr;
    return entry ? new EntryAccessible(*entry) : nullptr;
}

} // namespace

ShownTextEntry::ShownTextEntry(const QString& text, QString shown, const QMenu& menu, QObject* parent)
    : QAction(text, parent), shown_(std::move(shown)), menu_(menu) {
    // One that is installed already is not installed again.
    QAccessible::installFactory(Create);
}
