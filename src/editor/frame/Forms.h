// The list of loaded forms: document windows and dialogs, in the order of loading.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <utility>
#include <vector>

/// A form is in the list from its construction to its destruction. Each dialog exists once, and is found by
/// its type: frame.LoadedForms().Show<frmLinks>(frame).
class Forms : public QObject {
    Q_OBJECT

  public:
    explicit Forms(QObject* parent = nullptr);

    int Count() const { return static_cast<int>(forms_.size()); }
    /// The form at a place counted from 0.
    QWidget* At(int index) const { return forms_[static_cast<size_t>(index)]; }
    /// Whether the list holds a form. It is only compared: one that is gone is not there.
    bool Holds(const QWidget* form) const;
    /// Puts a form at the list's end; it leaves by itself when it is destroyed.
    void Add(QWidget* form);
    /// Takes a form off the list ahead of its destruction: from then on no one finds it.
    void Remove(QWidget* form);

    /// The loaded form of a type, or null.
    template <typename T> T* Find() const {
        for (QWidget* form : forms_)
            if (auto* found = dynamic_cast<T*>(form))
                return found;
        return nullptr;
    }
    /// The loaded form of a name (objectName), or null: for those who have the name from a table.
    QWidget* Find(const QString& name) const;
    /// The first form of a caption, compared exactly, or null. That is a document's Caption, and the window
    /// title of any other form.
    QWidget* FindByCaption(const QString& caption) const;

    /// The form of type T, constructed with the arguments if it is not loaded. It has the name of its class.
    template <typename T, typename... Arguments> T& Load(Arguments&&... arguments) {
        if (auto* loaded = Find<T>())
            return *loaded;
        auto* form = new T(std::forward<Arguments>(arguments)...);
        form->setObjectName(QString::fromLatin1(T::staticMetaObject.className()));
        Add(form);
        return *form;
    }
    /// Load, then shown modeless, raised and active.
    template <typename T, typename... Arguments> T& Show(Arguments&&... arguments) {
        T& form = Load<T>(std::forward<Arguments>(arguments)...);
        Raise(form);
        return form;
    }

    /// Closes and deletes a form. One that is not in the list is on its way out already: nothing happens to
    /// it.
    void Unload(QWidget& form);
    /// The same for the form of a type, if it is loaded.
    template <typename T> void Unload() {
        if (T* form = Find<T>())
            Unload(*form);
    }

  Q_SIGNALS:
    /// Unload takes a form away: it is still in the list and whole.
    void Unloading(QWidget* form);

  private:
    static void Raise(QWidget& form);

    std::vector<QWidget*> forms_;
};
