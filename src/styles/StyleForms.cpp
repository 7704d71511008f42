#include "styles/StyleForms.h"

#include "styles/layers/frmDHTML.h"
#include "styles/sheet/frmCSS.h"

std::span<const FormRow> StyleForms() {
    static const FormRow forms[] = {
        FormOf<frmCSS>({.button = {"CSS"}}),
        FormOf<frmDHTML>({.button = {"Layer"}}),
    };
    return forms;
}
