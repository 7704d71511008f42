// What the Font dialog computes: its tag, and the face field as faces are added.
#pragma once

#include "dialogs/TagPair.h"
#include "editor/color/TagCase.h"

#include <QString>

struct FontFields {
    QString size{};
    QString color{};
    QString face{};
};

TagPair FontTag(const FontFields& fields, TagCase tagCase);

/// The face field with one more name: the name alone in an empty field, else behind a comma and a blank.
QString WithFace(const QString& faces, const QString& name);
