// The commands that show the tag dialogs.
#include "builders/DialogCommands.h"

#include "builders/frmBody.h"
#include "builders/frmEmbed.h"
#include "builders/frmFont.h"
#include "builders/frmGraphicLink.h"
#include "builders/frmHRInput.h"
#include "builders/frmJava.h"
#include "builders/frmLinks.h"
#include "builders/frmMulti.h"
#include "builders/frmParam.h"
#include "builders/frmSpacer.h"
#include "editor/Commands.h"
#include "editor/Forms.h"
#include "editor/Frame.h"

namespace {

/// One form under all of its entries.
template <typename Form> void Shows(Frame& frame, std::initializer_list<const char*> entries) {
    for (const char* entry : entries)
        frame.Commands().Set(QString::fromLatin1(entry), [&frame] { frame.LoadedForms().Show<Form>(frame); });
}

} // namespace

void FillDialogCommands(Frame& frame) {
    Shows<frmLinks>(frame, {"mnuLink", "tb_link"});
    Shows<frmGraphicLink>(frame, {"mnuImage", "tb_image"});
    Shows<frmEmbed>(frame, {"mnuEmbed", "tb_embed"});
    Shows<frmHRInput>(frame, {"mnuHR", "tb_hr"});
    Shows<frmFont>(frame, {"tb_abc"});
    Shows<frmBody>(frame, {"tb_body"});
    Shows<frmJava>(frame, {"tb_java"});
    Shows<frmParam>(frame, {"tb_java2"});
    Shows<frmMulti>(frame, {"tb_split"});
    Shows<frmSpacer>(frame, {"tb_rectangle"});
}
