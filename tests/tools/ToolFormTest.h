// Opens a form of the site tools by its command and uses it as a person does.
#pragma once

#include "support/FormTest.h"
#include "tools/ToolCommands.h"
#include "tools/ToolForms.h"

class ToolFormTest : public FormTest {
  protected:
    void SetUp() override {
        FillFormCommands(frame, ToolForms());
        FillToolCommands(frame);
    }

    void Check(const QString& name, bool on) { Control<QCheckBox>(name).setChecked(on); }
    QStringList Texts(const QString& list) {
        QStringList texts;
        for (int row = 0; row < Control<QListWidget>(list).count(); ++row)
            texts << Control<QListWidget>(list).item(row)->text();
        return texts;
    }
    /// The only box that came since the last call.
    Asked Box() {
        const QVector<Asked> asked = std::exchange(frame.prompts.asked, {});
        EXPECT_EQ(asked.size(), 1);
        return asked.isEmpty() ? Asked{} : asked.first();
    }
};
