// The strip that holds the toolbar and follows its height.
#pragma once

#include <QWidget>

class Frame;
class Toolbar1;

/// Picture3. A toolbar of several rows ends in a margin that the strip doesn't show.
class ToolbarHolder final : public QWidget {
    Q_OBJECT

  public:
    explicit ToolbarHolder(Frame& frame, QWidget* parent = nullptr);

    /// Gives the toolbar the frame's inner width in pixels, lets it wrap, and takes the height that follows.
    void TakeWidth(int innerWidth);
    /// The strip's height for a toolbar's height, both in twips: 130 less, but the same below 500.
    static int HeightFor(int toolbarTwips);

  private:
    Toolbar1* toolbar1_;
};
