#include "builders/page/frmBody.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "builders/page/PageSample.h"
#include "dialogs/ClickLabel.h"
#include "dialogs/DialogState.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/TagRows.h"
#include "support/NoPlainFile.h"
#include "support/Site.h"

namespace {

class frmBodyTest : public DialogTest {
  protected:
    QWidget& Show() { return Open(T(u"tb_body"), T(u"frmBody")); }
    void ShowOver(const char16_t* document) {
        frame.SetText(T(document));
        Show();
    }
    void Select(int start, int length) {
        frame.Box().SetSelStart(start);
        frame.Box().SetSelLength(length);
    }
    QColor ColorOf(const QString& label) { return Control<ClickLabel>(label).ForeColor(); }
    PageSample& Page() { return Control<PageSample>(T(u"Picture1")); }
    const QStringList fields = {T(u"txtBG"), T(u"txtText"), T(u"txtLink"), T(u"txtVlink"), T(u"txtAlink")};
    const QStringList labels = {T(u"lblBG"), T(u"lblText"), T(u"lblLink"), T(u"lblVlink"), T(u"lblAlink")};
};

TEST_F(frmBodyTest, LooksAsItShould) {
    Show();
    EXPECT_EQ(form->windowTitle(), T(u"Body"));
    EXPECT_EQ(Control<QLabel>(T(u"lblBackground")).text().remove(u'&'), T(u"Background Image:"));
    EXPECT_EQ(LabelOf(T(u"txtBackground")), T(u"Background Image:"));
    EXPECT_EQ(Tip(T(u"Command1")), T(u"Find Background Image"));
    const std::pair<QString, QString> samples[] = {
        {T(u"Background"), T(u"Double-click to choose background color")},
        {T(u"Text"), T(u"Double-click to choose text color")},
        {T(u"Link"), T(u"Double-click to choose link color")},
        {T(u"V Link"), T(u"Double-click to choose visited link color")},
        {T(u"A Link"), T(u"Double-click to choose active link color")},
    };
    const QString tips[] = {T(u"Pick Background Color"), T(u"Pick Text Color"), T(u"Pick Link Color"),
                            T(u"Pick Visited Link Color"), T(u"Pick Active Link Color")};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(Control<QLabel>(labels[i]).text(), samples[i].first);
        EXPECT_EQ(Tip(labels[i]), samples[i].second);
        EXPECT_EQ(Control<QWidget>(labels[i]).parentWidget(), &Page());
        EXPECT_EQ(Tip(T(u"cmdShowColor_%1").arg(i)), tips[i]);
        EXPECT_EQ(Field(fields[i]), QString());
    }
    EXPECT_EQ(Field(T(u"txtBackground")), QString());
    ExpectPathBoxes();
    EXPECT_EQ(Tip(T(u"chkForwardSlash")), T(u"Use forward slashes in the filename"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdOK")).text(), T(u"OK"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdCancel")).text(), T(u"Cancel"));
}

TEST_F(frmBodyTest, ReadsTheColoursOfTheDocumentAndLeavesTheSamples) {
    Show();
    QList<QColor> before = {Page().BackColor()};
    for (int i = 1; i < 5; ++i)
        before << ColorOf(labels[i]);
    Press(T(u"cmdCancel"));
    ShowOver(
        u"<BODY BGCOLOR=\"#111111\" TEXT=\"#222222\" LINK=\"#333333\" VLINK=\"#444444\" ALINK=\"#555555\" "
        u"BACKGROUND=\"b.gif\">");
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Field(fields[i]), u'#' + QString(6, QChar(u'1' + i)));
    EXPECT_EQ(Field(T(u"txtBackground")), QString());
    QList<QColor> after = {Page().BackColor()};
    for (int i = 1; i < 5; ++i)
        after << ColorOf(labels[i]);
    EXPECT_EQ(after, before);
}

TEST_F(frmBodyTest, ReadsTheDocumentAnewAtEachShowing) {
    ShowOver(u"<BODY BGCOLOR=\"#111111\">");
    Fill(T(u"txtText"), T(u"blue"));
    Press(T(u"cmdCancel"));
    ShowOver(u"<BODY>");
    EXPECT_EQ(Field(T(u"txtBG")), QString());
    EXPECT_EQ(Field(T(u"txtText")), QString());
}

