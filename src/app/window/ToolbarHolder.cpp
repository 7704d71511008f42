#include "app/window/ToolbarHolder.h"

#include "app/surface/Toolbar.h"
#include "platform/values/Twips.h"

namespace {

constexpr int hiddenMarginTwips = 130;
constexpr int oneRowBelowTwips = 500;

// So much does a toolbar of several rows leave free below its last one, in pixels.
constexpr int hiddenMargin = (hiddenMarginTwips + Twips::PerPixel - 1) / Twips::PerPixel;

} // namespace

ToolbarHolder::ToolbarHolder(Frame& frame, QWidget* parent)
    : QWidget(parent), toolbar1_(new Toolbar1(frame, this)) {
    setObjectName(QStringLiteral("Picture3"));
}

int ToolbarHolder::HeightFor(int toolbarTwips) {
    return toolbarTwips < oneRowBelowTwips ? toolbarTwips : toolbarTwips - hiddenMarginTwips;
}

void ToolbarHolder::TakeWidth(int innerWidth) {
    int height = toolbar1_->heightForWidth(innerWidth);
    if (Twips::FromPixels(height) >= oneRowBelowTwips)
        height += hiddenMargin;
    toolbar1_->setGeometry(0, 0, innerWidth, height);
    setFixedHeight(Twips::ToPixels(HeightFor(Twips::FromPixels(height))));
}
