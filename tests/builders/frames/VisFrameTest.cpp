#include "builders/frames/VisFrame.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "builders/frames/FrameResult.h"
#include "dialogs/TagRows.h"
#include "platform/desktop/ProgramTitle.h"
#include <QGroupBox>

namespace {

constexpr int sizeBoxes = 6;

class VisFrameTest : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        Show();
    }
    void Show() { Open(T(u"tb_frame"), T(u"VisFrame")); }
    /// Presses one of the two buttons; the box is answered in turn.
    void Split(const char16_t* button, std::initializer_list<const char16_t*> answers) {
        for (const char16_t* answer : answers)
            frame.prompts.inputAnswers.push_back(T(answer));
        Press(T(button));
        EXPECT_TRUE(frame.prompts.inputAnswers.empty());
    }
    void Across(const char16_t* count) { Split(u"cmdAcross", {count}); }
    void UpDown(const char16_t* count) { Split(u"cmdUpDown", {count}); }
    QAbstractButton* FrameAt(int index) {
        return form->findChild<QAbstractButton*>(T(u"cmdFrame_%1").arg(index));
    }
    /// The captions of the frames that show.
    QStringList Frames() {
        QStringList captions;
        for (int i = 0; FrameAt(i); ++i)
            if (FrameAt(i)->isVisibleTo(form))
                captions << FrameAt(i)->text();
        return captions;
    }
    /// The texts of the size boxes that show.
    QStringList Sizes() {
        QStringList texts;
        for (int i = 0; i < sizeBoxes; ++i) {
            const auto& box = Control<QLineEdit>(T(u"txtSizes_%1").arg(i));
            if (box.isVisibleTo(form))
                texts << box.text();
        }
        return texts;
    }
    /// Clicks a frame, fills a field of its dialog and presses a button of that.
    void Edit(int index, const char16_t* field, const char16_t* text, const char16_t* button = u"cmdOK") {
        QTest::mouseClick(FrameAt(index), Qt::LeftButton);
        QWidget* const picture = form;
        form = frame.LoadedForms().Find(T(u"frmFrame"));
        ASSERT_TRUE(form && form->isModal());
        if (*field)
            Fill(T(field), T(text));
        Press(T(button));
        form = picture;
    }
    QString Ok() {
        frame.SetText(QString());
        Press(T(u"cmdOK"));
        return Text();
    }
    QTimer& Timer1() {
        auto* timer = form->findChild<QTimer*>(T(u"Timer1"));
        if (!timer)
            qFatal("no timer");
        return *timer;
    }
};

TEST_F(VisFrameTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"Frames"));
    EXPECT_EQ(Control<QLabel>(T(u"Label2")).text(), T(u"Page Layout"));
    EXPECT_EQ(LabelOf(T(u"txtSizes_0")), T(u"Frame Sizes:"));
    EXPECT_EQ(LabelOf(T(u"cboBorder")), T(u"Border Size: "));
    EXPECT_EQ(Control<QCheckBox>(T(u"Check1")).text(), T(u"Percent"));
    EXPECT_TRUE(Control<QCheckBox>(T(u"Check1")).isChecked());
    QStringList borders;
    for (int size = 0; size <= 200; ++size)
        borders << QString::number(size);
    EXPECT_EQ(Items(T(u"cboBorder")), borders);
    EXPECT_EQ(Field(T(u"cboBorder")), QString());
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdAcross")).text(), T(u"Across"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdUpDown")).text(), T(u"Up/Down"));
    for (const QString& button : {T(u"cmdAcross"), T(u"cmdUpDown")})
        EXPECT_EQ(qobject_cast<QGroupBox*>(Control<QWidget>(button).parentWidget())->title(),
                  T(u"Add Frames"));
    EXPECT_EQ(Control<QLabel>(T(u"lblClick")).text(), T(u"Click on above frames to edit"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdOK")).text(), T(u"&OK"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdCancel")).text(), T(u"&Cancel"));
    // The first frame is there, and shows when the page is split.
    ASSERT_TRUE(FrameAt(0));
    EXPECT_EQ(FrameAt(0)->text(), T(u"Frame"));
    EXPECT_EQ(Frames(), QStringList());
    EXPECT_FALSE(FrameAt(1));
    EXPECT_EQ(Sizes(), QStringList());
}

