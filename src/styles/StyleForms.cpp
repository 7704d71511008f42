#include "styles/StyleForms.h"

std::span<const FormRow> StyleForms() {
    static const FormRow forms[] = {
        // Still to come.
        {"frmCSS"},
        {"frmDHTML"},
    };
    return forms;
}
