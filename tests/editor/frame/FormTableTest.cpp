// A row of the table of forms: the commands it fills, and its turn at the program's end.
#include "editor/frame/FormTable.h"

#include "support/TestFrame.h"

#include <gtest/gtest.h>

class frmRow final : public QWidget {
    Q_OBJECT

  public:
    explicit frmRow(Frame&) {}
};

class frmAsked final : public QWidget {
    Q_OBJECT

  public:
    frmAsked(Frame&, int) {}
};

namespace {

TEST(FormTable, ARowIsNamedAfterItsFormAndShowsItUnderEachOfItsEntries) {
    TestFrame frame;
    const FormRow rows[] = {FormOf<frmRow>({.entry = {"mnuRow"}, .button = {"row"}})};
    FillFormCommands(frame, rows);
    EXPECT_STREQ(rows[0].name, "frmRow");
    QStringList names = frame.Commands().Names();
    names.sort();
    EXPECT_EQ(names, QStringList({QStringLiteral("mnuRow"), QStringLiteral("tb_row")}));
    for (const QString& name : names) {
        frame.Commands().Run(name);
        auto* form = frame.LoadedForms().Find<frmRow>();
        ASSERT_TRUE(form) << name.toStdString();
        EXPECT_TRUE(form->isVisible());
        delete form;
    }
}

TEST(FormTable, ARowSaysHowItsFormIsShownWhereThatTakesMore) {
    TestFrame frame;
    const FormRow rows[] = {
        FormOf<frmAsked>({.entry = {"mnuAsked"},
                          .show = [](Frame& owner) { owner.LoadedForms().Load<frmAsked>(owner, 7); }}),
    };
    FillFormCommands(frame, rows);
    frame.Commands().Run(QStringLiteral("mnuAsked"));
    auto* form = frame.LoadedForms().Find<frmAsked>();
    ASSERT_TRUE(form);
    EXPECT_FALSE(form->isVisible());
    delete form;
}

TEST(FormTable, AFormToComeHasNoCommandYet) {
    TestFrame frame;
    const FormRow rows[] = {{"frmLater", {.entry = {"mnuLater"}}}, FormOf<frmAsked>({})};
    FillFormCommands(frame, rows);
    EXPECT_TRUE(frame.Commands().Names().isEmpty());
}

TEST(FormTable, FormsGoByTheirTurnsAndThoseWithoutOneLast) {
    const FormRow rows[] = {
        {"frmNew"},
        {"frmThird", {.unload = 3}},
        {"frmStays", {.unload = FormReach::Never}},
        {"frmFirst", {.unload = 1}},
        {"frmNewer"},
    };
    QStringList names;
    for (const char* name : FormsToUnload(rows))
        names << QString::fromLatin1(name);
    EXPECT_EQ(names.join(u' '), QStringLiteral("frmFirst frmThird frmNew frmNewer"));
}

} // namespace

#include "FormTableTest.moc"
