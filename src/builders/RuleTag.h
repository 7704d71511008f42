// What the Horizontal Rule dialog computes.
#pragma once

#include <QString>

class Frame;

struct RuleFields {
    QString width{};
    bool percent = false;
    QString thickness{};
    QString align{};
    bool noShade = false;
};

/// With percent the "%" is written even where the width is empty: `<HR%>`.
QString RuleTag(Frame& frame, const RuleFields& fields);