TEST_F(VisFrameTest, ThePageStandsAtItsPlace) {
    const QWidget& page = Control<QWidget>(T(u"Shape1"));
    EXPECT_EQ(page.geometry(), QRect(4, 3, 274, 198));
}

TEST_F(VisFrameTest, AcrossShowsAButtonAndASizeForEachFrame) {
    Across(u"3");
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.prompts.asked[0].text, T(u"Enter number of Frames."));
    EXPECT_EQ(frame.prompts.asked[0].title, ProgramTitle);
    EXPECT_EQ(frame.prompts.asked[0].owner, form);
    EXPECT_EQ(Frames(), (QStringList{T(u"Frame 1"), T(u"Frame 2"), T(u"Frame 3")}));
    EXPECT_EQ(Sizes(), (QStringList{T(u"33"), T(u"33"), T(u"33")}));
    EXPECT_EQ(FrameAt(0)->geometry(), QRect(9, 8, 88, 188));
    EXPECT_EQ(FrameAt(1)->geometry(), QRect(97, 8, 88, 188));
    EXPECT_EQ(FrameAt(2)->geometry(), QRect(185, 8, 88, 188));
}

TEST_F(VisFrameTest, UpAndDownShowsThemOneBelowTheOther) {
    UpDown(u"2");
    EXPECT_EQ(Frames(), (QStringList{T(u"Frame 1"), T(u"Frame 2")}));
    EXPECT_EQ(Sizes(), (QStringList{T(u"50"), T(u"50")}));
    EXPECT_EQ(FrameAt(0)->geometry(), QRect(9, 8, 264, 94));
    EXPECT_EQ(FrameAt(1)->geometry(), QRect(9, 102, 264, 94));
}

TEST_F(VisFrameTest, WhatMeetsOnThePageMeetsOnTheScreen) {
    for (const char16_t* count : {u"4", u"5", u"7", u"11", u"13", u"15"}) {
        UpDown(count);
        const int last = T(count).toInt() - 1;
        for (int i = 1; i <= last; ++i)
            EXPECT_EQ(FrameAt(i)->geometry().top(), FrameAt(i - 1)->geometry().bottom() + 1);
        EXPECT_EQ(FrameAt(0)->geometry().top(), 8);
        EXPECT_EQ(FrameAt(last)->geometry().bottom(), 195);
    }
}

struct AskedRow {
    const char16_t* button;
    std::vector<const char16_t*> answers;
    std::vector<const char16_t*> said;
    int shown;
};

TEST_F(VisFrameTest, AsksAgainUntilTheCountIsTaken) {
    const char16_t* const many = u"Too many frames.  Please enter a lower number.";
    const char16_t* const few = u"Too few frames.  Please choose 2 - 6 frames.";
    const char16_t* const manyUp = u"Too many frames - please enter a lower number.";
    const AskedRow rows[] = {
        // An empty answer is what a cancel gives.
        {u"cmdAcross", {u"", u"", u"2"}, {few, few}, 2},
        {u"cmdAcross", {u"7", u"1", u"6"}, {many, few}, 6},
        {u"cmdAcross", {u"abc", u"0", u"-4", u"99999", u"99,999", u"2.5"}, {few, few, few, many, few}, 2},
        {u"cmdUpDown", {u"16", u"99999", u"15"}, {manyUp, manyUp}, 15},
        {u"cmdUpDown", {u"1"}, {}, 1},
        {u"cmdUpDown", {u"7"}, {}, 7},
        {u"cmdUpDown", {u"2.5"}, {}, 2},
        {u"cmdUpDown", {u"16", u"abc"}, {manyUp}, 0},
    };
    for (const AskedRow& row : rows) {
        Press(T(u"cmdCancel"));
        Show();
        frame.prompts.asked.clear();
        for (const char16_t* answer : row.answers)
            frame.prompts.inputAnswers.push_back(T(answer));
        Press(T(row.button));
        EXPECT_TRUE(frame.prompts.inputAnswers.empty());
        QStringList said;
        for (const char16_t* text : row.said)
            said << T(text);
        EXPECT_EQ(frame.prompts.Messages(), said);
        for (const Asked& asked : frame.prompts.asked)
            EXPECT_EQ(asked.title, ProgramTitle);
        EXPECT_EQ(Frames().size(), row.shown);
        EXPECT_EQ(Sizes().size(), std::min(row.shown, sizeBoxes));
    }
}

