// Where the program's look differs from the desktop's own.
#pragma once

#include <QProxyStyle>

/// The desktop's own style, but for the faces of window buttons: those are pictures of dark lines, which
/// nobody sees on a dark palette. Here they are drawn in the palette's colour.
class WindowButtonStyle final : public QProxyStyle {
    Q_OBJECT

  public:
    QIcon standardIcon(StandardPixmap face, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    /// A password shows a "*" for each character.
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returned = nullptr) const override;
};
