// What the two dialogs for applets compute. No value is quoted, not even one that holds a blank.
#pragma once

#include "builders/TagPair.h"

class Frame;

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
TagPair AppletTag(Frame& frame, const AppletFields& fields);

/// One parameter of an applet.
QString ParamTag(Frame& frame, const QString& name, const QString& value);
