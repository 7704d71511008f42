// The tag of an embedded file both ways: from the fields of the Embed dialog, and back into them.
#pragma once

#include "editor/color/TagCase.h"

struct EmbedFields {
    QString width{};
    QString height{};
    QString palette{};
    QString url{};
    bool operator==(const EmbedFields&) const = default;
};

QString EmbedTag(const EmbedFields& fields, TagCase tagCase);

/// What an embed's tag says; each word counts wherever it stands first.
EmbedFields EmbedFieldsOf(const QString& tag);
