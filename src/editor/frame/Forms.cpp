#include "editor/frame/Forms.h"

#include "editor/frame/Document.h"

#include <algorithm>

namespace {

QString CaptionOf(const QWidget& form) {
    const auto* document = dynamic_cast<const Document*>(&form);
    return document ? document->Caption() : form.windowTitle();
}

} // namespace

Forms::Forms(QObject* parent) : QObject(parent) {}

bool Forms::Holds(const QWidget* form) const {
    return std::ranges::find(forms_, form) != forms_.end();
}

void Forms::Add(QWidget* form) {
    forms_.push_back(form);
    connect(form, &QObject::destroyed, this, [this, form] { std::erase(forms_, form); });
}

void Forms::Remove(QWidget* form) {
    std::erase(forms_, form);
}

QWidget* Forms::Find(const QString& name) const {
    const auto found =
        std::ranges::find_if(forms_, [&](QWidget* form) { return form->objectName() == name; });
    return found == forms_.end() ? nullptr : *found;
}

QWidget* Forms::FindByCaption(const QString& caption) const {
    const auto found =
        std::ranges::find_if(forms_, [&](const QWidget* form) { return CaptionOf(*form) == caption; });
    return found == forms_.end() ? nullptr : *found;
}

void Forms::Unload(QWidget& form) {
    if (!Holds(&form))
        return;
    Q_EMIT Unloading(&form);
    form.hide();
    // It leaves the list at once, so that showing it again makes a new one; its handlers may still be
    // running.
    std::erase(forms_, &form);
    form.deleteLater();
}

void Forms::Raise(QWidget& form) {
    form.show();
    form.raise();
    form.activateWindow();
}