TEST_F(frmBodyTest, EachButtonPicksItsColour) {
    Show();
    const QString texts[] = {T(u"#030201"), T(u"#060504"), T(u"#090807"), T(u"#0C0B0A"), T(u"#0F0E0D")};
    for (int i = 0; i < 5; ++i) {
        frame.prompts.colorAnswers.push_back(0x010203 + i * 0x030303);
        Press(T(u"cmdShowColor_%1").arg(i));
        EXPECT_EQ(frame.prompts.asked.last().owner, form);
        EXPECT_EQ(Field(fields[i]), texts[i]);
        EXPECT_EQ(i == 0 ? Page().BackColor() : ColorOf(labels[i]), QColor(texts[i]));
    }
}

TEST_F(frmBodyTest, AColourOfNoNumberIsNotAskedFor) {
    Show();
    for (const int index : {-1, 5, 6, 1000})
        EXPECT_TRUE(QMetaObject::invokeMethod(form, "cmdShowColor_Click", Q_ARG(int, index)));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    for (const QString& field : fields)
        EXPECT_EQ(Field(field), QString());
}

TEST_F(frmBodyTest, FourLabelsTakeADoubleClickAndTheLastASingleOne) {
    Show();
    for (int i = 0; i < 4; ++i) {
        QTest::mouseClick(&Control<QWidget>(labels[i]), Qt::LeftButton);
        EXPECT_TRUE(frame.prompts.asked.isEmpty());
        frame.prompts.colorAnswers = {0x0000FF};
        QTest::mouseDClick(&Control<QWidget>(labels[i]), Qt::LeftButton);
        EXPECT_EQ(Field(fields[i]), T(u"#FF0000"));
        frame.prompts.asked.clear();
    }
    QTest::mouseClick(&Control<QWidget>(labels[4]), Qt::RightButton);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    frame.prompts.colorAnswers = {0x00FF00};
    QTest::mouseClick(&Control<QWidget>(labels[4]), Qt::LeftButton);
    EXPECT_EQ(Field(fields[4]), T(u"#00FF00"));
}

TEST_F(frmBodyTest, ACancelledColourIsBlack) {
    ShowOver(u"<BODY BGCOLOR=\"#111111\">");
    frame.prompts.colorAnswers = {std::nullopt};
    Press(T(u"cmdShowColor_0"));
    EXPECT_EQ(Field(T(u"txtBG")), T(u"#000000"));
    EXPECT_EQ(Page().BackColor(), QColor(Qt::black));
}

TEST_F(frmBodyTest, TheNameOfTheBackgroundIsReadableOnIt) {
    Show();
    frame.prompts.colorAnswers = {0x202020, 0xE0E0E0};
    Press(T(u"cmdShowColor_0"));
    EXPECT_EQ(ColorOf(labels[0]), QColor(Qt::white));
    Press(T(u"cmdShowColor_0"));
    EXPECT_EQ(ColorOf(labels[0]), QColor(Qt::black));
}

TEST_F(frmBodyTest, TheButtonShowsTheColourOfItsField) {
    Show();
    const auto face = [&] {
        return Control<QAbstractButton>(T(u"cmdShowColor_0"))
            .icon()
            .pixmap(16, 16)
            .toImage()
            .pixelColor(8, 8);
    };
    EXPECT_NE(face(), QColor(0x12, 0x34, 0x56));
    Fill(T(u"txtBG"), T(u"#123456"));
    EXPECT_EQ(face(), QColor(0x12, 0x34, 0x56));
    Fill(T(u"txtBG"), T(u"red"));
    EXPECT_EQ(face(), QColor(Qt::red));
    Fill(T(u"txtBG"), T(u"no colour"));
    EXPECT_NE(face(), QColor(Qt::red));
}

