// The colour dialog of the auto-fill lists.
#include "builders/AutoFillPick.h"

#include "dialogs/PickColor.h"
#include "editor/AutoFillHooks.h"
#include "editor/Frame.h"

void FillAutoFillHooks(Frame& frame) {
    frame.State<AutoFillHooks>().PickColorHex = [&frame](QWidget* owner) {
        const QString picked = PickColor(frame, owner);
        return picked.isEmpty() ? picked : ColorHex(picked);
    };
}
