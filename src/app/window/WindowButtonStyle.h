// The window buttons of a maximised document, in the corner of the menu bar.
#pragma once

#include <QProxyStyle>

/// The desktop's own style, but for the faces of window buttons: those are pictures of dark lines, which
/// nobody sees on a dark palette. Here they are drawn in the palette's colour.
class WindowButtonStyle final : public QProxyStyle {
    Q_OBJECT

  public:
    QIcon standardIcon(StandardPixmap face, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};
