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
template <typename Form>
void Shows(Frame& frame, const char* form, std::initializer_list<const char*> entries) {
    const QString name = QString::fromLatin1(form);
    for (const char* entry : entries)
        frame.Commands().Set(QString::fromLatin1(entry),
                             [&frame, name] { frame.LoadedForms().Show<Form>(name, frame); });
}

} // namespace

void FillDialogCommands(Frame& frame) {
    Shows<frmLinks>(frame, "frmLinks", {"mnuLink", "tb_link"});
    Shows<frmGraphicLink>(frame, "frmGraphicLink", {"mnuImage", "tb_image"});
    Shows<frmEmbed>(frame, "frmEmbed", {"mnuEmbed", "tb_embed"});
    Shows<frmHRInput>(frame, "frmHRInput", {"mnuHR", "tb_hr"});
    Shows<frmFont>(frame, "frmFont", {"tb_abc"});
    Shows<frmBody>(frame, "frmBody", {"tb_body"});
    Shows<frmJava>(frame, "frmJava", {"tb_java"});
    Shows<frmParam>(frame, "frmParam", {"tb_java2"});
    Shows<frmMulti>(frame, "frmMulti", {"tb_split"});
    Shows<frmSpacer>(frame, "frmSpacer", {"tb_rectangle"});
}
