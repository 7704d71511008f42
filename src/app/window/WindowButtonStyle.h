// Where the program's look differs from the desktop's own.
#pragma once

#include <QProxyStyle>

/// The desktop's own style, but for the faces of window buttons: those are pictures of dark lines, or drawn
/// in black, which nobody sees on a dark palette. Here they suit the palette.
class WindowButtonStyle final : public QProxyStyle {
    Q_OBJECT

  public:
    QIcon standardIcon(StandardPixmap face, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;
    /// A password shows a "*" for each character.
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returned = nullptr) const override;
};
