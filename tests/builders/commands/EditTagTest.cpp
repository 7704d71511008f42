// The road back from a tag to its dialog, with the real dialogs.
#include "builders/commands/EditTag.h"

#include "builders/commands/BuilderForms.h"
#include "builders/DialogTest.h"

namespace {

class EditTagTest : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        FillEditTagCommand(frame);
    }
    void TearDown() override {
        EXPECT_TRUE(frame.prompts.asked.isEmpty()) << "there is no message of any kind";
    }
    /// The text with the caret where "|" stands, and the command.
    void EditAt(const QString& text) {
        const int caret = static_cast<int>(text.indexOf(u'|'));
        frame.SetText(QString(text).remove(u'|'));
        frame.Box().SetSelStart(caret);
        frame.Commands().Run(QStringLiteral("mnuEditTag"));
        for (const char* name : {"frmGraphicLink", "frmBody", "frmEmbed"}) {
            if (QWidget* shown = frame.LoadedForms().Find(QString::fromLatin1(name)))
                form = shown;
        }
    }
    QString Shown() const {
        for (int i = 0; i < frame.forms->Count(); ++i) {
            if (frame.forms->At(i)->isVisible() && frame.forms->At(i)->objectName() != u"frmTemplate")
                return frame.forms->At(i)->objectName();
        }
        return QString();
    }
};

} // namespace

TEST(FormThatEdits, SubstringsInOrder) {
    struct Row {
        QStringView tag;
        const char* form;
    };
    const Row rows[] = {
        {u"<IMG SRC=\"a.gif\">", "frmGraphicLink"},
        {u"<img src=\"a.gif\">", "frmGraphicLink"},
        {u"<img\r\nsrc=\"a.gif\">", ""},
        {u"<img>", ""},
        {u"<!-- img here -->", "frmGraphicLink"},
        {u"<BODY>", "frmBody"},
        {u"</BODY>", "frmBody"},
        {u"<a href=\"antibody.htm\">", "frmBody"},
        {u"<img alt=\"body\">", "frmGraphicLink"},
        {u"<embed src=\"x.mid\">", "frmEmbed"},
        {u"<embed src=\"body.mid\">", "frmBody"},
        {u"</noembed>", "frmEmbed"},
        {u"<a href=\"x.htm\">", ""},
        {u"", ""},
    };
    for (const Row& row : rows) {
        const FormRow* form = FormThatEdits(BuilderForms(), row.tag.toString());
        EXPECT_STREQ(form ? form->name : "", row.form) << row.tag.toString().toStdString();
    }
}

TEST_F(EditTagTest, ImageFillsItsDialogAndLeavesTheDocument) {
    EditAt(QStringLiteral("before <IMG SRC=\"a.gif\" WI|DTH=10 HEIGHT=20> after"));
    EXPECT_EQ(Shown(), QStringLiteral("frmGraphicLink"));
    EXPECT_EQ(Text(), QStringLiteral("before  after"));
    EXPECT_EQ(frame.Box().SelStart(), 7);
    EXPECT_EQ(frame.Box().SelLength(), 0);
    EXPECT_EQ(Field(QStringLiteral("txtURL")), QStringLiteral("a.gif"));
    EXPECT_EQ(Field(QStringLiteral("txtWidth")), QStringLiteral("10"));
    EXPECT_EQ(Field(QStringLiteral("txtHeight")), QStringLiteral("20"));
    EXPECT_EQ(Field(QStringLiteral("txtALT")), QString());
    EXPECT_EQ(Field(QStringLiteral("txtLinkMe")), QString());
    Press(QStringLiteral("cmdOK"));
    EXPECT_EQ(Text(), QStringLiteral("before <IMG WIDTH=10 HEIGHT=20 SRC=\"a.gif\" USEMAP=\"#\"> after"));
}

TEST_F(EditTagTest, EveryFieldOfAnImageIsSet) {
    EditAt(QStringLiteral(
        "<img alt=\"An alt\" width=1 height=2 hspace=3 vspace=4 border=5 lowsrc=\"low.gif\" align=TOP "
        "src=\"my pic.gif\" usemap=\"#map\" ismap|>"));
    const std::pair<const char*, const char*> fields[] = {
        {"txtALT", "An alt"}, {"txtWidth", "1"},  {"txtHeight", "2"},       {"txtHSpace", "3"},
        {"txtVSpace", "4"},   {"txtBorder", "5"}, {"txtLowSRC", "low.gif"}, {"cboAlign", "TOP"},
        {"txtUseMap", "map"}, {"txtLinkMe", ""},  {"txtURL", "my pic.gif"},
    };
    for (const auto& [name, value] : fields)
        EXPECT_EQ(Field(QString::fromLatin1(name)), QString::fromLatin1(value)) << name;
    EXPECT_TRUE(Control<QAbstractButton>(QStringLiteral("chkISMAP")).isChecked());
    EXPECT_EQ(Text(), QString());
    Press(QStringLiteral("cmdOK"));
    EXPECT_EQ(
        Text(),
        QStringLiteral("<IMG ALT=\"An alt\" WIDTH=1 HEIGHT=2 HSPACE=3 VSPACE=4 BORDER=5 LOWSRC=\"low.gif\" "
                       "SRC=\"my pic.gif\" USEMAP=\"#map\" ISMAP>"))
        << "the alignment is lost";
}

