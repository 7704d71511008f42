// What stands around a selection.
#pragma once

#include <QString>

struct TagPair {
    QString open;
    QString close;
    bool operator==(const TagPair&) const = default;
};
