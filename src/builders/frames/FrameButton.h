// A frame in the picture of the page.
#pragma once

#include "builders/frames/FrameSplit.h"

#include <QPushButton>

/// Its caption may be any text: an "&" stands for itself, and what does not fit is told by the tool tip.
class FrameButton final : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QString Tag MEMBER Tag)

  public:
    using QPushButton::QPushButton;

    void SetCaption(const QString& caption);
    /// Moves it to its place on the picture.
    void Place(const TwipsRect& place);

    /// The frame's tag; empty for one that was never edited.
    QString Tag;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    /// The button's font, smaller where the button is lower than a line of it.
    QFont FittingFont() const;

    int lineHeight_ = 0; ///< the pixels that a button of this height surely has
};
