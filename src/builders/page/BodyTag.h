// What the Body dialog computes: its tag, and the colours that it finds in a document.
#pragma once

#include "editor/color/TagCase.h"

struct BodyFields {
    QString bg{};
    QString text{};
    QString link{};
    QString vlink{};
    QString alink{};
    QString background{};
    bool operator==(const BodyFields&) const = default;
};

QString BodyTag(const BodyFields& fields, TagCase tagCase);

/// The five colours as the dialog reads them out of a whole document: for each the first place where its word
/// stands, in any case and anywhere, and from there the next "#" with the six characters behind it. So a
/// colour may well be another attribute's. background is never read.
BodyFields BodyColorsOf(const QString& document);
