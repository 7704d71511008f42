// What the Link dialog computes: an anchor around the selection.
#pragma once

#include "builders/TagPair.h"

class Frame;

struct LinkFields {
    QString protocol{};
    QString url{};
    QString anchor{};
    QString target{};
};

/// Protocol, URL and anchor are joined unchecked.
TagPair LinkTag(Frame& frame, const LinkFields& fields);
