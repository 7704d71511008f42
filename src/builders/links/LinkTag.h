// What the Link dialog computes: an anchor around the selection.
#pragma once

#include "dialogs/TagPair.h"
#include "editor/color/TagCase.h"

struct LinkFields {
    QString protocol{};
    QString url{};
    QString anchor{};
    QString target{};
};

/// Protocol, URL and anchor are joined unchecked.
TagPair LinkTag(const LinkFields& fields, TagCase tagCase);
