// A label that shows a colour and can be clicked, by mouse and by keyboard.
#pragma once

#include "dialogs/ClickLabel.h"
#include "platform/text/ColorNumber.h"

/// ForeNumber is the colour of its text, BackNumber that of the ground, which is the parent's until it is
/// set. Space and Enter do what the mouse does: they emit Click and DblClick alike.
class ColorSample final : public ClickLabel {
    Q_OBJECT

  public:
    explicit ColorSample(QWidget* parent = nullptr);

    ColorNumber ForeNumber() const;
    void SetForeNumber(ColorNumber color);
    ColorNumber BackNumber() const;
    void SetBackNumber(ColorNumber color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
