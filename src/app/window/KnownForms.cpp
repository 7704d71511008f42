#include "app/window/KnownForms.h"

#include "app/help/frmHelp.h"
#include "app/help/HelpCommands.h"
#include "app/options/frmExternal.h"
#include "app/run/frmSplash.h"
#include "app/surface/frmTools.h"
#include "builders/commands/BuilderForms.h"
#include "styles/StyleForms.h"
#include "tools/ToolForms.h"

#include <vector>

std::span<const FormRow> AppForms() {
    static const FormRow forms[] = {
        FormOf<frmSplash>({.entry = {"mnuAbout"}, .show = mnuAbout_Click, .unload = 15}),
        FormOf<frmExternal>({.entry = {"mnuWebBrowser"}, .show = mnuWebBrowser_Click, .unload = 17}),
        FormOf<frmTools>({.unload = 22}),
        FormOf<frmHelp>({}),
    };
    return forms;
}

std::span<const FormRow> KnownForms() {
    static const std::vector<FormRow> forms = [] {
        std::vector<FormRow> all;
        for (const auto& folder : {AppForms(), BuilderForms(), StyleForms(), ToolForms()})
            all.insert(all.end(), folder.begin(), folder.end());
        return all;
    }();
    return forms;
}
