// The list of loaded forms: document windows and dialogs, in the order of loading.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <vector>

/// A form is in the list from its construction to its destruction. Each dialog exists once.
class Forms : public QObject {
    Q_OBJECT

  public:
    explicit Forms(QObject* parent = nullptr);

    int Count() const { return static_cast<int>(forms_.size()); }
    /// The form at a place counted from 0.
    QWidget* At(int index) const { return forms_[static_cast<size_t>(index)]; }
    /// A document's Caption, the window title of any other form.
    QString CaptionAt(int index) const;
    /// Puts a form at the list's end; it leaves by itself when it is destroyed.
    void Add(QWidget* form);
    /// Takes a form off the list ahead of its destruction: from then on no one finds it.
    void Remove(QWidget* form);
    /// The loaded form of a name (objectName), or null.
    QWidget* Find(const QString& name) const;
    /// Closes and deletes the form of a name, if it is loaded.
    void Unload(const QString& name);

    /// The form of type T, constructed with the arguments if it is not loaded; T names itself (objectName).
    template <typename T, typename... Arguments> T& Load(const QString& name, Arguments&&... arguments) {
        if (auto* loaded = qobject_cast<T*>(Find(name)))
            return *loaded;
        auto* form = new T(std::forward<Arguments>(arguments)...);
        form->setObjectName(name);
        Add(form);
        return *form;
    }
    /// Load, then shown modeless, raised and active.
    template <typename T, typename... Arguments> T& Show(const QString& name, Arguments&&... arguments) {
        T& form = Load<T>(name, std::forward<Arguments>(arguments)...);
        Raise(form);
        return form;
    }

  Q_SIGNALS:
    /// Unload takes a form away: it is still in the list and whole.
    void Unloading(QWidget* form);

  private:
    static void Raise(QWidget& form);

    std::vector<QWidget*> forms_;
};