TEST_F(EditTagTest, ImageAndEmbedComeRoundUnchanged) {
    const QString tags[] = {
        QStringLiteral("<IMG ALT=\"x\" WIDTH=10 HEIGHT=20 SRC=\"a.gif\" USEMAP=\"#\">"),
        QStringLiteral(
            "<IMG ALT=\"x y\" WIDTH=10 HEIGHT=20 HSPACE=1 VSPACE=2 BORDER=0 LOWSRC=\"l.gif\" SRC=\"a b.gif\" "
            "USEMAP=\"#m\" ISMAP>"),
        QStringLiteral("<IMG USEMAP=\"#\">"),
        QStringLiteral("<EMBED WIDTH=10 HEIGHT=20 PALETTE=foreground SRC=\"x.mid\">"),
        QStringLiteral("<EMBED SRC=\"x.mid\">"),
    };
    for (const QString& tag : tags) {
        EditAt(QStringLiteral("a<") + u'|' + tag.mid(1) + u'b');
        ASSERT_NE(form, nullptr) << tag.toStdString();
        EXPECT_EQ(Text(), QStringLiteral("ab"));
        Press(QStringLiteral("cmdOK"));
        EXPECT_EQ(Text(), u'a' + tag + u'b');
    }
}

TEST_F(EditTagTest, TagsComeRoundInLowerCaseToo) {
    LowerCaseTags();
    for (const char* tag : {"<img alt=\"X y\" width=10 height=20 src=\"A.gif\" usemap=\"#M\" ismap>",
                            "<embed width=10 palette=FOREGROUND src=\"X.mid\">"}) {
        const QString text = QString::fromLatin1(tag);
        EditAt(u'<' + (u'|' + text.mid(1)));
        EXPECT_EQ(Text(), QString());
        Press(QStringLiteral("cmdOK"));
        EXPECT_EQ(Text(), text);
    }
}

TEST_F(EditTagTest, AttributesComeBackInTheDialogsOrder) {
    EditAt(QStringLiteral("<|IMG SRC=\"a.gif\" HEIGHT=20 WIDTH=10 LOWSRC=\"l.gif\" ALT=\"x\" CLASS=c>"));
    Press(QStringLiteral("cmdOK"));
    EXPECT_EQ(Text(), QStringLiteral(
                          "<IMG ALT=\"x\" WIDTH=10 HEIGHT=20 LOWSRC=\"l.gif\" SRC=\"a.gif\" USEMAP=\"#\">"))
        << "an attribute without a field is lost";
}

TEST_F(EditTagTest, ATextOfSeveralLinesStays) {
    const QString tag = QStringLiteral("<IMG ALT=\"one\r\ntwo\tthree\" USEMAP=\"#\">");
    EditAt(tag.left(5) + u'|' + tag.mid(5));
    EXPECT_EQ(Field(QStringLiteral("txtALT")), QStringLiteral("one\r\ntwo\tthree"));
    Press(QStringLiteral("cmdOK"));
    EXPECT_EQ(Text(), tag);
}

TEST_F(EditTagTest, TheCutIsOneStepThatMarksTheDocument) {
    EditAt(QStringLiteral("a<img |src=\"a.gif\">b"));
    EXPECT_TRUE(frame.active->modified);
    Press(QStringLiteral("cmdCancel"));
    frame.active->modified = false;
    EditAt(QStringLiteral("a<b|ody>b"));
    EXPECT_FALSE(frame.active->modified) << "a body tag is not cut";
}

TEST_F(EditTagTest, AnEmbedWithoutASourceWantsOne) {
    EditAt(QStringLiteral("<embed |width=10>"));
    EXPECT_FALSE(Control<QAbstractButton>(QStringLiteral("cmdOK")).isEnabled());
    EXPECT_EQ(Text(), QString());
}

TEST_F(EditTagTest, AnOpenEmbedDialogIsFilledAnew) {
    EditAt(QStringLiteral("<embed |src=\"a.mid\" palette=BACKGROUND height=3>"));
    EditAt(QStringLiteral("<embed |width=4>"));
    const std::pair<const char*, const char*> fields[] = {
        {"txtURL", ""}, {"cboPalette", ""}, {"txtHeight", ""}, {"txtWidth", "4"}};
    for (const auto& [name, value] : fields)
        EXPECT_EQ(Field(QString::fromLatin1(name)), QString::fromLatin1(value)) << name;
    EXPECT_FALSE(Control<QAbstractButton>(QStringLiteral("cmdOK")).isEnabled());
}

