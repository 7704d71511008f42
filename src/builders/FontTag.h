// What the Font dialog computes: its tag, its list of faces, and the face field as faces are added.
#pragma once

#include "builders/TagPair.h"

#include <QStringList>

class Frame;

struct FontFields {
    QString size{};
    QString color{};
    QString face{};
};

TagPair FontTag(Frame& frame, const FontFields& fields);

/// The face field with one more name: the name alone in an empty field, else behind a comma and a blank.
QString WithFace(const QString& faces, const QString& name);

/// The families of the system as names a web page can use: without the maker's name that some systems add in
/// brackets, each once, sorted in any case.
QStringList FaceNames(const QStringList& families);
