#include "builders/page/frmSpacer.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "dialogs/TagRows.h"
#include <QRadioButton>

namespace {

class frmSpacerTest : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        Open(T(u"tb_rectangle"), T(u"frmSpacer"));
    }
    /// Which of the fields can be used, each told by a letter; a label that does not go along shows as "?".
    QString Usable() {
        QString usable;
        const std::pair<QString, QChar> fields[] = {
            {T(u"txtSize"), u'S'}, {T(u"txtWidth"), u'W'}, {T(u"txtHeight"), u'H'}, {T(u"cboAlign"), u'A'}};
        for (const auto& [name, letter] : fields) {
            const bool on = Control<QWidget>(name).isEnabled();
            for (const QLabel* label : form->findChildren<QLabel*>()) {
                if (label->buddy() == &Control<QWidget>(name) && label->isEnabled() != on)
                    usable += u'?';
            }
            if (on)
                usable += letter;
        }
        return usable;
    }
    void FillAll() {
        Fill(T(u"txtSize"), T(u"5"));
        Fill(T(u"txtWidth"), T(u"10"));
        Fill(T(u"txtHeight"), T(u"20"));
        Fill(T(u"cboAlign"), T(u"LEFT"));
    }
};

TEST_F(frmSpacerTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"Spacer"));
    EXPECT_EQ(Control<QRadioButton>(T(u"optHorz")).text(), T(u"&Horizontal"));
    EXPECT_EQ(Control<QRadioButton>(T(u"optVert")).text(), T(u"&Vertical"));
    EXPECT_EQ(Control<QRadioButton>(T(u"optBlock")).text(), T(u"&Block"));
    for (const QString& name : {T(u"optHorz"), T(u"optVert"), T(u"optBlock")})
        EXPECT_FALSE(Control<QRadioButton>(name).isChecked());
    EXPECT_EQ(LabelOf(T(u"txtSize")), T(u"Size:"));
    EXPECT_EQ(LabelOf(T(u"txtWidth")), T(u"Width:"));
    EXPECT_EQ(LabelOf(T(u"txtHeight")), T(u"Height:"));
    EXPECT_EQ(LabelOf(T(u"cboAlign")), T(u"Align:"));
    EXPECT_EQ(Items(T(u"cboAlign")),
              T(u"TOP MIDDLE BOTTOM RIGHT LEFT TEXTTOP BASELINE ABSMIDDLE ABSBOTTOM").split(u' '));
    EXPECT_EQ(Field(T(u"cboAlign")), QString());
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdCancel")).text(), T(u"&Cancel"));
}

TEST_F(frmSpacerTest, EnablesTheFieldsOfTheKindWithTheirLabels) {
    Press(T(u"optHorz"));
    EXPECT_EQ(Usable(), T(u"S"));
    Press(T(u"optBlock"));
    EXPECT_EQ(Usable(), T(u"WHA"));
    Press(T(u"optVert"));
    EXPECT_EQ(Usable(), T(u"S"));
}

TEST_F(frmSpacerTest, TheKindIsChosenByKeys) {
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    const auto chosen = [&](const char16_t* option) {
        // A button pressed by its mnemonic shows as pressed for a moment first.
        return QTest::qWaitFor([&] { return Control<QRadioButton>(T(option)).isChecked(); });
    };
    QTest::keyClick(form, Qt::Key_H, Qt::AltModifier);
    EXPECT_TRUE(chosen(u"optHorz"));
    EXPECT_EQ(Usable(), T(u"S"));
    QTest::keyClick(form, Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(chosen(u"optBlock"));
    EXPECT_EQ(Usable(), T(u"WHA"));
    QTest::keyClick(form->focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(Control<QRadioButton>(T(u"optVert")).isChecked());
    EXPECT_EQ(Usable(), T(u"S"));
    QTest::keyClick(form->focusWidget(), Qt::Key_Right);
    EXPECT_EQ(Usable(), T(u"WHA"));
}

TEST_F(frmSpacerTest, DrawsALabelGreyWithItsField) {
    Press(T(u"optBlock"));
    const auto color = [&](const char16_t* name) {
        const QLabel& label = Control<QLabel>(T(name));
        return label.palette().color(label.foregroundRole());
    };
    EXPECT_NE(color(u"labelOfSize"), color(u"labelOfWidth"));
}

struct KindRow {
    const char16_t* option;
    const char16_t* tag;
};

TEST_F(frmSpacerTest, WritesTheFieldsOfItsKind) {
    const KindRow rows[] = {
        {u"", u"<SPACER TYPE=>"},
        {u"optHorz", u"<SPACER TYPE=HORIZONTAL SIZE=5>"},
        {u"optVert", u"<SPACER TYPE=VERTICAL SIZE=5>"},
        {u"optBlock", u"<SPACER TYPE=BLOCK WIDTH=10 HEIGHT=20 ALIGN=LEFT>"},
    };
    for (const KindRow& row : rows) {
        frame.SetText(QString());
        Open(T(u"tb_rectangle"), T(u"frmSpacer"));
        FillAll();
        if (*row.option)
            Press(T(row.option));
        Press(T(u"cmdOK"));
        EXPECT_EQ(Text(), T(row.tag));
        EXPECT_FALSE(Loaded(T(u"frmSpacer")));
    }
}

const AnyDialog inAnyDialogTest({.form = u"frmSpacer",
                                 .entries = {u"tb_rectangle"},
                                 .field = u"txtSize",
                                 .open = u"<spacer type=horizontal size=MiXed>",
                                 .press = u"optHorz",
                                 .cancel = {u"cmdCancel", u"&Cancel"}});

} // namespace
