// What the Embed dialog computes.
#pragma once

#include <QString>

class Frame;

struct EmbedFields {
    QString width{};
    QString height{};
    QString palette{};
    QString url{};
};

QString EmbedTag(Frame& frame, const EmbedFields& fields);
