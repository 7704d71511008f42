// The real views, and whether they let a user through.
#pragma once

#include "editor/views/WebControls.h"

/// Makes what another factory makes, and notes the saves of the design view: while it waits for the engine,
/// all but the user's keys and clicks goes on.
class WatchedViews final : public WebControlsFactory {
  public:
    explicit WatchedViews(WebControlsFactory& real) : real_(real) {}

    DesignControl* MakeDesign(QWidget* parent) override;
    BrowserControl* MakeBrowser(QWidget* parent) override { return real_.MakeBrowser(parent); }

    bool Saving() const { return saving_ > 0; }
    /// Whether any view is about to show a page.
    static bool Loading();

  private:
    WebControlsFactory& real_;
    int saving_ = 0;
};
