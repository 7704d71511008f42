// What a screen reader says of the frame and of every form.
#include "app/help/frmHelp.h"
#include "app/help/HelpBook.h"
#include "app/help/HelpFile.h"
#include "app/options/frmExternal.h"
#include "app/RealFrame.h"
#include "app/run/frmSplash.h"
#include "app/surface/frmTools.h"
#include "app/surface/UserButtons.h"
#include "app/window/StatusPanels.h"
#include "builders/commands/BuilderForms.h"
#include "builders/tables/frmGridInput.h"
#include "builders/tables/frmTable.h"
#include "editor/autofill/frmDropDown.h"
#include "editor/spelling/frmSpell.h"
#include "styles/StyleForms.h"
#include "support/SourceFolder.h"
#include "tools/ToolForms.h"

#include <QAccessible>
#include <QDirIterator>
#include <QLabel>

namespace {

/// What a person reads or works with; the rest is what holds it.
bool IsRead(QAccessible::Role role) {
    switch (role) {
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::ProgressBar:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::PageTab:
    case QAccessible::PageTabList:
    case QAccessible::MenuItem:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::Graphic:
    case QAccessible::ToolBar:
    case QAccessible::StatusBar:
    case QAccessible::ListItem:
        return true;
    default:
        return false;
    }
}

QString Called(const QAccessibleInterface& face) {
    const QObject* object = face.object();
    return QStringLiteral("%1 %2 (role %3)")
        .arg(QString::fromLatin1(object ? object->metaObject()->className() : "no object"),
             object ? object->objectName() : QString())
        .arg(int(face.role()));
}

/// Entries that no menu shows, such as those for files that were never opened.
bool IsHiddenEntry(const QAccessibleInterface& face) {
    return face.role() == QAccessible::MenuItem && face.state().invisible;
}

/// The nameless ones among a control and all below it, and the labels that don't say what they show. A label
/// that takes the focus is a control, named for what it does.
void Collect(QAccessibleInterface& face, QStringList& wrong, int depth = 0) {
    const QString name = face.text(QAccessible::Name);
    // A list tells its rows by their own texts, which may be blank.
    if (IsRead(face.role()) && face.role() != QAccessible::ListItem && !IsHiddenEntry(face) && name.isEmpty())
        wrong << QStringLiteral("nameless: ") + Called(face);
    if (const auto* label = qobject_cast<QLabel*>(face.object());
        label && label->focusPolicy() == Qt::NoFocus && !label->text().isEmpty() &&
        label->text().remove(u'&') != name)
        wrong << QStringLiteral("hides its text: ") + Called(face);
    for (int child = 0; depth < 30 && child < face.childCount(); ++child)
        if (QAccessibleInterface* below = face.child(child))
            Collect(*below, wrong, depth + 1);
}

class AccessibleNames : public FrameTest {
  protected:
    AccessibleNames() {
        Write(Keys::UseMSIE, "1");
        Write(Keys::ShowUserButtons, "1");
        EXPECT_TRUE(run.Start(MakeFile(QStringLiteral("a.htm"), "<P>a")));
    }
    static QStringList Wrong(QWidget& window) {
        QStringList wrong;
        Collect(*QAccessible::queryAccessibleInterface(&window), wrong);
        return wrong;
    }
    Forms& LoadedForms() { return run.frame->LoadedForms(); }
    /// Every form there is, loaded.
    void LoadAll() {
        for (const auto& forms : {BuilderForms(), StyleForms(), ToolForms()})
            for (const FormRow& row : forms)
                if (row.reach.show)
                    row.reach.show(*run.frame);
        auto& table = LoadedForms().Load<frmTable>(*run.frame);
        LoadedForms().Load<frmGridInput>(*run.frame, table, table);
        LoadedForms().Load<frmExternal>(*run.frame);
        LoadedForms().Load<frmTools>(*run.frame, UserButton());
        LoadedForms().Load<frmSplash>(*run.frame);
        LoadedForms().Load<frmSpell>(run.frame.get());
        LoadedForms().Load<frmHelp>(*run.frame, std::make_shared<HelpBook>(BuiltHelpFile()));
        LoadedForms().Load<frmDropDown>(*run.frame).Fill({{}}, QStringLiteral("Attributes"));
    }
    ProgramRun run;
};

TEST_F(AccessibleNames, EveryControlOfTheFrameHasOne) {
    EXPECT_EQ(Wrong(*run.frame), QStringList());
}

TEST_F(AccessibleNames, EveryControlOfEveryFormHasOne) {
    LoadAll();
    for (int n = 0; n < LoadedForms().Count(); ++n)
        EXPECT_EQ(Wrong(*LoadedForms().At(n)), QStringList())
            << LoadedForms().At(n)->objectName().toStdString();
}

TEST_F(AccessibleNames, NoFormIsMissingAbove) {
    LoadAll();
    int forms = 0;
    QDirIterator sources(SourceFolder() + QStringLiteral("/src"), {QStringLiteral("*.ui")}, QDir::Files,
                         QDirIterator::Subdirectories);
    for (; sources.hasNext(); ++forms) {
        const QString source = sources.next();
        // The upload client is a program of its own.
        if (source.contains(QStringLiteral("/src/ftp/")))
            continue;
        const QString form = QFileInfo(source).completeBaseName();
        EXPECT_TRUE(LoadedForms().Find(form)) << form.toStdString();
    }
    EXPECT_GE(forms, 15);
}

TEST_F(AccessibleNames, StatusPanelsTellTheirText) {
    auto& bar = run.Find<StatusBar>("StatusBar");
    bar.SetPanel3(QStringLiteral("Line 7"));
    const struct {
        const char *panel, *description;
    } rows[] = {{"Panel1", "Date"}, {"Panel2", "Time"}, {"Panel3", ""}};
    for (const auto& row : rows) {
        auto& panel = run.Find<QLabel>(row.panel);
        const auto* face = QAccessible::queryAccessibleInterface(&panel);
        EXPECT_FALSE(panel.text().isEmpty()) << row.panel;
        EXPECT_EQ(face->text(QAccessible::Name), panel.text());
        EXPECT_EQ(face->text(QAccessible::Description), QString::fromLatin1(row.description));
    }
}

} // namespace
