#include "builders/forms/frmForm.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "dialogs/TagRows.h"
#include <QTabBar>

namespace {

struct TabRow {
    const char16_t* caption;
    int frame;
    const char16_t* empty;   ///< what Apply writes from untouched fields
    const char16_t* lowered; ///< the same with LowerCaseTags on
};

const TabRow tabs[] = {
    {u"Form", 5, u"<FORM METHOD=\"POST\">\r\n</FORM>", u"<form method=\"POST\">\r\n</FORM>"},
    {u"Text", 0, u"<INPUT TYPE=\"TEXT\">", u"<input type=\"TEXT\">"},
    {u"TextArea", 4, u"<TEXTAREA></TEXTAREA>", u"<textarea></TEXTAREA>"},
    {u"Radio", 1, u"<INPUT TYPE=\"RADIO\">", u"<input type=\"RADIO\">"},
    {u"Checkbox", 1, u"<INPUT TYPE=\"CHECKBOX\">", u"<input type=\"CHECKBOX\">"},
    {u"List", 6, u"<SELECT>\r\n</SELECT>", u"<select>\r\n</select>"},
    {u"Password", 0, u"<INPUT TYPE=\"PASSWORD\">", u"<input type=\"PASSWORD\">"},
    {u"Submit", 2, u"<INPUT TYPE=\"SUBMIT\">", u"<input type=\"SUBMIT\">"},
    {u"Reset", 2, u"<INPUT TYPE=\"RESET\">", u"<input type=\"RESET\">"},
    {u"Button", 2, u"<INPUT TYPE=\"BUTTON\">", u"<input type=\"BUTTON\">"},
    {u"Hidden", 3, u"<INPUT TYPE=\"HIDDEN\">", u"<input type=\"hidden\">"},
};
constexpr int frameCount = 7;

/// A field of a frame and its label, in the order of the tag that they make.
struct FieldRow {
    const char16_t* field;
    const char16_t* label;
};

const std::vector<FieldRow> fieldsOfFrame[frameCount] = {
    {{u"txtName_0", u"Name:"},
     {u"txtValue_0", u"Value:"},
     {u"txtSize_0", u"Size:"},
     {u"txtMaxLength", u"Max Length:"},
     {u"cboAlign_0", u"Align:"},
     {u"txtTabIndex_0", u"Tab Index:"}},
    {{u"txtName_1", u"Name:"},
     {u"txtValue_1", u"Value:"},
     {u"cboAlign_1", u"Align:"},
     {u"txtTabIndex_1", u"Tab Index:"}},
    {{u"txtName_2", u"Name:"},
     {u"txtValue_2", u"Value:"},
     {u"cboAlign_2", u"Align:"},
     {u"txtTabIndex_2", u"Tab Index:"}},
    {{u"txtName_3", u"Name:"}, {u"txtValue_3", u"Value:"}},
    {{u"txtName_4", u"Name:"},
     {u"txtCols", u"Cols:"},
     {u"txtRows", u"Rows:"},
     {u"cboWrap", u"Wrap:"},
     {u"txtTabIndex_4", u"Tab Index:"}},
    {{u"txtAction", u"Action:"},
     {u"txtTarget", u"Target:"},
     {u"cboMethod", u"Method:"},
     {u"cboEncType", u"Enc Type:"}},
    {{u"txtName_6", u"Name:"}, {u"txtSize_6", u"Size:"}},
};

class frmFormTest : public DialogTest {
  protected:
    QWidget& Show() { return Open(T(u"tb_form"), T(u"frmForm")); }
    QTabBar& Strip() { return Control<QTabBar>(T(u"TabStrip")); }
    void Turn(const char16_t* caption) {
        for (int i = 0; i < Strip().count(); ++i)
            if (Strip().tabText(i) == T(caption))
                return Strip().setCurrentIndex(i);
        FAIL() << T(caption).toStdString();
    }
    /// What Apply writes into an empty document.
    QString Apply() {
        frame.SetText(QString());
        Press(T(u"cmdApply"));
        return Text();
    }
    QListWidget& List() { return Control<QListWidget>(T(u"cboList")); }
    QStringList Listed() {
        QStringList items;
        for (int row = 0; row < List().count(); ++row)
            items << List().item(row)->text();
        return items;
    }
    void Add(const QString& item) {
        Fill(T(u"txtList"), item);
        Press(T(u"cmdAddItem"));
    }
    void AddAll(const char16_t* items) {
        for (const QString& item : T(items).split(u' '))
            Add(item);
    }
    void Select(int row) {
        const QPoint at = List().visualItemRect(List().item(row)).center();
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, at);
    }
};

