#include "tools/find/FindCommands.h"

#include "editor/frame/Commands.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "tools/find/FindAgain.h"
#include "tools/find/FindState.h"
#include "tools/find/frmFindReplace.h"

namespace {

struct TabRow {
    const char* name;
    qint16 tab;
};

const TabRow tabs[] = {{"mnuFind", 1}, {"mnuReplace", 2}, {"mnuMultiFile", 3}};

/// A form that is loaded already comes to the front at the tab that it shows.
void ShowAt(Frame& frame, qint16 tab) {
    frame.State<FindState>().StartTab = tab;
    frame.LoadedForms().Show<frmFindReplace>(frame);
}

void mnuFindAgain_Click(Frame& frame) {
    if (frame.State<FindAgainState>().Text.isEmpty())
        frame.Commands().Run(QStringLiteral("mnuFind"));
    else
        FindAgain(frame);
}

} // namespace

void tb_find_Click(Frame& frame) {
    frame.LoadedForms().Show<frmFindReplace>(frame, frmFindReplace::Owner::None);
}

void FillFindCommands(Frame& frame) {
    for (const TabRow& row : tabs)
        frame.Commands().Set(QString::fromLatin1(row.name), [&frame, &row] { ShowAt(frame, row.tab); });
    frame.Commands().Set(QStringLiteral("mnuFindAgain"), [&frame] { mnuFindAgain_Click(frame); });
}
