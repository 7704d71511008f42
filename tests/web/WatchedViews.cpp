#include "web/WatchedViews.h"

#include <algorithm>
#include <QApplication>
#include <QObject>
#include <QScopeGuard>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QWidget>

namespace {

/// Goes with the control's widget, as the control does.
class WatchedDesign final : public QObject, public DesignControl {
  public:
    WatchedDesign(DesignControl& real, int& saving) : QObject(&real.widget()), real_(real), saving_(saving) {}

    QWidget& widget() override { return real_.widget(); }
    void TakeEncoding(TextEncoding encoding) override { real_.TakeEncoding(encoding); }
    void Load(const QString& path) override { real_.Load(path); }
    QString LoadedPath() const override { return real_.LoadedPath(); }
    WriteResult Save(const QString& path) override {
        int& saving = saving_;
        ++saving;
        const auto over = qScopeGuard([&saving] { --saving; });
        return real_.Save(path);
    }
    std::optional<QByteArray> Unsaved() const override { return real_.Unsaved(); }

  private:
    DesignControl& real_;
    int& saving_;
};

} // namespace

DesignControl* WatchedViews::MakeDesign(QWidget* parent) {
    DesignControl* design = real_.MakeDesign(parent);
    return design ? new WatchedDesign(*design, saving_) : nullptr;
}

bool WatchedViews::Loading() {
    return std::ranges::any_of(QApplication::allWidgets(), [](const QWidget* widget) {
        const auto* view = qobject_cast<const QWebEngineView*>(widget);
        return view && view->isVisible() && view->page()->isLoading();
    });
}
