// What the Frames and Frame dialogs compute.
#pragma once

#include "builders/frames/FrameSplit.h"
#include "dialogs/TagPair.h"
#include "editor/color/TagCase.h"

#include <QStringList>

/// Auto is what a browser does anyway: it is not written.
enum class Scrolling { None, Yes, No, Auto };

struct FrameFields {
    QString src{};
    QString name{};
    QString marginWidth{};
    QString marginHeight{};
    Scrolling scrolling = Scrolling::None;
    bool noResize = false;
    bool noBorder = false;
    QString borderColor{}; ///< RRGGBB
};

/// A border colour stands behind "BORDERCOLOR=#=".
QString FrameTag(const FrameFields& fields, TagCase tagCase);

struct FramesetFields {
    FrameDirection direction = FrameDirection::None;
    QStringList sizes{};  ///< an empty one is left out
    bool percent = false; ///< a "%" behind each size, whatever it is
    QString border{};     ///< written without quotes
    QStringList frames{}; ///< the tag of each frame; an empty one gives an empty line
};

/// The frames stand one a line. Without a direction there are no sizes, but their closing quote is there.
TagPair FramesetTag(const FramesetFields& fields, TagCase tagCase);
