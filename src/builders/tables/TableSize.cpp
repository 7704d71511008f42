#include "builders/tables/TableSize.h"

#include "platform/values/Values.h"

#include <cmath>

std::optional<int> TableSize(QStringView text) {
    const auto number = Values::ToNumber(text);
    if (!number)
        return std::nullopt;
    const double whole = std::nearbyint(*number);
    return std::abs(whole) > MostOfATable ? std::nullopt : std::optional(static_cast<int>(whole));
}

int WrittenCount(QStringView text) {
    const double count = std::ceil(Values::Val(text));
    return count < 0 || count > MostOfATable ? 0 : static_cast<int>(count);
}

bool IsBelowOne(QStringView text) {
    return Values::Val(text) < 1;
}