TEST_F(VisFrameTest, TheSizesAreGoneWhileItAsks) {
    Across(u"2");
    QStringList meanwhile = {T(u"?")};
    frame.prompts.whileAsked = [&] { meanwhile = Sizes(); };
    Across(u"3");
    EXPECT_EQ(meanwhile, QStringList());
}

TEST_F(VisFrameTest, ACountOfNoneUpAndDownLeavesThePictureAndEmptiesTheSizes) {
    for (const char16_t* none : {u"", u"0", u"abc", u"-3"}) {
        Press(T(u"cmdCancel"));
        Show();
        Across(u"3");
        UpDown(none);
        EXPECT_EQ(Frames(), (QStringList{T(u"Frame 1"), T(u"Frame 2"), T(u"Frame 3")}));
        EXPECT_EQ(FrameAt(2)->geometry(), QRect(185, 8, 88, 188));
        EXPECT_EQ(Sizes(), QStringList());
        EXPECT_TRUE(frame.prompts.Messages().isEmpty());
        // The direction is the new one.
        EXPECT_EQ(Ok(), T(u"<FRAMESET ROWS=\"\">\r\n\r\n\r\n\r\n</FRAMESET>"));
        Show();
    }
    UpDown(u"");
    EXPECT_FALSE(Timer1().isActive()) << "nothing to click on";
}

TEST_F(VisFrameTest, AskingEndsWithTheForm) {
    // The program ends while the box is up.
    for (const char16_t* button : {u"cmdAcross", u"cmdUpDown"}) {
        frame.prompts.asked.clear();
        frame.prompts.whileAsked = [this] { frame.LoadedForms().Unload<VisFrame>(); };
        Split(button, {u""});
        EXPECT_EQ(frame.prompts.asked.size(), 1);
        EXPECT_FALSE(Loaded(T(u"VisFrame")));
        Show();
        // Or while it says that the count won't do.
        int asked = 0;
        frame.prompts.asked.clear();
        frame.prompts.whileAsked = [&] {
            if (++asked == 2)
                frame.LoadedForms().Unload<VisFrame>();
        };
        Split(button, {u"99"});
        EXPECT_EQ(frame.prompts.asked.size(), 2);
        EXPECT_FALSE(Loaded(T(u"VisFrame")));
        frame.prompts.whileAsked = nullptr;
        Show();
    }
}

TEST_F(VisFrameTest, TheHintBlinksOnceThereAreFrames) {
    const auto& lblClick = Control<QLabel>(T(u"lblClick"));
    EXPECT_FALSE(Timer1().isActive());
    EXPECT_EQ(Timer1().interval(), 2000);
    Across(u"2");
    EXPECT_TRUE(Timer1().isActive());
    const bool first = lblClick.isVisible();
    const QSize size = form->size();
    for (const bool shown : {!first, first, !first}) {
        ASSERT_TRUE(QMetaObject::invokeMethod(&Timer1(), "timeout"));
        EXPECT_EQ(lblClick.isVisible(), shown);
    }
    EXPECT_EQ(form->size(), size);
}

TEST_F(VisFrameTest, ASmallerSplitLeavesTheFramesOfALargerOne) {
    Across(u"4");
    Edit(3, u"txtName", u"last");
    UpDown(u"2");
    EXPECT_EQ(Frames(), (QStringList{T(u"Frame 1"), T(u"Frame 2"), T(u"Frame 3"), T(u"last")}));
    EXPECT_EQ(FrameAt(1)->geometry(), QRect(9, 102, 264, 94));
    EXPECT_EQ(FrameAt(3)->geometry(), QRect(207, 8, 66, 188));
    EXPECT_EQ(Sizes(), (QStringList{T(u"50"), T(u"50")}));
    EXPECT_EQ(Ok(), T(u"<FRAMESET ROWS=\"50%,50%\">\r\n\r\n\r\n\r\n<FRAME NAME=\"last\">\r\n</FRAMESET>"));
}

