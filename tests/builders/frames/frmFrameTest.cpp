#include "builders/frames/frmFrame.h"

#include "builders/DialogTest.h"
#include "builders/frames/FrameResult.h"
#include "dialogs/ColorSample.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/TagRows.h"
#include "support/Site.h"
#include <QGroupBox>
#include <QRadioButton>
#include <set>

namespace {

class frmFrameTest : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        Show();
    }
    void Show() { form = &frame.LoadedForms().Show<frmFrame>(frame); }
    FrameResult& Result() { return frame.State<FrameResult>(); }
    ColorSample& Swatch() { return Control<ColorSample>(T(u"Label2")); }
};

TEST_F(frmFrameTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"Frame"));
    EXPECT_TRUE(form->isModal());
    EXPECT_EQ(LabelOf(T(u"txtSrc")), T(u"Src:"));
    EXPECT_EQ(LabelOf(T(u"txtName")), T(u"Name:"));
    EXPECT_EQ(LabelOf(T(u"txtMarginWidth")), T(u"Margin Width:"));
    EXPECT_EQ(LabelOf(T(u"txtMarginHeight")), T(u"Margin Height:"));
    EXPECT_EQ(LabelOf(T(u"Label2")), T(u"Border Color:"));
    for (const QString& field : {T(u"txtSrc"), T(u"txtName"), T(u"txtMarginWidth"), T(u"txtMarginHeight")})
        EXPECT_EQ(Field(field), QString());
    EXPECT_EQ(Control<QGroupBox>(T(u"frmScrolling")).title(), T(u"Scrolling"));
    const std::pair<QString, QString> captions[] = {{T(u"optYes"), T(u"Yes")},
                                                    {T(u"optNo"), T(u"No")},
                                                    {T(u"optAuto"), T(u"Auto")},
                                                    {T(u"chkNoResize"), T(u"No Resize")},
                                                    {T(u"chkNoBorder"), T(u"No Border")}};
    for (const auto& [name, caption] : captions) {
        EXPECT_EQ(Control<QAbstractButton>(name).text(), caption);
        EXPECT_FALSE(Control<QAbstractButton>(name).isChecked());
    }
    for (const QString& option : {T(u"optYes"), T(u"optNo"), T(u"optAuto")})
        EXPECT_EQ(Control<QWidget>(option).parentWidget(), &Control<QWidget>(T(u"frmScrolling")));
    EXPECT_EQ(Swatch().BackNumber(), 0xC0C0C0);
    EXPECT_EQ(Tip(T(u"cmdOpen")), T(u"Find File"));
    ExpectPathBoxes();
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdOK")).text(), T(u"&OK"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdCancel")).text(), T(u"&Cancel"));
}

TEST_F(frmFrameTest, OkLeavesTagAndNameBehindAndWritesNothing) {
    const std::pair<const char16_t*, const char16_t*> rows[] = {
        {u"<FRAME SRC=\"a.htm\" NAME=\"Left\" MARGINWIDTH=\"1\" MARGINHEIGHT=\"2\" SCROLLING=\"YES\" "
         u"NORESIZE "
         u"FRAMEBORDER=\"NO\" BORDERCOLOR=#=FF0000>",
         u"<frame src=\"a.htm\" name=\"Left\" marginwidth=\"1\" marginheight=\"2\" scrolling=\"yes\" "
         u"noresize "
         u"frameborder=\"no\" bordercolor=#=FF0000>"}};
    for (const bool lower : {false, true}) {
        frame.Store().WriteFlag(Keys::LowerCaseTags, lower);
        Show();
        Fill(T(u"txtSrc"), T(u"a.htm"));
        Fill(T(u"txtName"), T(u"Left"));
        Fill(T(u"txtMarginWidth"), T(u"1"));
        Fill(T(u"txtMarginHeight"), T(u"2"));
        Press(T(u"optYes"));
        Press(T(u"chkNoResize"));
        Press(T(u"chkNoBorder"));
        frame.prompts.colorAnswers = {0x0000FF};
        QTest::mouseClick(&Swatch(), Qt::LeftButton);
        Press(T(u"cmdOK"));
        EXPECT_EQ(Result().FrameTagResult, T(lower ? rows[0].second : rows[0].first));
        EXPECT_EQ(Result().FrameNameResult, T(u"Left"));
        EXPECT_FALSE(Loaded(T(u"frmFrame")));
        EXPECT_EQ(Text(), QString());
    }
}

TEST_F(frmFrameTest, TheOptionsAreOneChoiceAndAutoWritesNothing) {
    const std::pair<const char16_t*, const char16_t*> rows[] = {{u"optYes", u"<FRAME SCROLLING=\"YES\">"},
                                                                {u"optNo", u"<FRAME SCROLLING=\"NO\">"},
                                                                {u"optAuto", u"<FRAME>"}};
    for (const auto& [option, tag] : rows) {
        Show();
        Press(T(u"optYes"));
        Press(T(option));
        Press(T(u"cmdOK"));
        EXPECT_EQ(Result().FrameTagResult, T(tag));
    }
}

