#include "editor/frame/EditorFont.h"

#include "platform/store/Settings.h"
#include "platform/values/Values.h"

#include <algorithm>

QFont StoredEditorFont(const Settings& store) {
    // The largest size of a rich-text control; a glyph beyond it costs more memory than it shows.
    constexpr double largestPoints = 1638;
    constexpr double smallestPoints = 1;
    double points = Values::Val(store.Read(Keys::EditorFontSize));
    if (points <= 0)
        points = Values::Val(Keys::EditorFontSize.standard);
    QFont font(store.Read(Keys::EditorFont));
    font.setPointSizeF(std::clamp(points, smallestPoints, largestPoints));
    return font;
}
