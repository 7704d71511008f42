// ImageList1 of the auto-fill list: colour swatches and marks.
#pragma once

#include <QColor>
#include <QIcon>

/// The picture of an index: 1 an attribute, 3 an attribute that takes a file, 4 an alignment, 5 to 20 the
/// swatch of a colour. Drawn anew at each size and pixel ratio. Null for any other index.
QIcon ImageList1(int index);

/// The colour of a swatch, index 5 to 20; invalid for any other index.
QColor SwatchColor(int index);