TEST_F(frmBodyTest, BrowsesForTheBackground) {
    const Site site;
    frame.active->caption = site.Path(T(u"pages/a.htm"));
    frame.State<DialogState>().LastDir = site.Path(T(u"img"));
    Show();
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(site.Path(T(u"img/banner.png"))),
                                 ScriptedPrompts::Cancelled()};
    Press(T(u"Command1"));
    const FileRequest request = frame.prompts.asked.last().request;
    EXPECT_EQ(request.filter, FileFilter::Picture);
    EXPECT_EQ(request.folder, site.Path(T(u"img")));
    EXPECT_TRUE(request.panel != nullptr);
    EXPECT_EQ(Field(T(u"txtBackground")), T(u"../img/banner.png"));
    EXPECT_EQ(Page().Picture().size(), QSize(468, 60));
    EXPECT_FALSE(Loaded(T(u"frmImage")));

    // A cancel leaves the field and the sample.
    Press(T(u"Command1"));
    EXPECT_EQ(Field(T(u"txtBackground")), T(u"../img/banner.png"));
    EXPECT_EQ(Page().Picture().size(), QSize(468, 60));
    EXPECT_FALSE(Loaded(T(u"frmImage")));
    EXPECT_EQ(frame.State<DialogState>().LastDir, site.Path(T(u"img")));

    Fill(T(u"txtBackground"), QString());
    EXPECT_TRUE(Page().Picture().isNull());
}

TEST_F(frmBodyTest, ABackgroundThatIsNoPlainFileIsNotWaitedFor) {
    FreshUser();
    const Site site;
    const QStringList paths = NoPlainFiles();
    ASSERT_FALSE(paths.isEmpty());
    Show();
    Press(T(u"chkAbsolute"));
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(site.Path(T(u"img/banner.png")))};
    Press(T(u"Command1"));
    for (const QString& path : paths) {
        frame.prompts.openAnswers = {ScriptedPrompts::Picked(path)};
        Press(T(u"Command1"));
        EXPECT_EQ(Field(T(u"txtBackground")), path);
        EXPECT_EQ(Page().Picture().size(), QSize(468, 60));
    }
}

TEST_F(frmBodyTest, KeepsTheFullPathWhereAsked) {
    const Site site;
    frame.active->caption = site.Path(T(u"pages/a.htm"));
    Show();
    Press(T(u"chkAbsolute"));
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(site.Path(T(u"img/banner.png")))};
    Press(T(u"Command1"));
    EXPECT_EQ(Field(T(u"txtBackground")), site.Path(T(u"img/banner.png")));
}

TEST_F(frmBodyTest, TurnsTheSlashesOfTheBackground) {
    Show();
    Fill(T(u"txtBackground"), T(u"http://a/b"));
    Fill(T(u"txtBG"), T(u"a/b"));
    Press(T(u"chkForwardSlash"));
    EXPECT_EQ(Field(T(u"txtBackground")), T(u"http:\\\\a\\b"));
    Press(T(u"chkForwardSlash"));
    EXPECT_EQ(Field(T(u"txtBackground")), T(u"http://a/b"));
    EXPECT_EQ(Field(T(u"txtBG")), T(u"a/b"));
}

struct OkRow {
    const char16_t* before;
    int start;
    int length;
    const char16_t* after;
};

