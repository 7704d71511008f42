// What the two dialogs for applets compute. No value is quoted, not even one that holds a blank.
#pragma once

#include "dialogs/TagPair.h"
#include "editor/color/TagCase.h"

struct AppletFields {
    QString codeBase{};
    QString code{};
    QString width{};
    QString height{};
    QString alt{};
    QString name{};
    QString vSpace{};
    QString hSpace{};
    QString align{};
};

/// The closing tag stands on a line of its own.
TagPair AppletTag(const AppletFields& fields, TagCase tagCase);

struct ParamFields {
    QString name{};
    QString value{};
};

/// One parameter of an applet.
QString ParamTag(const ParamFields& fields, TagCase tagCase);
