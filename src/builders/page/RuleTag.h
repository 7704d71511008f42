// What the Horizontal Rule dialog computes.
#pragma once

#include "editor/color/TagCase.h"

struct RuleFields {
    QString width{};
    bool percent = false;
    QString thickness{};
    QString align{};
    bool noShade = false;
};

/// With percent the "%" is written even where the width is empty: `<HR%>`.
QString RuleTag(const RuleFields& fields, TagCase tagCase);