TEST_F(frmFormTest, LooksAsItShould) {
    Show();
    EXPECT_EQ(form->windowTitle(), T(u"Form"));
    ASSERT_EQ(Strip().count(), int(std::size(tabs)));
    for (int i = 0; i < Strip().count(); ++i)
        EXPECT_EQ(Strip().tabText(i), T(tabs[i].caption));
    for (const auto& fields : fieldsOfFrame)
        for (const FieldRow& row : fields)
            EXPECT_EQ(LabelOf(T(row.field)), T(row.label)) << T(row.field).toStdString();
    for (const int i : {0, 1, 2}) {
        EXPECT_EQ(Items(T(u"cboAlign_%1").arg(i)),
                  T(u"TOP BOTTOM MIDDLE RIGHT LEFT TEXTTOP BASELINE ABSMIDDLE ABSBOTTOM").split(u' '));
    }
    for (const int i : {0, 1, 2, 4}) {
        const auto& chkNOTAB = Control<QCheckBox>(T(u"chkNOTAB_%1").arg(i));
        EXPECT_EQ(chkNOTAB.text(), T(u"NOTAB"));
        EXPECT_FALSE(chkNOTAB.isChecked());
    }
    EXPECT_EQ(Items(T(u"cboWrap")), T(u"OFF PHYSICAL VIRTUAL").split(u' '));
    EXPECT_EQ(Items(T(u"cboMethod")), T(u"POST GET").split(u' '));
    EXPECT_EQ(Field(T(u"cboMethod")), T(u"POST"));
    EXPECT_EQ(Items(T(u"cboEncType")),
              T(u"application/x-www-form-urlencoded multipart/form-data").split(u' '));
    EXPECT_EQ(Control<QCheckBox>(T(u"chkChecked")).text(), T(u"Checked"));
    EXPECT_EQ(Control<QCheckBox>(T(u"chkMultiple")).text(), T(u"Multiple"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdAddItem")).text(), T(u"&Add Item"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdRemoveItem")).text(), T(u"&Remove Item"));
    EXPECT_FALSE(Control<QWidget>(T(u"txtSize_6")).isEnabled());
    EXPECT_FALSE(Control<QWidget>(T(u"lblSize")).isEnabled());
    EXPECT_EQ(Field(T(u"txtSize_6")), QString());
    EXPECT_EQ(Listed(), QStringList());
}

TEST_F(frmFormTest, EachTabShowsTheFrameOfItsKindAlone) {
    Show();
    const auto shown = [this] {
        QList<int> frames;
        for (int i = 0; i < frameCount; ++i)
            if (Control<QWidget>(T(u"Frame_%1").arg(i)).isVisibleTo(form))
                frames << i;
        return frames;
    };
    EXPECT_EQ(shown(), QList<int>{5}) << "at first";
    for (int i = Strip().count() - 1; i >= 0; --i) {
        QTest::mouseClick(&Strip(), Qt::LeftButton, {}, Strip().tabRect(i).center());
        EXPECT_EQ(shown(), QList<int>{tabs[i].frame}) << T(tabs[i].caption).toStdString();
        for (const FieldRow& row : fieldsOfFrame[tabs[i].frame])
            EXPECT_TRUE(Control<QWidget>(T(row.field)).isVisibleTo(form)) << T(row.field).toStdString();
    }
}

TEST_F(frmFormTest, EveryTabFitsBesideTheOthers) {
    Show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(form));
    for (int i = 0; i < Strip().count(); ++i)
        EXPECT_TRUE(Strip().rect().contains(Strip().tabRect(i))) << i;
    EXPECT_LE(form->width(), 760) << "leaves a screen of 800 pixels its edges";
}

