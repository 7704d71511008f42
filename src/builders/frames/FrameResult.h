// What the Frame dialog hands back to the Frames dialog.
#pragma once

#include <QString>

/// Program-wide: frmFrame's OK sets the two, VisFrame takes them and leaves them empty.
struct FrameResult {
    QString FrameTagResult;
    QString FrameNameResult;
};
