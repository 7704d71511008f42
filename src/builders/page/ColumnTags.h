// What the Spacer and MultiColumn dialogs compute.
#pragma once

#include "dialogs/TagPair.h"
#include "editor/color/TagCase.h"

enum class SpacerKind { None, Horizontal, Vertical, Block };

struct SpacerFields {
    SpacerKind kind = SpacerKind::None;
    QString size{};
    QString width{};
    QString height{};
    QString align{};
};

/// Only the fields of the kind are written, whatever the others hold; without a kind nothing stands behind
/// "TYPE=".
QString SpacerTag(const SpacerFields& fields, TagCase tagCase);

struct MultiColumnFields {
    QString cols{};
    QString gutter{};
    QString width{};
};

TagPair MultiColumnTag(const MultiColumnFields& fields, TagCase tagCase);
