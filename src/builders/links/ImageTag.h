// An image tag both ways: from the fields of the Image dialog, and back into them.
#pragma once

#include "editor/color/TagCase.h"

struct ImageFields {
    QString url{};
    QString lowSrc{};
    QString alt{};
    QString width{};
    QString height{};
    QString hSpace{};
    QString vSpace{};
    QString border{};
    QString align{}; ///< read from a tag and never written: no image tag gets an ALIGN
    QString useMap{};
    bool isMap = false;
    QString linkMe{};
    bool operator==(const ImageFields&) const = default;
};

/// USEMAP is always written, as "#" where no map is named. A link makes ` <A HREF=="…">` of the text before
/// the tag, with a blank in front and two equal signs: documents written so far have this form.
QString ImageTag(const ImageFields& fields, TagCase tagCase);

/// What an image tag says. A word counts wherever it stands first, in a value as well, and a value in other
/// quotes than the tag function writes is not found. The link around an image is no part of its tag.
ImageFields ImageFieldsOf(const QString& tag);
