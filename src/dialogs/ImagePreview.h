// How large the preview of a picture is.
#pragma once

#include <QSize>

/// Twips here are twentieths of a pixel.
struct ImagePreview {
    bool stretch; ///< the picture is stretched to the size; without it, it is shown as large as it is
    int width;    ///< twips
    int height;   ///< twips
    bool operator==(const ImagePreview&) const = default;
};

constexpr int PreviewTwipsPerPixel = 20;

/// A picture's preview by its size in pixels: 3000 by 3000 twips, but never wider or higher than the picture.
ImagePreview PreviewOf(QSize picture);
