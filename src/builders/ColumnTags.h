// What the Spacer and MultiColumn dialogs compute.
#pragma once

#include "builders/TagPair.h"

class Frame;

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
QString SpacerTag(Frame& frame, const SpacerFields& fields);

TagPair MultiColumnTag(Frame& frame, const QString& cols, const QString& gutter, const QString& width);
