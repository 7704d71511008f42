#include "tools/wizard/WaitForTag.h"

#include "dialogs/DialogState.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"

#include <QEventLoop>

void WaitForTag(Frame& frame, const QWidget& page, const QString& command, const QString& form) {
    auto& state = frame.State<DialogState>();
    Forms& forms = frame.LoadedForms();
    frame.Commands().Run(command);
    const QWidget* dialog = forms.Find(form);
    QEventLoop loop;
    QObject::connect(&forms, &Forms::Unloading, &loop, [&](const QWidget* unloaded) {
        if (unloaded == dialog && !state.TagBuilt)
            state.TellBuilt(QString());
        if (state.TagBuilt)
            loop.quit();
    });
    QObject::connect(&page, &QObject::destroyed, &loop, &QEventLoop::quit);
    if (dialog)
        loop.exec();
    else
        state.TellBuilt(QString());
    state.TagBuilt = false;
}