TEST_F(frmFormTest, KeysTurnTheTabsFromAnyField) {
    Show();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    Control<QWidget>(T(u"txtTarget")).setFocus();
    QTest::keyClick(form, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(Strip().currentIndex(), 1);
    QTest::keyClick(form, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(form, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Strip().currentIndex(), 10);
    QTest::keyClick(form, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(Strip().currentIndex(), 0);
}

TEST_F(frmFormTest, UntouchedFieldsGiveTheBareElement) {
    Show();
    for (const TabRow& row : tabs) {
        Turn(row.caption);
        EXPECT_EQ(Apply(), T(row.empty));
        EXPECT_TRUE(Loaded(T(u"frmForm")));
    }
    LowerCaseTags();
    for (const TabRow& row : tabs) {
        Turn(row.caption);
        EXPECT_EQ(Apply(), T(row.lowered));
    }
}

/// What Apply writes when each field of the frame holds its own label, or a box is on.
struct FilledRow {
    const char16_t* caption;
    std::vector<const char16_t*> boxes;
    const char16_t* asWritten;
    const char16_t* lowered;
};

TEST_F(frmFormTest, EachBuilderReadsTheFieldsOfItsOwnFrame) {
    const FilledRow rows[] = {
        {u"Form",
         {},
         u"<FORM ACTION=\"Action:\" TARGET=\"Target:\" METHOD=\"Method:\" ENCTYPE=\"Enc Type:\">\r\n</FORM>",
         u"<form action=\"Action:\" target=\"Target:\" method=\"Method:\" enctype=\"Enc Type:\">\r\n</FORM>"},
        {u"Text",
         {u"chkNOTAB_0"},
         u"<INPUT TYPE=\"TEXT\" NAME=\"Name:\" VALUE=\"Value:\" SIZE=\"Size:\" MAXLENGTH=\"Max Length:\" "
         u"ALIGN=\"Align:\" TABINDEX=\"Tab Index:\" NOTAB>",
         u"<input type=\"TEXT\" name=\"Name:\" value=\"Value:\" size=\"Size:\" maxlength=\"Max Length:\" "
         u"align=\"Align:\" tabindex=\"Tab Index:\" NOTAB>"},
        {u"TextArea",
         {u"chkNOTAB_4"},
         u"<TEXTAREA NAME=\"Name:\" COLS=\"Cols:\" ROWS=\"Rows:\" WRAP=\"Wrap:\" TABINDEX=\"Tab Index:\" "
         u"NOTAB></TEXTAREA>",
         u"<textarea name=\"Name:\" cols=\"Cols:\" rows=\"Rows:\" wrap=\"Wrap:\" tabindex=\"Tab Index:\" "
         u"NOTAB></TEXTAREA>"},
        {u"Radio",
         {u"chkChecked", u"chkNOTAB_1"},
         u"<INPUT TYPE=\"RADIO\" NAME=\"Name:\" VALUE=\"Value:\" ALIGN=\"Align:\" CHECKED "
         u"TABINDEX=\"Tab Index:\" NOTAB>",
         u"<input type=\"RADIO\" name=\"Name:\" value=\"Value:\" align=\"Align:\" CHECKED "
         u"tabindex=\"Tab Index:\" NOTAB>"},
        {u"List", {}, u"<SELECT NAME=\"Name:\">\r\n</SELECT>", u"<select name=\"Name:\">\r\n</select>"},
        {u"List",
         {u"chkMultiple"},
         u"<SELECT NAME=\"Name:\" MULTIPLE SIZE=\"Size:\">\r\n</SELECT>",
         u"<select name=\"Name:\" multiple size=\"Size:\">\r\n</select>"},
        {u"Submit",
         {u"chkNOTAB_2"},
         u"<INPUT TYPE=\"SUBMIT\" NAME=\"Name:\" VALUE=\"Value:\" ALIGN=\"Align:\" TABINDEX=\"Tab Index:\" "
         u"NOTAB>",
         u"<input type=\"SUBMIT\" name=\"Name:\" value=\"Value:\" align=\"Align:\" tabindex=\"Tab Index:\" "
         u"NOTAB>"},
        {u"Hidden",
         {},
         u"<INPUT TYPE=\"HIDDEN\" NAME=\"Name:\" VALUE=\"Value:\">",
         u"<input type=\"hidden\" name=\"Name:\" value=\"Value:\">"},
    };
    for (const FilledRow& row : rows) {
        for (const bool lower : {false, true}) {
            frame.Store().WriteFlag(Keys::LowerCaseTags, lower);
            Show();
            Turn(row.caption);
            for (const char16_t* box : row.boxes)
                Press(T(box));
            for (const TabRow& tab : tabs)
                if (T(tab.caption) == T(row.caption))
                    for (const FieldRow& field : fieldsOfFrame[tab.frame])
                        Fill(T(field.field), T(field.label));
            EXPECT_EQ(Apply(), T(lower ? row.lowered : row.asWritten));
            Press(T(u"cmdCancel"));
        }
    }
}

TEST_F(frmFormTest, TabsOfOneFrameShareItsFieldsAndTheFramesDoNot) {
    Show();
    Turn(u"Radio");
    Fill(T(u"txtName_1"), T(u"a"));
    Press(T(u"chkChecked"));
    Turn(u"Checkbox");
    EXPECT_EQ(Apply(), T(u"<INPUT TYPE=\"CHECKBOX\" NAME=\"a\" CHECKED>"));
    Turn(u"Submit");
    EXPECT_EQ(Apply(), T(u"<INPUT TYPE=\"SUBMIT\">"));
    Turn(u"Text");
    EXPECT_EQ(Apply(), T(u"<INPUT TYPE=\"TEXT\">"));
}

TEST_F(frmFormTest, ApplyKeepsTheFieldsForTheNextOne) {
    Show();
    Turn(u"Radio");
    Fill(T(u"txtName_1"), T(u"size"));
    Fill(T(u"txtValue_1"), T(u"small"));
    Press(T(u"cmdApply"));
    Fill(T(u"txtValue_1"), T(u"large"));
    Press(T(u"cmdApply"));
    EXPECT_EQ(Text(), T(u"<INPUT TYPE=\"RADIO\" NAME=\"size\" VALUE=\"small\">"
                        u"<INPUT TYPE=\"RADIO\" NAME=\"size\" VALUE=\"large\">"));
}

TEST_F(frmFormTest, WhatHasAnEndTagGoesAroundTheSelection) {
    Show();
    const std::pair<const char16_t*, const char16_t*> rows[] = {
        {u"Form", u"a<FORM METHOD=\"POST\">b\r\n</FORM>c"},
        {u"TextArea", u"a<TEXTAREA>b</TEXTAREA>c"},
        {u"List", u"a<SELECT>\r\nb</SELECT>c"},
        {u"Text", u"a<INPUT TYPE=\"TEXT\">bc"},
    };
    for (const auto& [caption, text] : rows) {
        SelectIn(T(u"abc"), 1, 1);
        Turn(caption);
        Press(T(u"cmdApply"));
        EXPECT_EQ(Text(), T(text));
        EXPECT_EQ(frame.Box().SelLength(), 0);
    }
}

TEST_F(frmFormTest, ATabOfAnotherCaptionDoesNothing) {
    Show();
    Turn(u"Text");
    Strip().setTabText(Strip().currentIndex(), T(u"text"));
    EXPECT_EQ(Apply(), QString());
    EXPECT_TRUE(Loaded(T(u"frmForm")));
}

TEST_F(frmFormTest, AnItemGoesToTheEndOrInFrontOfTheSelectedOne) {
    Show();
    Turn(u"List");
    AddAll(u"one two three");
    EXPECT_EQ(Listed(), T(u"one two three").split(u' '));
    EXPECT_EQ(Field(T(u"txtList")), QString());
    EXPECT_EQ(form->focusWidget(), &Control<QLineEdit>(T(u"txtList")));
    // In front of every item but the first, which counts as none.
    Select(0);
    Add(T(u"four"));
    EXPECT_EQ(Listed(), T(u"one two three four").split(u' '));
    Select(1);
    Add(T(u"x"));
    EXPECT_EQ(Listed(), T(u"one x two three four").split(u' '));
    // The same item stays the selected one.
    Add(T(u"y"));
    EXPECT_EQ(Listed(), T(u"one x y two three four").split(u' '));
    Select(5);
    Add(T(u"z"));
    EXPECT_EQ(Listed(), T(u"one x y two three z four").split(u' '));
}

TEST_F(frmFormTest, RemovesTheSelectedItemAndNothingWithoutOne) {
    Show();
    Turn(u"List");
    Press(T(u"cmdRemoveItem"));
    AddAll(u"one two three");
    Press(T(u"cmdRemoveItem"));
    EXPECT_EQ(Listed(), T(u"one two three").split(u' '));
    Select(1);
    Press(T(u"cmdRemoveItem"));
    EXPECT_EQ(Listed(), T(u"one three").split(u' '));
    // Nothing is selected then.
    Press(T(u"cmdRemoveItem"));
    Add(T(u"four"));
    EXPECT_EQ(Listed(), T(u"one three four").split(u' '));
    Select(0);
    Press(T(u"cmdRemoveItem"));
    EXPECT_EQ(Listed(), T(u"three four").split(u' '));
}

TEST_F(frmFormTest, TheListIsBuiltByKeysAlone) {
    Show();
    Turn(u"List");
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    frame.SetText(QString());
    auto& txtList = Control<QLineEdit>(T(u"txtList"));
    QTest::keyClick(form, Qt::Key_I, Qt::AltModifier);
    for (const char16_t* item : {u"one", u"two", u"three"}) {
        QTest::keyClicks(&txtList, T(item));
        QTest::keyClick(&txtList, Qt::Key_Return);
    }
    EXPECT_EQ(Text(), QString()) << "Enter adds an item here";
    EXPECT_EQ(Listed(), T(u"one two three").split(u' '));
    QTest::keyClick(form, Qt::Key_L, Qt::AltModifier);
    // That the keys have come to the list selects nothing.
    QTest::keyClick(&List(), Qt::Key_Delete);
    EXPECT_EQ(List().count(), 3);
    QTest::keyClick(&List(), Qt::Key_Down);
    QTest::keyClick(&List(), Qt::Key_Delete);
    EXPECT_EQ(Listed(), T(u"one three").split(u' '));
    auto& txtName = Control<QLineEdit>(T(u"txtName_6"));
    QTest::keyClick(form, Qt::Key_N, Qt::AltModifier);
    QTest::keyClicks(&txtName, T(u"x"));
    QTest::keyClick(&txtName, Qt::Key_Return);
    EXPECT_EQ(Text(), T(u"<SELECT NAME=\"x\">\r\n<OPTION>one\r\n<OPTION>three\r\n</SELECT>"));
}

TEST_F(frmFormTest, AnEmptyItemEndsTheListThatIsWritten) {
    Show();
    Turn(u"List");
    Add(T(u"a"));
    Add(T(u" "));
    Add(T(u"b"));
    Add(QString());
    Add(T(u"c"));
    EXPECT_EQ(List().count(), 5);
    EXPECT_EQ(Apply(), T(u"<SELECT>\r\n<OPTION>a\r\n<OPTION>b\r\n</SELECT>"));
    // Apply empties nothing.
    EXPECT_EQ(List().count(), 5);
}

TEST_F(frmFormTest, TheSizeOfAListIsOpenWhileSeveralItemsCanBePicked) {
    Show();
    Turn(u"List");
    Press(T(u"chkMultiple"));
    EXPECT_TRUE(Control<QWidget>(T(u"txtSize_6")).isEnabled());
    EXPECT_TRUE(Control<QWidget>(T(u"lblSize")).isEnabled());
    EXPECT_EQ(Apply(), T(u"<SELECT MULTIPLE>\r\n</SELECT>"));
    Fill(T(u"txtSize_6"), T(u"4"));
    EXPECT_EQ(Apply(), T(u"<SELECT MULTIPLE SIZE=\"4\">\r\n</SELECT>"));
    Press(T(u"chkMultiple"));
    EXPECT_FALSE(Control<QWidget>(T(u"txtSize_6")).isEnabled());
    EXPECT_FALSE(Control<QWidget>(T(u"lblSize")).isEnabled());
    EXPECT_EQ(Field(T(u"txtSize_6")), T(u"4"));
    EXPECT_EQ(Apply(), T(u"<SELECT>\r\n</SELECT>"));
}

TEST_F(frmFormTest, NoFieldIsChecked) {
    Show();
    Turn(u"Text");
    for (const QString& value :
         {T(u"abc"), T(u" "), T(u"0"), T(u"-3"), T(u"2.5"), T(u"99999"), T(u"a>b\\{}")}) {
        Fill(T(u"txtSize_0"), value);
        Press(T(u"cmdApply"));
        EXPECT_TRUE(frame.prompts.asked.isEmpty());
        EXPECT_TRUE(Loaded(T(u"frmForm")));
    }
    Fill(T(u"txtSize_0"), T(u"-3"));
    EXPECT_EQ(Apply(), T(u"<INPUT TYPE=\"TEXT\" SIZE=\"-3\">"));
}

TEST_F(frmFormTest, TheFormsEndStandsOnItsOwnLineAndTheCaretThreeFurtherBack) {
    Show();
    frame.SetText(QString());
    Press(T(u"cmdApply"));
    // The end tag's CR LF counts as the five characters of "\par " where the caret is set.
    EXPECT_EQ(frame.Marked(), T(u"<FORM METHOD=\"POS|T\">\r\n</FORM>"));
}

template <int tab> void ShowTab(Frame& frame) {
    frame.LoadedForms().Show<frmForm>(frame).template findChild<QTabBar*>()->setCurrentIndex(tab);
}

DialogCase OnTab(const DialogCase& tab) {
    DialogCase dialog = tab;
    dialog.ok = {u"cmdApply", u"&Apply"};
    dialog.cancel = {u"cmdCancel", u"&Cancel"};
    dialog.stays = true;
    dialog.presets = {{u"cboMethod", u"POST"}};
    return dialog;
}

const AnyDialog inAnyDialogTest[] = {
    AnyDialog(OnTab({.form = u"frmForm",
                     .page = u"Form",
                     .entries = {u"tb_form"},
                     .field = u"txtAction",
                     .open = u"<form action=\"MiXed\" method=\"POST\">",
                     .close = u"\r\n</FORM>"})),
    AnyDialog(OnTab({.form = u"frmForm",
                     .page = u"Text",
                     .show = ShowTab<1>,
                     .field = u"txtName_0",
                     .open = u"<input type=\"TEXT\" name=\"MiXed\">"})),
    AnyDialog(OnTab({.form = u"frmForm",
                     .page = u"TextArea",
                     .show = ShowTab<2>,
                     .field = u"txtName_4",
                     .open = u"<textarea name=\"MiXed\">",
                     .close = u"</TEXTAREA>"})),
    AnyDialog(OnTab({.form = u"frmForm",
                     .page = u"Radio",
                     .show = ShowTab<3>,
                     .field = u"txtName_1",
                     .open = u"<input type=\"RADIO\" name=\"MiXed\" CHECKED>",
                     .press = u"chkChecked"})),
    AnyDialog(OnTab({.form = u"frmForm",
                     .page = u"Checkbox",
                     .show = ShowTab<4>,
                     .field = u"txtName_1",
                     .open = u"<input type=\"CHECKBOX\" name=\"MiXed\" NOTAB>",
                     .press = u"chkNOTAB_1"})),
    // Add Item and Apply have always had one key: it goes from the one to the other.
    AnyDialog(OnTab({.form = u"frmForm",
                     .page = u"List",
                     .show = ShowTab<5>,
                     .field = u"txtList",
                     .open = u"<select>\r\n<option>MiXed\r\n",
                     .close = u"</select>",
                     .press = u"cmdAddItem",
                     .sharedKeys = u"a"})),
    AnyDialog(OnTab({.form = u"frmForm",
                     .page = u"Password",
                     .show = ShowTab<6>,
                     .field = u"txtName_0",
                     .open = u"<input type=\"PASSWORD\" name=\"MiXed\">"})),
    AnyDialog(OnTab({.form = u"frmForm",
                     .page = u"Submit",
                     .show = ShowTab<7>,
                     .field = u"txtName_2",
                     .open = u"<input type=\"SUBMIT\" name=\"MiXed\">"})),
    AnyDialog(OnTab({.form = u"frmForm",
                     .page = u"Reset",
                     .show = ShowTab<8>,
                     .field = u"txtName_2",
                     .open = u"<input type=\"RESET\" name=\"MiXed\">"})),
    AnyDialog(OnTab({.form = u"frmForm",
                     .page = u"Button",
                     .show = ShowTab<9>,
                     .field = u"txtName_2",
                     .open = u"<input type=\"BUTTON\" name=\"MiXed\">"})),
    AnyDialog(OnTab({.form = u"frmForm",
                     .page = u"Hidden",
                     .show = ShowTab<10>,
                     .field = u"txtName_3",
                     .open = u"<input type=\"hidden\" name=\"MiXed\">"})),
};

} // namespace