TEST_F(VisFrameTest, ANewSplitNamesTheFramesAnewAndTheyKeepTheirTags) {
    Across(u"2");
    Edit(0, u"txtName", u"left");
    EXPECT_EQ(Frames(), (QStringList{T(u"left"), T(u"Frame 2")}));
    Across(u"2");
    EXPECT_EQ(Frames(), (QStringList{T(u"Frame 1"), T(u"Frame 2")}));
    EXPECT_EQ(Ok(), T(u"<FRAMESET COLS=\"50%,50%\">\r\n<FRAME NAME=\"left\">\r\n\r\n</FRAMESET>"));
}

TEST_F(VisFrameTest, AFrameTakesWhatItsDialogLeaves) {
    Across(u"2");
    Edit(1, u"txtSrc", u"b.htm");
    EXPECT_EQ(FrameAt(1)->property("Tag").toString(), T(u"<FRAME SRC=\"b.htm\">"));
    EXPECT_EQ(FrameAt(1)->text(), T(u"Frame 2")) << "no name, no new caption";
    Edit(1, u"txtName", u"right & wide");
    EXPECT_EQ(FrameAt(1)->property("Tag").toString(), T(u"<FRAME NAME=\"right & wide\">"));
    EXPECT_EQ(FrameAt(1)->text(), T(u"right & wide"));
    EXPECT_EQ(FrameAt(0)->property("Tag").toString(), QString());
    EXPECT_EQ(frame.State<FrameResult>().FrameTagResult, QString());
    EXPECT_EQ(frame.State<FrameResult>().FrameNameResult, QString());
    // Cancel leaves both.
    Edit(1, u"txtName", u"else", u"cmdCancel");
    EXPECT_EQ(FrameAt(1)->property("Tag").toString(), T(u"<FRAME NAME=\"right & wide\">"));
    EXPECT_EQ(FrameAt(1)->text(), T(u"right & wide"));
    // OK with all fields empty.
    Edit(1, u"", u"");
    EXPECT_EQ(FrameAt(1)->property("Tag").toString(), T(u"<FRAME>"));
    EXPECT_EQ(FrameAt(1)->text(), T(u"right & wide"));
}

TEST_F(VisFrameTest, AFrameEditedAgainStartsEmpty) {
    Across(u"2");
    Edit(0, u"txtName", u"left");
    QTest::mouseClick(FrameAt(0), Qt::LeftButton);
    QWidget* const edited = frame.LoadedForms().Find(T(u"frmFrame"));
    ASSERT_TRUE(edited);
    EXPECT_EQ(edited->parentWidget(), form);
    EXPECT_EQ(edited->findChild<QLineEdit*>(T(u"txtName"))->text(), QString());
    // The end of the program takes it down and nothing comes of it.
    frame.LoadedForms().Unload(*edited);
    EXPECT_EQ(FrameAt(0)->property("Tag").toString(), T(u"<FRAME NAME=\"left\">"));
}

TEST_F(VisFrameTest, WritesTheSizesAsTheyStand) {
    Across(u"3");
    Fill(T(u"txtSizes_0"), T(u"20"));
    Fill(T(u"txtSizes_1"), T(u"*"));
    Fill(T(u"txtSizes_2"), QString());
    Fill(T(u"cboBorder"), T(u"0"));
    EXPECT_EQ(Ok(), T(u"<FRAMESET COLS=\"20%,*%\" BORDER=0>\r\n\r\n\r\n\r\n</FRAMESET>"));
    Show();
    Across(u"2");
    Press(T(u"Check1"));
    Fill(T(u"txtSizes_0"), T(u"120"));
    Fill(T(u"txtSizes_1"), T(u"80"));
    EXPECT_EQ(Ok(), T(u"<FRAMESET COLS=\"120,80\">\r\n\r\n\r\n</FRAMESET>"));
}

