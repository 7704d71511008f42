#include "app/window/FrameHints.h"

#include "app/documents/frmTemplate.h"
#include "app/surface/Toolbar.h"
#include "app/surface/UserButtons.h"
#include "app/window/DocumentTabs.h"
#include "app/window/EmptyFrame.h"
#include "app/window/MainFrame.h"
#include "app/window/ModeStrip.h"
#include "app/window/ModifiedMarks.h"
#include "app/window/OpenDocuments.h"
#include "app/window/StripRound.h"
#include "app/window/WindowChooser.h"
#include "platform/store/Settings.h"

#include <QMdiArea>
#include <QShortcut>

namespace {

void AddStripKeys(MainFrame& frame, QMdiArea& area, OpenDocuments& documents, EmptyFrame* empty) {
    auto& modes = static_cast<ModeStrip&>(frame.Picture4());
    auto& toolbar = *frame.Window()->findChild<Toolbar1*>();
    toolbar.LeaveF6();
    const auto takeFocusInArea = [&documents, empty] {
        documents.FocusView();
        if (empty)
            empty->TakeFocus();
    };
    const auto inEmptyFrame = [empty](const QWidget& widget) { return empty && empty->Holds(widget); };
    new StripRound(*frame.Window(), {{&area, takeFocusInArea, inEmptyFrame},
                                     {&modes, [&modes] { modes.TakeFocus(); }},
                                     {&frame.TabStrip2(), [&frame] { frame.TabStrip2().TakeFocus(); }},
                                     {&toolbar, [&toolbar] { toolbar.TakeFocus(); }},
                                     {&frame.Picture2(), [&frame] { frame.Picture2().TakeFocus(); }}});
    modes.AddKeys();
}

} // namespace

void AddHints(MainFrame& frame, QMdiArea& area, OpenDocuments& documents) {
    const auto wanted = [&frame](const SettingsKey& key) { return frame.Store().ReadFlag(key); };
    if (wanted(Keys::ModifiedMark))
        new ModifiedMarks(frame, area, documents, frame.TabStrip2());
    EmptyFrame* empty = wanted(Keys::EmptyFrameText) ? new EmptyFrame(frame, area, documents) : nullptr;
    if (wanted(Keys::WindowChooser))
        new WindowChooser(area);
    if (wanted(Keys::StripKeys))
        AddStripKeys(frame, area, documents, empty);
}