TEST_F(frmFrameTest, EmptyFieldsGiveABareFrameAndNoName) {
    Press(T(u"cmdOK"));
    EXPECT_EQ(Result().FrameTagResult, T(u"<FRAME>"));
    EXPECT_EQ(Result().FrameNameResult, QString());
}

TEST_F(frmFrameTest, NoFieldIsChecked) {
    for (const QString& value : {T(u"abc"), T(u" "), T(u"0"), T(u"-3"), T(u"2.5"), T(u"99999")}) {
        Show();
        Fill(T(u"txtMarginWidth"), value);
        Press(T(u"cmdOK"));
        EXPECT_EQ(Result().FrameTagResult, T(u"<FRAME MARGINWIDTH=\"%1\">").arg(value));
    }
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(frmFrameTest, ACancelledColourIsBlackAndCounts) {
    frame.prompts.colorAnswers = {std::nullopt};
    QTest::mouseClick(&Swatch(), Qt::LeftButton);
    EXPECT_EQ(frame.prompts.asked.last().owner, form);
    EXPECT_EQ(Swatch().BackNumber(), 0);
    Press(T(u"cmdOK"));
    EXPECT_EQ(Result().FrameTagResult, T(u"<FRAME BORDERCOLOR=#=000000>"));
}

TEST_F(frmFrameTest, TheColourIsPickedByKeyboardAndAsksOnce) {
    frame.prompts.colorAnswers = {0x00FF00};
    QTest::keyClick(&Swatch(), Qt::Key_Space);
    EXPECT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(Swatch().BackNumber(), 0x00FF00);
}

TEST_F(frmFrameTest, BrowsesDocumentsAndACancelLeavesTheField) {
    const Site site;
    frame.active->caption = site.Path(T(u"pages/a.htm"));
    Fill(T(u"txtSrc"), T(u"old"));
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled(),
                                 ScriptedPrompts::Picked(site.Path(T(u"pages/b.htm")))};
    Press(T(u"cmdOpen"));
    EXPECT_EQ(Field(T(u"txtSrc")), T(u"old"));
    EXPECT_TRUE(frame.prompts.Messages().isEmpty());
    Press(T(u"cmdOpen"));
    EXPECT_EQ(frame.prompts.asked.last().request.filter, FileFilter::Document);
    EXPECT_EQ(frame.prompts.asked.last().request.filterIndex, 2);
    EXPECT_EQ(Field(T(u"txtSrc")), T(u"b.htm"));
}

TEST_F(frmFrameTest, TurnsTheSlashesOfTheSourceAlone) {
    Fill(T(u"txtSrc"), T(u"http://a/b"));
    Fill(T(u"txtName"), T(u"a/b"));
    Press(T(u"chkForwardSlash"));
    EXPECT_EQ(Field(T(u"txtSrc")), T(u"http:\\\\a\\b"));
    EXPECT_EQ(Field(T(u"txtName")), T(u"a/b"));
    Press(T(u"chkForwardSlash"));
    EXPECT_EQ(Field(T(u"txtSrc")), T(u"http://a/b"));
}

TEST_F(frmFrameTest, CancelEscAndTheCloseButtonLeaveNothingBehind) {
    const std::function<void()> ways[] = {[this] { Press(T(u"cmdCancel")); },
                                          [this] { QTest::keyClick(form, Qt::Key_Escape); },
                                          [this] { form->close(); }};
    for (const auto& leave : ways) {
        Show();
        Fill(T(u"txtName"), T(u"x"));
        leave();
        EXPECT_FALSE(Loaded(T(u"frmFrame")));
        EXPECT_EQ(Result().FrameTagResult, QString());
        EXPECT_EQ(Result().FrameNameResult, QString());
    }
}

TEST_F(frmFrameTest, EnterIsOkAndKeysLeadToEachField) {
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    const std::pair<Qt::Key, const char16_t*> keys[] = {{Qt::Key_S, u"txtSrc"},
                                                        {Qt::Key_N, u"txtName"},
                                                        {Qt::Key_W, u"txtMarginWidth"},
                                                        {Qt::Key_H, u"txtMarginHeight"},
                                                        {Qt::Key_B, u"Label2"}};
    for (const auto& [key, field] : keys) {
        QTest::keyClick(form, key, Qt::AltModifier);
        EXPECT_EQ(form->focusWidget(), &Control<QWidget>(T(field)));
    }
    QTest::keyClick(&Control<QLineEdit>(T(u"txtName")), Qt::Key_Return);
    EXPECT_EQ(Result().FrameTagResult, T(u"<FRAME>"));
    EXPECT_FALSE(Loaded(T(u"frmFrame")));
}

TEST_F(frmFrameTest, TabGoesAsTheEyeGoes) {
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    QStringList order = {form->focusWidget()->objectName()};
    for (int i = 0; i < 30; ++i) {
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        if (form->focusWidget()->objectName() == order.first())
            break;
        order << form->focusWidget()->objectName();
    }
    EXPECT_EQ(
        order,
        T(u"txtSrc cmdOpen txtName txtMarginWidth txtMarginHeight Label2 optYes chkNoResize chkNoBorder "
          u"chkForwardSlash chkAbsolute cmdOK cmdCancel")
            .split(u' '));
}

} // namespace