TEST_F(frmBodyTest, OkReplacesTheBodyTagOrTheSelection) {
    const OkRow rows[] = {
        // Nothing selected: the whole text is searched, in any case.
        {u"<HTML><body leftmargin=0>x", 0, 0, u"<HTML><BODY ALINK=\"a\">x"},
        {u"<HTML><Body>x</BODY>", 20, 0, u"<HTML><BODY ALINK=\"a\">x</BODY>"},
        // No body tag: the tag goes in at the caret.
        {u"abc", 1, 0, u"a<BODY ALINK=\"a\">bc"},
        // A selection without one is deleted, and a tag elsewhere stays.
        {u"<BODY>abc", 7, 1, u"<BODY>a<BODY ALINK=\"a\">c"},
        // A selected body tag is replaced, and so is a part of the selection.
        {u"<BODY BGPROPERTIES=FIXED>abc", 0, 25, u"<BODY ALINK=\"a\">abc"},
        {u"x<BODY TEXT=red>abc", 0, 19, u"x<BODY ALINK=\"a\">abc"},
        // A selected closing tag holds no "<body" and goes whole.
        {u"a</BODY>b", 1, 7, u"a<BODY ALINK=\"a\">b"},
        {u"<A HREF=\"body.htm\">b", 0, 19, u"<BODY ALINK=\"a\">b"},
        // One that never closes: the tag goes in before it, and nothing is deleted.
        {u"abc<body ", 1, 0, u"abc<BODY ALINK=\"a\"><body "},
        {u"abc<body ", 0, 9, u"abc<BODY ALINK=\"a\"><body "},
        {u"<body ", 0, 6, u"<BODY ALINK=\"a\"><body "},
        {u"keep this <body bgcolor=\"red\"", 0, 30, u"keep this <BODY ALINK=\"a\"><body bgcolor=\"red\""},
        {u"<P>keep this <body bgcolor=\"red\"", 3, 15,
         u"<P>keep this <BODY ALINK=\"a\"><body bgcolor=\"red\""},
        // Its end is looked for in all of the text behind it, wherever the selection ends.
        {u"a<body b>c", 0, 6, u"a<BODY ALINK=\"a\">c"},
        {u"", 0, 0, u"<BODY ALINK=\"a\">"},
    };
    for (const OkRow& row : rows) {
        ShowOver(row.before);
        for (const QString& field : fields)
            Fill(field, QString());
        Fill(T(u"txtAlink"), T(u"a"));
        Select(row.start, row.length);
        Press(T(u"cmdOK"));
        EXPECT_EQ(Text(), T(row.after)) << T(row.before).toStdString();
        EXPECT_FALSE(Loaded(T(u"frmBody")));
    }
}

TEST_F(frmBodyTest, WritesAllFieldsAndHandsTheTagOn) {
    Show();
    for (int i = 0; i < 5; ++i)
        Fill(fields[i], QString::number(i));
    Fill(T(u"txtBackground"), T(u"img/back.gif"));
    EXPECT_FALSE(frame.State<DialogState>().TagBuilt);
    Press(T(u"cmdOK"));
    const QString tag =
        T(u"<BODY BGCOLOR=\"0\" TEXT=\"1\" LINK=\"2\" VLINK=\"3\" ALINK=\"4\" BACKGROUND=\"img/back.gif\">");
    EXPECT_EQ(Text(), tag);
    EXPECT_EQ(frame.State<DialogState>().LastBuiltTag, tag);
    EXPECT_TRUE(frame.State<DialogState>().TagBuilt);
}

TEST_F(frmBodyTest, CancelChangesNothing) {
    ShowOver(u"<BODY>");
    Fill(T(u"txtBG"), T(u"x"));
    Press(T(u"cmdCancel"));
    EXPECT_EQ(Text(), T(u"<BODY>"));
    EXPECT_FALSE(Loaded(T(u"frmBody")));
    EXPECT_FALSE(frame.State<DialogState>().TagBuilt);
}

TEST_F(frmBodyTest, ActsOnTheDocumentThatIsActiveAtOk) {
    TestDocument* first = frame.active;
    ShowOver(u"<BODY BGCOLOR=\"#111111\">");
    frame.NewDocument();
    Press(T(u"cmdOK"));
    EXPECT_EQ(first->input->Text(), T(u"<BODY BGCOLOR=\"#111111\">"));
    EXPECT_EQ(Text(), T(u"<BODY BGCOLOR=\"#111111\">"));
    EXPECT_NE(frame.active, first);
}

TEST_F(frmBodyTest, FieldsStayEmptyWithoutADocument) {
    frame.CloseDocument();
    Show();
    for (const QString& field : fields)
        EXPECT_EQ(Field(field), QString());
    Press(T(u"cmdOK"));
    EXPECT_FALSE(Loaded(T(u"frmBody")));
}

const AnyDialog inAnyDialogTest({.form = u"frmBody",
                                 .entries = {u"tb_body"},
                                 .field = u"txtBG",
                                 .open = u"<body bgcolor=\"MiXed\">",
                                 .tellsTag = true,
                                 .replaces = true});

} // namespace
