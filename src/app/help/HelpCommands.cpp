#include "app/help/HelpCommands.h"

#include "app/run/frmSplash.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"

#include <QShortcut>
#include <QWidget>

void FillHelpCommands(Frame& frame) {
    frame.Commands().Set(QStringLiteral("mnuMainHelp"), [&frame] { ShowHelp(frame); });
}

void BindHelpKey(QWidget& window, Frame& frame) {
    auto* key = new QShortcut(QKeySequence(Qt::Key_F1), &window);
    key->setContext(Qt::ApplicationShortcut);
    QObject::connect(key, &QShortcut::activated, &window, [&frame] { ShowHelp(frame); });
}

void ShowHelp(Frame& frame) {
    frame.SetStatusPanel(QStringLiteral("The help file tarnwick.chm is not installed."));
}

void mnuAbout_Click(Frame& frame) {
    frame.LoadedForms().Show<frmSplash>(frame).SetMessage(
        QStringLiteral("See help file for Copyright,\nLicense and Warranty information."));
}
