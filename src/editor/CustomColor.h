// The picked colour as a document writes it.
#pragma once

#include <QString>

/// "#" and six upper-case hexadecimal digits, red first, of a colour number in decimal text (blanks around it
/// don't matter), which has red in its low byte: " 255" gives "#FF0000".
QString CustomColorText(const QString& picked);
