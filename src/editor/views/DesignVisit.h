// Whether the user comes from the design view.
#pragma once

#include <utility>

class DesignVisit {
  public:
    bool ComingFromDesign() const { return comingFromDesign_; }
    void Begin() { comingFromDesign_ = true; }
    /// Returns whether there was a visit to end.
    bool End() { return std::exchange(comingFromDesign_, false); }

  private:
    bool comingFromDesign_ = false;
};
