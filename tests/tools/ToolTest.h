// The site tools by their commands, on a test frame.
#pragma once

#include "support/TestFrame.h"
#include "tools/ToolCommands.h"
#include "tools/ToolForms.h"

#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QCoreApplication>
#include <QTest>

inline QString T(const char16_t* text) {
    return QString::fromUtf16(text);
}

class ToolTest : public testing::Test {
  protected:
    ToolTest() {
        FillToolCommands(frame);
        FillFormCommands(frame, ToolForms());
    }

    void Run(const char16_t* command) { frame.Commands().Run(T(command)); }
    RecordingBox& Box() { return frame.Box(); }
    template <typename T> T* Form() { return frame.LoadedForms().Find<T>(); }
    /// A control of a form by its name.
    template <typename C> static C& Control(QWidget& form, const char16_t* name) {
        C* control = form.findChild<C*>(T(name));
        if (!control)
            qFatal("no control %s", qPrintable(T(name)));
        return *control;
    }
    static void Press(QWidget& form, const char16_t* button) {
        QTest::mouseClick(&Control<QAbstractButton>(form, button), Qt::LeftButton);
    }
    /// The texts of the boxes and questions so far, in their order.
    QStringList Questions() {
        QStringList texts;
        for (const auto& asked : frame.prompts.asked)
            texts << asked.text;
        return texts;
    }

    TestFrame frame;
};
