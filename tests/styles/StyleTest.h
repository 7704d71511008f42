// Opens a form of styles by its command and uses it as a person does.
#pragma once

#include "dialogs/TagRows.h"
#include "styles/StyleForms.h"
#include "support/FormTest.h"

class StyleTest : public FormTest {
  protected:
    void SetUp() override { FillFormCommands(frame, StyleForms()); }
};
