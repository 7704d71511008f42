#include "tools/ToolForms.h"

#include "tools/upload/frmFTP.h"

std::span<const FormRow> ToolForms() {
    static const FormRow forms[] = {
        // Still to come; their turn at the end is settled.
        {"frmInfo", {.unload = 8}},
        {"frmTime", {.unload = 13}},
        FormOf<frmFTP>({.unload = 14}),
    };
    return forms;
}
