#include "tools/ToolForms.h"

#include "tools/find/FindCommands.h"
#include "tools/find/frmFindReplace.h"
#include "tools/links/frmHTTPExplorer.h"
#include "tools/projects/frmProject.h"
#include "tools/timer/frmInfo.h"
#include "tools/timer/frmTime.h"
#include "tools/upload/frmFTP.h"
#include "tools/wizard/frmWizard.h"

std::span<const FormRow> ToolForms() {
    static const FormRow forms[] = {
        FormOf<frmFindReplace>({.button = {"find"}, .show = tb_find_Click}),
        FormOf<frmHTTPExplorer>({.entry = {"mnuShowLinks"}, .show = mnuShowLinks_Click}),
        FormOf<frmInfo>({.unload = 8}),
        FormOf<frmTime>({.unload = 13}),
        FormOf<frmFTP>({.unload = 14}),
        FormOf<frmProject>({.button = {"object"}}),
        FormOf<frmWizard>({}),
    };
    return forms;
}
