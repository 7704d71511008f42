// Commands of menus, toolbar and strips, those first that never ran.
#include "app/events/Stage.h"
#include "app/events/Targets.h"

#include "app/documents/Arrivals.h"
#include "app/documents/frmTemplate.h"
#include "app/window/KnownForms.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Forms.h"
#include "editor/spelling/SpellChecker.h"
#include "platform/text/RichTextBox.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <vector>

namespace {

QAction* ActionOf(Stage& stage, const QString& name) {
    return stage.frame.findChild<QAction*>(name);
}

/// The actions of commands that can be chosen now.
QList<QAction*> Choices(Stage& stage) {
    QList<QAction*> choices;
    for (QAction* action : stage.frame.findChildren<QAction*>())
        if (action->isEnabled() && action->isVisible() && !action->objectName().isEmpty() &&
            !action->menu() && stage.frame.Commands().Has(action->objectName()))
            choices << action;
    return choices;
}

bool Trigger(Stage& stage, QAction* action) {
    // Quitting is dear: each time the program starts anew.
    if (!action || !action->isEnabled() || (action->objectName() == u"mnuExit" && !stage.dice.OneIn(8)))
        return false;
    stage.log.Note(QStringLiteral("command ") + action->objectName());
    action->trigger();
    return true;
}

bool RunAny(Stage& stage) {
    const QList<QAction*> choices = Choices(stage);
    return !choices.isEmpty() && Trigger(stage, stage.dice.From(choices));
}

bool RunMissed(Stage& stage) {
    const QStringList missed = stage.reached.MissedCommands();
    return !missed.isEmpty() && Trigger(stage, ActionOf(stage, stage.dice.From(missed)));
}

bool OpenPage(Stage& stage) {
    const QString path = stage.ground.AnyFile(stage.dice);
    stage.log.Note(QStringLiteral("another copy hands over ") + path);
    stage.frame.FromOutside().Open({path});
    return true;
}

bool ModeTab(Stage& stage) {
    auto* tabs = stage.frame.findChild<QTabBar*>(QStringLiteral("TabStrip3"));
    if (!tabs || !tabs->isVisible())
        return false;
    const int tab = stage.dice.Below(tabs->count());
    stage.log.Note(QStringLiteral("mode ") + tabs->tabText(tab));
    stage.hand.Click(*tabs, tabs->tabRect(tab).center(), Qt::LeftButton);
    // Mostly the page is there before the user goes on.
    if (!stage.dice.OneIn(4))
        stage.awaited = [&isLoading = stage.isLoading] { return !isLoading(); };
    return true;
}

bool UserButton(Stage& stage) {
    QList<QWidget*> buttons = Targets::Controls(stage.frame, [](QWidget& widget) {
        return widget.objectName().startsWith(QStringLiteral("Command1"));
    });
    if (buttons.isEmpty())
        return false;
    QWidget& button = *stage.dice.From(buttons);
    const auto with = stage.dice.OneIn(3) ? Qt::RightButton : Qt::LeftButton;
    stage.log.Note(QStringLiteral("user button ") + Targets::NameOf(button) +
                   (with == Qt::RightButton ? QStringLiteral(", right") : QString()));
    stage.hand.Click(button, button.rect().center(), with);
    return true;
}

/// The list that comes up after a pause in a tag.
bool AutoFill(Stage& stage) {
    auto* document = dynamic_cast<frmTemplate*>(stage.frame.ActiveForm());
    if (!document)
        return false;
    stage.log.Note(QStringLiteral("auto-fill"));
    document->txtInput().SetFocus();
    stage.hand.Type(stage.dice.Of<QString>({QStringLiteral("<td "), QStringLiteral("<body "),
                                            QStringLiteral("<img align="), QStringLiteral("<input type=")}));
    if (QTimer& timer = document->Timer1(); timer.isActive())
        QCoreApplication::postEvent(&timer, new QTimerEvent(timer.timerId()));
    return true;
}

/// How a form comes up: by a control of another one, which a command shows, or by the command itself.
struct Road {
    const char* form;
    const char* command;
    const char* over;
    const char* control;
    Qt::MouseButton button = Qt::LeftButton;
};

constexpr Road roads[] = {
    {"frmGridInput", "tb_table", "frmTable", "Grid1"},
    {"frmFrame", "tb_frame", "VisFrame", "cmdFrame_0"},
    {"frmInfo", "mnuNew", "frmTime", "cmdInfo"},
    {"frmImage", "mnuImage", "frmGraphicLink", "cmdPicOpen"},
    {"frmTools", "mnuNew", "frmTarnwick", "Command1_0", Qt::RightButton},
    {"frmWizard", "mnuWizard", "frmBody", "cmdOK"},
    {"frmWizard", "mnuWizard", "frmGraphicLink", "cmdOK"},
};

bool GoForMissedForm(Stage& stage) {
    const QStringList missed = stage.reached.MissedForms();
    std::vector<Road> open;
    for (const Road& road : roads)
        if (missed.contains(QString::fromLatin1(road.form)))
            open.push_back(road);
    for (const FormRow& row : KnownForms())
        if (*row.reach.entry.name && missed.contains(QString::fromLatin1(row.name)))
            open.push_back({row.name, row.reach.entry.name, "", ""});
    if (open.empty())
        return false;
    const Road& road = stage.dice.From(open);
    QWidget* over = stage.frame.LoadedForms().Find(QString::fromLatin1(road.over));
    auto* control =
        over && over->isVisible() ? over->findChild<QWidget*>(QString::fromLatin1(road.control)) : nullptr;
    if (!control)
        return Trigger(stage, ActionOf(stage, QString::fromLatin1(road.command)));
    stage.log.Note(QStringLiteral("go on by ") + Targets::NameOf(*control));
    stage.hand.Click(*control, control->rect().center(), road.button);
    return true;
}

/// The dictionary comes in the background: the events wait for the first question.
bool SpellCheck(Stage& stage) {
    Document* document = stage.frame.ActiveForm();
    if (!document)
        return false;
    stage.log.Note(QStringLiteral("spell check"));
    document->txtInput().SetSelStart(0);
    document->txtInput().SetSelText(QStringLiteral("mistaek "));
    document->txtInput().SetSelStart(0);
    const auto over = std::make_shared<bool>(false);
    SpellChecker& checker = stage.frame.VSSpell1();
    const auto end = [over] { *over = true; };
    QObject::connect(&checker, &SpellChecker::CheckFinished, &checker, end);
    QObject::connect(&checker, &SpellChecker::NoDictionary, &checker, end);
    stage.frame.Commands().Run(QStringLiteral("mnuSpellCheck"));
    stage.awaited = [over, reached = &stage.reached] {
        return *over || !reached->MissedForms().contains(QStringLiteral("frmSpell")) ||
               QApplication::activeModalWidget();
    };
    return true;
}

constexpr Act acts[] = {{GoForMissedForm, 8, 2, 0}, {SpellCheck, 1, 0, 0}, {RunAny, 12, 0, 0},
                        {RunMissed, 6, 0, 0},       {OpenPage, 3, 1, 0},   {ModeTab, 4, 0, 0},
                        {UserButton, 2, 0, 0},      {AutoFill, 2, 0, 0}};

} // namespace

std::span<const Act> CommandActs() {
    return acts;
}