TEST_F(EditTagTest, AnOpenBodyDialogIsNotReadAnew) {
    EditAt(QStringLiteral("<body |bgcolor=#111111>"));
    EditAt(QStringLiteral("<body |bgcolor=#222222>"));
    EXPECT_EQ(Field(QStringLiteral("txtBG")), QStringLiteral("#111111"));
    EXPECT_EQ(frame.Box().SelText(), QStringLiteral("<body bgcolor=#222222>"));
}

TEST_F(EditTagTest, TheBodysOkReplacesTheTagThatWasSelected) {
    EditAt(QStringLiteral("<BODY TEXT=\"#111111\">one<body l|eftmargin=0>two"));
    Fill(QStringLiteral("txtText"), QStringLiteral("#222222"));
    Press(QStringLiteral("cmdOK"));
    EXPECT_EQ(Text(), QStringLiteral("<BODY TEXT=\"#111111\">one<BODY TEXT=\"#222222\">two"));
}

TEST_F(EditTagTest, CancelLeavesTheTagCutAndUndoBringsItBack) {
    const QString tag = QStringLiteral("<IMG SRC=\"a.gif\">");
    EditAt(QStringLiteral("a<|IMG SRC=\"a.gif\">b"));
    Press(QStringLiteral("cmdCancel"));
    EXPECT_EQ(Shown(), QString());
    EXPECT_EQ(Text(), QStringLiteral("ab"));
    frame.Box().Send(RichTextBox::Message::Undo);
    EXPECT_EQ(Text(), u'a' + tag + u'b');
}

TEST_F(EditTagTest, EmbedFillsItsDialog) {
    EditAt(QStringLiteral("<embed src=\"my song.mid\" width=1|0>"));
    EXPECT_EQ(Shown(), QStringLiteral("frmEmbed"));
    EXPECT_EQ(Field(QStringLiteral("txtURL")), QStringLiteral("my song.mid"));
    EXPECT_EQ(Field(QStringLiteral("txtWidth")), QStringLiteral("10"));
    EXPECT_EQ(Field(QStringLiteral("txtHeight")), QString());
    EXPECT_EQ(Field(QStringLiteral("cboPalette")), QString());
    EXPECT_EQ(Text(), QString());
    EXPECT_TRUE(Control<QAbstractButton>(QStringLiteral("cmdOK")).isEnabled());
    Press(QStringLiteral("cmdCancel"));
    EXPECT_EQ(Text(), QString());
}

TEST_F(EditTagTest, BodyOpensItsDialogAndStaysSelected) {
    EditAt(QStringLiteral("<BODY BGCOLOR=\"#123456\"|>text"));
    EXPECT_EQ(Shown(), QStringLiteral("frmBody"));
    EXPECT_EQ(Field(QStringLiteral("txtBG")), QStringLiteral("#123456"));
    EXPECT_EQ(Text(), QStringLiteral("<BODY BGCOLOR=\"#123456\">text"));
    EXPECT_EQ(frame.Box().SelText(), QStringLiteral("<BODY BGCOLOR=\"#123456\">"));
}

TEST_F(EditTagTest, SubstringsDecide) {
    struct Row {
        const char* text;
        const char* form;
        const char* left;
    };
    const Row rows[] = {
        {"text</BO|DY>", "frmBody", "text</BODY>"},
        {"<a href=\"anti|body.htm\">", "frmBody", "<a href=\"antibody.htm\">"},
        {"<!-- img |here -->", "frmGraphicLink", ""},
        {"<A HREF=\"x.htm\"><IMG |SRC=\"a.gif\"></A>", "frmGraphicLink", "<A HREF=\"x.htm\"></A>"},
    };
    for (const Row& row : rows) {
        EditAt(QString::fromLatin1(row.text));
        EXPECT_EQ(Shown(), QString::fromLatin1(row.form)) << row.text;
        EXPECT_EQ(Text(), QString::fromLatin1(row.left));
        if (QWidget* shown = frame.LoadedForms().Find(QString::fromLatin1(row.form)))
            frame.LoadedForms().Unload(*shown);
    }
}

TEST_F(EditTagTest, AnyOtherTagIsOnlySelected) {
    EditAt(QStringLiteral("a<img\r\nsrc=|\"a.gif\">b"));
    EXPECT_EQ(Shown(), QString());
    EXPECT_EQ(frame.Box().SelText(), QStringLiteral("<img\r\nsrc=\"a.gif\">"));
    EXPECT_EQ(frame.Box().SelStart(), 1);
}

