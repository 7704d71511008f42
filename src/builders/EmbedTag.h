// What the Embed dialog computes.
#pragma once

#include "editor/TagCase.h"

struct EmbedFields {
    QString width{};
    QString height{};
    QString palette{};
    QString url{};
};

QString EmbedTag(const EmbedFields& fields, TagCase tagCase);
