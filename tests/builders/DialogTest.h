// Opens a tag dialog by its command and uses it as a person does.
#pragma once

#include "builders/commands/BuilderForms.h"
#include "support/FormTest.h"

class DialogTest : public FormTest {
  protected:
    void SetUp() override { FillFormCommands(frame, BuilderForms()); }
};