TEST_F(EditTagTest, OutsideATagNothingChanges) {
    for (const char* text : {"<img src=\"a.gif\">|", "<img src=\"a.gif\"> te|xt", "a <img src=\"a.gif\"|"}) {
        EditAt(QString::fromLatin1(text));
        EXPECT_EQ(Shown(), QString()) << text;
        EXPECT_EQ(Text(), QString::fromLatin1(text).remove(u'|'));
        EXPECT_EQ(frame.Box().SelStart(), QString::fromLatin1(text).indexOf(u'|'));
        EXPECT_EQ(frame.Box().SelLength(), 0);
    }
}

TEST_F(EditTagTest, UnclosedTagKeepsTheSelectionToo) {
    SelectIn(QStringLiteral("a <img src"), 5, 3);
    EditTag(frame);
    EXPECT_EQ(frame.Box().SelText(), QStringLiteral("g s"));
}

TEST_F(EditTagTest, OffTheTextsStartOnlyTheSelectionGoes) {
    frame.SetText(QStringLiteral("text <img src=\"a.gif\">"));
    for (const int start : {0, 2}) {
        frame.Box().SetSelStart(start);
        frame.Box().SetSelLength(2);
        EditTag(frame);
        EXPECT_EQ(Shown(), QString());
        EXPECT_EQ(frame.Box().SelStart(), start);
        EXPECT_EQ(frame.Box().SelLength(), 0);
    }
}

TEST_F(EditTagTest, ScanStartsFromTheSelectionsStart) {
    SelectIn(QStringLiteral("<embed src=\"a.mid\"> <b>"), 3, 19);
    EditTag(frame);
    EXPECT_EQ(Shown(), QStringLiteral("frmEmbed"));
    EXPECT_EQ(Text(), QStringLiteral(" <b>"));
}

TEST_F(EditTagTest, OpenDialogKeepsWhatTheCommandDoesNotSet) {
    EditAt(QStringLiteral("<img src=\"a.gif\" alt=\"x\" ismap|>"));
    Fill(QStringLiteral("txtLinkMe"), QStringLiteral("there.htm"));
    EditAt(QStringLiteral("<img src=\"b.gif\"|>"));
    EXPECT_EQ(Field(QStringLiteral("txtURL")), QStringLiteral("b.gif"));
    EXPECT_EQ(Field(QStringLiteral("txtALT")), QString())
        << "an attribute that is not there empties its field";
    EXPECT_EQ(Field(QStringLiteral("txtLinkMe")), QStringLiteral("there.htm"));
    EXPECT_TRUE(Control<QAbstractButton>(QStringLiteral("chkISMAP")).isChecked());
}

TEST_F(EditTagTest, OkInsertsWhereTheCaretIsThen) {
    EditAt(QStringLiteral("one <img src=\"a.gif\"|> two"));
    frame.Box().SetSelStart(0);
    Press(QStringLiteral("cmdOK"));
    EXPECT_EQ(Text(), QStringLiteral("<IMG SRC=\"a.gif\" USEMAP=\"#\">one  two"));
}

TEST_F(EditTagTest, LongSourceKeepsItsEnd) {
    const QString source = QStringLiteral("data:") + QString(40000, u'A') + QStringLiteral("end");
    EditAt(QStringLiteral("<img |src=\"") + source + QStringLiteral("\">"));
    Press(QStringLiteral("cmdOK"));
    EXPECT_EQ(Text(), QStringLiteral("<IMG SRC=\"") + source + QStringLiteral("\" USEMAP=\"#\">"));
}

TEST_F(EditTagTest, LongPaletteKeepsItsEnd) {
    const QString palette = QString(40000, u'A') + QStringLiteral("end");
    EditAt(QStringLiteral("<embed |src=\"x.mid\" palette=") + palette + u'>');
    Press(QStringLiteral("cmdOK"));
    EXPECT_EQ(Text(), QStringLiteral("<EMBED PALETTE=") + palette + QStringLiteral(" SRC=\"x.mid\">"));
}

TEST_F(EditTagTest, WithoutADocumentNothingHappens) {
    frame.CloseDocument();
    EditTag(frame);
    EXPECT_EQ(Shown(), QString());
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(EditTagTest, APageInUtf8ComesBackAsItStands) {
    frame.active->SetEncoding(TextEncoding::Utf8);
    EditAt(QStringLiteral("日本 😀<img s|rc=\"łódź.gif\" alt=\"שלום\">ł"));
    EXPECT_EQ(Shown(), QStringLiteral("frmGraphicLink"));
    EXPECT_EQ(Field(QStringLiteral("txtALT")), QStringLiteral("שלום"));
    Press(QStringLiteral("cmdOK"));
    EXPECT_EQ(Text(), QStringLiteral("日本 😀<IMG ALT=\"שלום\" SRC=\"łódź.gif\" USEMAP=\"#\">ł"));
}
