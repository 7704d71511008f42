// What the Font dialog computes: its tag, and the face field as faces are added.
#pragma once

#include "builders/TagPair.h"

#include <QString>

class Frame;

struct FontFields {
    QString size{};
    QString color{};
    QString face{};
};

TagPair FontTag(Frame& frame, const FontFields& fields);

/// The face field with one more name: the name alone in an empty field, else behind a comma and a blank.
QString WithFace(const QString& faces, const QString& name);
