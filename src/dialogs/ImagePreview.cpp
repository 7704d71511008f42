#include "dialogs/ImagePreview.h"

ImagePreview PreviewOf(QSize picture) {
    constexpr int Side = 150;
    const auto twips = [](int pixels) { return (pixels < Side ? pixels : Side) * PreviewTwipsPerPixel; };
    const bool small = picture.width() < Side && picture.height() < Side;
    return {!small, twips(picture.width()), twips(picture.height())};
}
