// The plugin's entry point.
#pragma once

#include "editor/views/WebControls.h"

#include <QObject>

class WebControlsPlugin final : public QObject, public WebControlsFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tarnwick.WebControlsFactory/1")
    Q_INTERFACES(WebControlsFactory)

  public:
    WebControlsPlugin();

    DesignControl* MakeDesign(QWidget* parent) override;
    BrowserControl* MakeBrowser(QWidget* parent) override;
};
