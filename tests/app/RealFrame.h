// The program's own frame, started and stopped as main() does, for a user who ran it before.
#pragma once

#include "app/documents/frmTemplate.h"
#include "app/run/ProgramState.h"
#include "app/run/Shutdown.h"
#include "app/run/Startup.h"
#include "app/surface/MenuEntry.h"
#include "app/window/frmTarnwick.h"
#include "editor/autofill/AutoFillList.h"
#include "editor/color/ColorStream.h"
#include "editor/frame/EditorOptions.h"
#include "editor/typing/UserButtonTexts.h"
#include "editor/views/DesignVisit.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "support/FreshUser.h"
#include "support/ScriptedPrompts.h"
#include "support/Text.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

/// One run of the program. A second one may follow the first: it finds the settings that the first left.
class ProgramRun {
  public:
    ProgramRun() : frame(std::make_unique<frmTarnwick>(store, prompts)) {
        // Nothing but what a test stores brings up the Options dialog.
        frame->Commands().Set(QStringLiteral("mnuWebBrowser"), [this] { ++optionsShown; });
    }

    /// The frame's load, then the frame on the screen.
    bool Start(const QString& commandLine = QString(), bool anotherCopyRuns = false) {
        Startup startup(*frame, commandLine, [anotherCopyRuns] { return anotherCopyRuns; });
        startup.watch = [this](const char* step) { steps << QString::fromLatin1(step); };
        if (!startup.Run())
            return false;
        frame->show();
        frame->activateWindow();
        QCoreApplication::processEvents();
        return true;
    }
    /// True if the frame went.
    bool Stop() { return frame->close(); }

    frmTemplate& New() {
        frame->NewDocument();
        return Active();
    }
    frmTemplate& Active() { return dynamic_cast<frmTemplate&>(*frame->ActiveForm()); }
    QAction& Entry(const char* name) { return *MenuEntry(*frame, QString::fromLatin1(name)); }
    /// A loaded form of that name, for one whose handlers do not matter or that the program does not have
    /// yet.
    QDialog& ShowStandIn(const char* name) {
        auto* dialog = new QDialog(frame.get());
        dialog->setObjectName(QString::fromLatin1(name));
        frame->LoadedForms().Add(dialog);
        dialog->show();
        return *dialog;
    }
    template <typename Widget> Widget& Find(const char* name) {
        return *frame->findChild<Widget*>(QString::fromLatin1(name));
    }
    QObject& VSSpell1() { return *frame->findChild<QObject*>(QStringLiteral("VSSpell1")); }
    ProgramState& Program() { return frame->State<ProgramState>(); }
    EditorOptions& Editor() { return frame->State<EditorOptions>(); }
    UserButtonTexts& Buttons() { return frame->State<UserButtonTexts>(); }
    AutoFillList& Lists() { return frame->State<AutoFillList>(); }
    ColorStream& Stream() { return frame->State<ColorStream>(); }
    DesignVisit& Design() { return frame->State<DesignVisit>(); }

    Settings store;
    ScriptedPrompts prompts;
    QStringList steps;
    int optionsShown = 0;
    std::unique_ptr<frmTarnwick> frame;
};

/// A user who ran the program once and set nothing.
class FrameTest : public testing::Test {
  protected:
    FrameTest() {
        FreshUser();
        Write(Keys::FirstTimeAgain, "1");
    }
    static void Write(const SettingsKey& key, const QByteArray& text) {
        Settings().Write(key, QString::fromLatin1(text));
    }
    static QString Read(const SettingsKey& key) { return Settings().Read(key); }
    /// Reads with a default that no one wrote, to tell a key that is absent.
    static bool IsStored(SettingsKey key) {
        key.standard = QStringLiteral("<absent>");
        return Settings().Read(key) != key.standard;
    }
    static QString MakeFile(const QString& name, const QByteArray& content) {
        const QString path = TestFolder() + u'/' + name;
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
};
