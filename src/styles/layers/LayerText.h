// Positioned layers: the class that sets a place, and the DIV that uses it.
#pragma once

#include "dialogs/TagPair.h"
#include "editor/color/TagCase.h"

#include <QString>

/// All values stand in the class as they are; top, left and right get no unit.
struct LayerClass {
    QString name = {};
    QString position = {};
    QString top = {};
    QString left = {};
    QString right = {};    ///< empty writes none
    bool addStyle = false; ///< the class stands within a STYLE tag
};

/// What asks for the first field that must not be empty (name, top, left) and is; empty where none is.
QString MissingIn(const LayerClass& layer);

/// ".box {POSITION: absolute;", CR LF, and so on, the brace right behind the last value.
QString ClassText(const LayerClass& layer, TagCase tagCase);

struct Layer {
    QString className = {}; ///< empty writes no CLASS
    QString id = {};        ///< empty writes no ID
    QString visibility = {};
    QString zIndex = {};
};

/// What stands around the content of a layer.
TagPair LayerTag(const Layer& layer, TagCase tagCase);
