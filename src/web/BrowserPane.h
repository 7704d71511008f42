// The browser control: shows a page's file and follows its links.
#pragma once

#include "editor/WebControls.h"
#include "web/WebPane.h"

class BrowserPane final : public WebPane, public BrowserControl {
    Q_OBJECT

  public:
    explicit BrowserPane(QWidget* parent) : WebPane(parent) {}

    QWidget& widget() override { return *this; }
    bool Navigate(const QString& path) override;
};
