// An entry of the frame's menus by its name.
#pragma once

#include "editor/frame/Frame.h"

#include <QAction>
#include <QWidget>

/// The entry of that name ("mnuFileArray_0", "mEdit_3"), or null where there is none.
inline QAction* MenuEntry(Frame& frame, const QString& name) {
    return frame.Window()->findChild<QAction*>(name);
}
