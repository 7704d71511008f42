#include "tools/printing/Copies.h"

#include "platform/values/Values.h"

#include <cmath>
#include <limits>

int CopiesFrom(const QString& answer) {
    using Limits = std::numeric_limits<qint16>;
    const double copies = std::nearbyint(Values::ToNumber(answer).value_or(0));
    return copies >= Limits::min() && copies <= Limits::max() ? static_cast<int>(copies) : 0;
}
