#include "tools/ToolForms.h"

#include "tools/find/FindCommands.h"
#include "tools/find/frmFindReplace.h"
#include "tools/projects/frmProject.h"
#include "tools/upload/frmFTP.h"

std::span<const FormRow> ToolForms() {
    static const FormRow forms[] = {
        FormOf<frmFindReplace>({.button = {"find"}, .show = tb_find_Click}),
        FormOf<frmProject>({.button = {"object"}}),
        // Still to come; their turn at the end is settled.
        {"frmInfo", {.unload = 8}},
        {"frmTime", {.unload = 13}},
        FormOf<frmFTP>({.unload = 14}),
    };
    return forms;
}
