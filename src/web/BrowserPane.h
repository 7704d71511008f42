// The browser control: shows a page's file and follows its links.
#pragma once

#include "editor/views/WebControls.h"
#include "web/WebPane.h"

#include <functional>

class BrowserPage;

class BrowserPane final : public WebPane, public BrowserControl {
    Q_OBJECT

  public:
    explicit BrowserPane(QWidget* parent) : WebPane(parent) {}
    ~BrowserPane() override;

    QWidget& widget() override { return *this; }
    void TakeEncoding(TextEncoding encoding) override { encoding_ = encoding; }
    bool Navigate(const QString& path) override;

  protected:
    void End() override;

  private:
    BrowserPage* Browsed() const;
    void Show(const QString& path);
    /// The step may delete the page: where that has a box up, the box is closed, and the step waits for it.
    void OnceAnswered(std::function<void()> step);

    std::function<void()> onceAnswered_;
    TextEncoding encoding_ = TextEncoding::Ascii;
};