TEST_F(VisFrameTest, NoSizeIsChecked) {
    const std::pair<const char16_t*, const char16_t*> rows[] = {{u"abc", u"abc%"}, {u" ", u" %"},
                                                                {u"0", u"0%"},     {u"-1", u"-1%"},
                                                                {u"2.5", u"2.5%"}, {u"99,999", u"99,999%"}};
    for (const auto& [size, written] : rows) {
        Show();
        UpDown(u"1");
        Fill(T(u"txtSizes_0"), T(size));
        Fill(T(u"cboBorder"), T(size));
        EXPECT_EQ(Ok(), T(u"<FRAMESET ROWS=\"%1\" BORDER=%2>\r\n\r\n</FRAMESET>").arg(T(written), T(size)));
    }
}

TEST_F(VisFrameTest, BehindTheSixthFrameNothingIsWritten) {
    UpDown(u"8");
    EXPECT_EQ(Frames().size(), 8);
    EXPECT_EQ(Sizes(), QStringList(6, T(u"12")));
    Edit(5, u"txtName", u"six");
    Edit(6, u"txtName", u"seven");
    EXPECT_EQ(FrameAt(6)->text(), T(u"seven"));
    EXPECT_EQ(Ok(),
              T(u"<FRAMESET ROWS=\"12%,12%,12%,12%,12%,12%\">\r\n\r\n\r\n\r\n\r\n\r\n<FRAME NAME=\"six\">\r\n"
                u"</FRAMESET>"));
}

TEST_F(VisFrameTest, WithoutADirectionTheQuoteStandsAlone) {
    EXPECT_EQ(Ok(), T(u"<FRAMESET\">\r\n\r\n</FRAMESET>"));
    EXPECT_FALSE(Loaded(T(u"VisFrame")));
}

TEST_F(VisFrameTest, GoesWithLowerCaseTagsFrameByFrame) {
    Across(u"2");
    Edit(0, u"txtName", u"One");
    LowerCaseTags();
    Edit(1, u"txtName", u"Two");
    Fill(T(u"cboBorder"), T(u"3"));
    // A frame has the case that was asked for when it was described.
    EXPECT_EQ(Ok(),
              T(u"<frameset cols=\"50%,50%\" border=3>\r\n<FRAME NAME=\"One\">\r\n<frame name=\"Two\">\r\n"
                u"</frameset>"));
}

TEST_F(VisFrameTest, TheFramesetGoesAroundTheSelection) {
    Across(u"2");
    SelectIn(T(u"abc"), 1, 1);
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"a<FRAMESET COLS=\"50%,50%\">\r\n\r\n\r\nb</FRAMESET>c"));
    EXPECT_EQ(Text().mid(frame.Box().SelStart()), T(u"</FRAMESET>c"));
}

TEST_F(VisFrameTest, TheFramesAreReachedByKeysInTheirOrder) {
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    EXPECT_EQ(form->focusWidget(), &Control<QWidget>(T(u"cmdAcross")));
    frame.prompts.inputAnswers = {T(u"2"), T(u"3")};
    QTest::keyClick(form->focusWidget(), Qt::Key_Space);
    QTest::keyClick(form->focusWidget(), Qt::Key_Space);
    FrameAt(0)->setFocus();
    QStringList order;
    for (int i = 0; i < 12; ++i) {
        order << form->focusWidget()->objectName();
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order,
              T(u"cmdFrame_0 cmdFrame_1 cmdFrame_2 cmdAcross cmdUpDown cboBorder txtSizes_0 txtSizes_1 "
                u"txtSizes_2 Check1 cmdOK cmdCancel")
                  .split(u' '));
    EXPECT_EQ(form->focusWidget(), FrameAt(0));
    // Enter on a frame is a click on it.
    QTest::keyClick(FrameAt(0), Qt::Key_Return);
    EXPECT_TRUE(Loaded(T(u"frmFrame")));
}

const AnyDialog inAnyDialogTest({.form = u"VisFrame",
                                 .entries = {u"tb_frame"},
                                 .field = u"cboBorder",
                                 .open = u"<frameset\" border=MiXed>\r\n\r\n",
                                 .close = u"</frameset>",
                                 .ok = {u"cmdOK", u"&OK"},
                                 .cancel = {u"cmdCancel", u"&Cancel"},
                                 .presets = {{u"Check1", u"True"}}});

} // namespace
