#include "builders/BuilderForms.h"

#include "builders/frmBody.h"
#include "builders/frmBulletList.h"
#include "builders/frmEmbed.h"
#include "builders/frmFont.h"
#include "builders/frmGraphicLink.h"
#include "builders/frmHRInput.h"
#include "builders/frmJava.h"
#include "builders/frmLinks.h"
#include "builders/frmMulti.h"
#include "builders/frmParam.h"
#include "builders/frmSpacer.h"
#include "dialogs/frmImage.h"

std::span<const FormRow> BuilderForms() {
    static const FormRow forms[] = {
        FormOf<frmBody>({.button = {"body"}, .unload = 1}),
        FormOf<frmEmbed>({.entry = {"mnuEmbed"}, .button = {"embed"}, .unload = 2}),
        FormOf<frmFont>({.button = {"abc"}, .unload = 3}),
        FormOf<frmGraphicLink>({.entry = {"mnuImage"}, .button = {"image"}, .unload = 6}),
        FormOf<frmHRInput>({.entry = {"mnuHR"}, .button = {"hr"}, .unload = 7}),
        FormOf<frmJava>({.button = {"java"}, .unload = 9}),
        FormOf<frmLinks>({.entry = {"mnuLink"}, .button = {"link"}, .unload = 10}),
        FormOf<frmParam>({.button = {"java2"}, .unload = 11}),
        FormOf<frmSpacer>({.button = {"rectangle"}, .unload = 16}),
        FormOf<frmBulletList>({.unload = 18}),
        FormOf<frmImage>({.unload = 20}),
        FormOf<frmMulti>({.button = {"split"}, .unload = 21}),
        // Still to come; their turn at the end is settled.
        {"frmForm", {.unload = 4}},
        {"frmFrame", {.unload = 5}},
        {"frmTable", {.unload = 12}},
        {"frmGridInput", {.unload = 19}},
        {"VisFrame", {.unload = 23}},
    };
    return forms;
}
