// What the Image dialog computes: an image tag, bare or wrapped in a link.
#pragma once

#include "editor/TagCase.h"

/// The dialog's fields that are written. Its alignment is not one of them: no image tag gets an ALIGN.
struct ImageFields {
    QString url{};
    QString lowSrc{};
    QString alt{};
    QString width{};
    QString height{};
    QString hSpace{};
    QString vSpace{};
    QString border{};
    QString useMap{};
    bool isMap = false;
    QString linkMe{};
};

/// USEMAP is always written, as "#" where no map is named. A link makes ` <A HREF=="…">` of the text before
/// the tag, with a blank in front and two equal signs: documents written so far have this form.
QString ImageTag(const ImageFields& fields, TagCase tagCase);
