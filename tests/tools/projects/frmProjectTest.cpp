// The Projects dialog, used as a person does.
#include "tools/projects/frmProject.h"

#include "platform/store/ProgramFolder.h"
#include "support/Files.h"
#include "tools/ToolFormTest.h"

#include <gmock/gmock.h>
#include <QGroupBox>
#include <QPushButton>

namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

QByteArray Record(const char* path) {
    return QByteArray(path).leftJustified(256, ' ');
}

QString Padded(const char* path) {
    return QString::fromLatin1(path).leftJustified(256);
}

class frmProjectTest : public ToolFormTest {
  protected:
    void OpenForm() { Open(u"tb_object"_s, u"frmProject"_s); }
    void PressButton(int index) { Press(u"Command1_%1"_s.arg(index)); }
    QListWidget& List1() { return Control<QListWidget>(u"List1"_s); }
    QListWidget& List2() { return Control<QListWidget>(u"List2"_s); }
    static int Selected(const QListWidget& list) {
        return list.selectedItems().isEmpty() ? -1 : list.row(list.selectedItems().first());
    }
    void ClickRow(QListWidget& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    }
    QString Enabled() {
        QString states;
        for (int index = 0; index <= 6; ++index)
            states += Control<QPushButton>(u"Command1_%1"_s.arg(index)).isEnabled() ? u'1' : u'0';
        return states;
    }
    void Store(const QStringList& names) {
        for (int n = 0; n < names.size(); ++n)
            frame.Store().Write(Keys::ProjFile(n), names[n]);
    }
    QStringList Stored() {
        QStringList names;
        for (int n = 0; n < 100; ++n)
            names << frame.Store().Read(Keys::ProjFile(n));
        while (!names.isEmpty() && names.last().isEmpty())
            names.removeLast();
        return names;
    }
    static QString FileOf(const char* name) {
        return ProgramFolder() + u'/' + QString::fromLatin1(name) + u".tnw"_s;
    }
};

TEST_F(frmProjectTest, CaptionsAndTips) {
    OpenForm();
    EXPECT_EQ(form->windowTitle(), u"Projects"_s);
    EXPECT_EQ(form->parentWidget(), frame.Window());
    EXPECT_FALSE(form->isModal());
    struct {
        int index;
        QString caption;
        QString tip;
    } const rows[] = {
        {0, u"&Open Project"_s, u"Open a previously saved project"_s},
        {1, u"&New Project"_s, u"Create a new project"_s},
        {2, u"&Save Project"_s, u"Save the selected project"_s},
        {3, u"&Delete Project"_s, u"Delete the selected project"_s},
        {4, u"&Add File"_s, u"Add a file to the selected project"_s},
        {5, u"D&elete File"_s, u"Delete the selected file from the selected project"_s},
        {6, u""_s, u"Exit"_s},
    };
    for (const auto& [index, caption, tip] : rows) {
        const auto& button = Control<QPushButton>(u"Command1_%1"_s.arg(index));
        EXPECT_EQ(button.text(), caption);
        EXPECT_EQ(button.toolTip(), tip);
    }
    EXPECT_FALSE(Control<QPushButton>(u"Command1_6"_s).icon().isNull());
    EXPECT_EQ(Control<QPushButton>(u"Command1_6"_s).accessibleName(), u"Exit"_s);
    EXPECT_EQ(List1().toolTip(), u"Available Projects"_s);
    EXPECT_EQ(List2().toolTip(), u"Files in the selected project"_s);
    const auto title = [](const QWidget& list) {
        return qobject_cast<QGroupBox*>(list.parentWidget())->title().remove(u'&');
    };
    EXPECT_EQ(title(List1()), u"Projects"_s);
    EXPECT_EQ(title(List2()), u"Files"_s);
    EXPECT_EQ(Control<QLabel>(u"Label1"_s).text(), u"Remeber to press the Save Project button"_s);
    EXPECT_EQ(Enabled(), u"0100001"_s);
}

// --- the names
// -----------------------------------------------------------------------------------------------

TEST_F(frmProjectTest, NamesAreReadUpToTheFirstGapAndNothingIsSelected) {
    Store({u"one"_s, u"two"_s, u""_s, u"hidden"_s});
    OpenForm();
    EXPECT_THAT(Texts(u"List1"_s), ElementsAre(u"one"_s, u"two"_s));
    EXPECT_EQ(Selected(List1()), -1);
    EXPECT_EQ(Enabled(), u"0100001"_s);
    EXPECT_FALSE(QFile::exists(FileOf("one")));
    // What was behind the gap is lost at the next close.
    PressButton(6);
    EXPECT_FALSE(Loaded(u"frmProject"_s));
    EXPECT_THAT(Stored(), ElementsAre(u"one"_s, u"two"_s));
}

TEST_F(frmProjectTest, AHundredNamesSelectTheFirst) {
    QStringList names;
    for (int n = 0; n < 100; ++n)
        names << u"p%1"_s.arg(n);
    Store(names);
    OpenForm();
    EXPECT_EQ(Selected(List1()), 0);
    EXPECT_EQ(Enabled(), u"1111111"_s);
    EXPECT_TRUE(QFile::exists(FileOf("p0")));
    // There is room for no more.
    PressButton(1);
    EXPECT_EQ(Box().text, u"There can be no more than 100 projects."_s);
    EXPECT_EQ(List1().count(), 100);
    PressButton(6);
    EXPECT_EQ(Stored(), names);
}

TEST_F(frmProjectTest, NinetyNineNamesSelectNone) {
    QStringList names;
    for (int n = 0; n < 99; ++n)
        names << u"p%1"_s.arg(n);
    Store(names);
    OpenForm();
    EXPECT_EQ(Selected(List1()), -1);
    frame.prompts.inputAnswers = {u"p99"_s};
    PressButton(1);
    EXPECT_EQ(Selected(List1()), 99);
    PressButton(6);
    EXPECT_EQ(Stored(), names + QStringList(u"p99"_s));
}

TEST_F(frmProjectTest, NamesAreStoredWhateverUnloadsTheForm) {
    const auto make = [&](const QString& name) {
        OpenForm();
        frame.prompts.inputAnswers = {name};
        PressButton(1);
        EXPECT_NE(Stored().value(Stored().size() - 1), name) << "not before the form goes";
    };
    make(u"esc"_s);
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_THAT(Stored(), ElementsAre(u"esc"_s));
    make(u"x"_s);
    form->close();
    EXPECT_THAT(Stored(), ElementsAre(u"esc"_s, u"x"_s));
    make(u"end"_s);
    frame.LoadedForms().Unload(*form);
    EXPECT_THAT(Stored(), ElementsAre(u"esc"_s, u"x"_s, u"end"_s));
}

TEST_F(frmProjectTest, TheProgramsEndUnloadsIt) {
    const auto names = FormsToUnload(ToolForms());
    EXPECT_NE(std::find_if(names.begin(), names.end(),
                           [](const char* name) { return qstrcmp(name, "frmProject") == 0; }),
              names.end());
}

// --- selecting
// -----------------------------------------------------------------------------------------------

TEST_F(frmProjectTest, SelectingAProjectShowsItsFiles) {
    Store({u"one"_s, u"two"_s});
    WriteFile(FileOf("one"), Record("/a.htm") + Record("/b.htm") + QByteArray(44, 'x'));
    OpenForm();
    ClickRow(List1(), 0);
    EXPECT_EQ(Enabled(), u"1111111"_s);
    EXPECT_THAT(Texts(u"List2"_s), ElementsAre(Padded("/a.htm"), Padded("/b.htm")));
    EXPECT_EQ(Selected(List2()), -1);
    // A project whose file is not there has none, and a file from now on.
    ClickRow(List1(), 1);
    EXPECT_THAT(Texts(u"List2"_s), IsEmpty());
    EXPECT_EQ(ReadFile(FileOf("two")), QByteArray());
    // A further click reads the file anew.
    WriteFile(FileOf("two"), Record("/c.htm"));
    ClickRow(List1(), 1);
    EXPECT_THAT(Texts(u"List2"_s), ElementsAre(Padded("/c.htm")));
}

TEST_F(frmProjectTest, TheKeysSelectToo) {
    Store({u"one"_s, u"two"_s});
    WriteFile(FileOf("two"), Record("/c.htm"));
    OpenForm();
    List1().setFocus();
    EXPECT_EQ(Selected(List1()), -1);
    QTest::keyClick(&List1(), Qt::Key_Down);
    EXPECT_EQ(Selected(List1()), 0);
    QTest::keyClick(&List1(), Qt::Key_Down);
    EXPECT_EQ(Selected(List1()), 1);
    EXPECT_THAT(Texts(u"List2"_s), ElementsAre(Padded("/c.htm")));
    List2().setFocus();
    QTest::keyClick(&List2(), Qt::Key_Up);
    EXPECT_EQ(Selected(List2()), 0);
}

// --- the buttons
// ---------------------------------------------------------------------------------------------

TEST_F(frmProjectTest, OpenProjectSavesItAndOpensItsFiles) {
    Store({u"one"_s});
    WriteFile(FileOf("one"), Record("/b.htm") + Record("/with blank.htm") + Record("  /a.htm") + "rest");
    OpenForm();
    ClickRow(List1(), 0);
    PressButton(0);
    EXPECT_THAT(frame.opened, ElementsAre(u"/b.htm"_s, u"/with blank.htm"_s, u"/a.htm"_s));
    EXPECT_EQ(ReadFile(FileOf("one")), Record("/b.htm") + Record("/with blank.htm") + Record("  /a.htm"));
    EXPECT_TRUE(Loaded(u"frmProject"_s));
}

TEST_F(frmProjectTest, NewProjectSavesTheOldOneAndSelectsTheNew) {
    Store({u"one"_s});
    OpenForm();
    ClickRow(List1(), 0);
    List2().addItem(u"/unsaved.htm"_s);
    frame.prompts.inputAnswers = {u"new"_s};
    PressButton(1);
    const Asked asked = Box();
    EXPECT_EQ(asked.kind, Asked::Input);
    EXPECT_EQ(asked.text, u"Project Name"_s);
    EXPECT_EQ(asked.title, u"New Project"_s);
    EXPECT_EQ(ReadFile(FileOf("one")), Record("/unsaved.htm"));
    EXPECT_THAT(Texts(u"List1"_s), ElementsAre(u"one"_s, u"new"_s));
    EXPECT_EQ(Selected(List1()), 1);
    EXPECT_THAT(Texts(u"List2"_s), IsEmpty());
    EXPECT_EQ(ReadFile(FileOf("new")), QByteArray());
    frame.prompts.inputAnswers = {QString()};
    PressButton(1);
    EXPECT_EQ(List1().count(), 2);
    EXPECT_EQ(Selected(List1()), 1);
}

TEST_F(frmProjectTest, NoNameIsRefused) {
    OpenForm();
    const QStringList names{u"twice"_s,    u"twice"_s,         u" blank "_s, u"a/b"_s,  u".."_s,
                            u"../above"_s, QString(300, u'x'), u"été€"_s,    u"a:b*?"_s};
    for (const QString& name : names) {
        frame.prompts.inputAnswers = {name};
        PressButton(1);
        EXPECT_EQ(Selected(List1()), List1().count() - 1);
    }
    EXPECT_EQ(Texts(u"List1"_s), names);
    EXPECT_TRUE(frame.prompts.Messages().isEmpty());
    EXPECT_TRUE(QFile::exists(FileOf(" blank ")));
    EXPECT_TRUE(QFile::exists(FileOf("../above")));
    PressButton(6);
    EXPECT_EQ(Stored(), names);
    OpenForm();
    EXPECT_EQ(Texts(u"List1"_s), names);
}

TEST_F(frmProjectTest, SaveProjectWritesTheFiles) {
    Store({u"one"_s});
    OpenForm();
    ClickRow(List1(), 0);
    List2().addItems({u"/a.htm"_s, QString(300, u'y')});
    PressButton(2);
    EXPECT_EQ(ReadFile(FileOf("one")), Record("/a.htm") + QByteArray(256, 'y'));
    // Without its file nothing is written.
    ASSERT_TRUE(QFile::remove(FileOf("one")));
    PressButton(2);
    EXPECT_FALSE(QFile::exists(FileOf("one")));
}

TEST_F(frmProjectTest, DeleteProjectAsksAndSelectsWhatStandsThere) {
    Store({u"one"_s, u"two"_s, u"three"_s});
    WriteFile(FileOf("three"), Record("/c.htm"));
    OpenForm();
    ClickRow(List1(), 1);
    frame.prompts.messageAnswers = {MsgAnswer::No};
    PressButton(3);
    const Asked asked = Box();
    EXPECT_EQ(asked.text, u"Are you sure you want to delete this project?"_s);
    EXPECT_EQ(asked.buttons, MsgButtons::YesNo);
    EXPECT_EQ(asked.icon, MsgIcon::None);
    EXPECT_EQ(asked.title, QString());
    EXPECT_TRUE(QFile::exists(FileOf("two")));
    const auto deleteIt = [&] {
        frame.prompts.messageAnswers = {MsgAnswer::Yes};
        PressButton(3);
    };
    deleteIt();
    EXPECT_FALSE(QFile::exists(FileOf("two")));
    EXPECT_THAT(Texts(u"List1"_s), ElementsAre(u"one"_s, u"three"_s));
    EXPECT_EQ(Selected(List1()), 1);
    EXPECT_THAT(Texts(u"List2"_s), ElementsAre(Padded("/c.htm")));
    EXPECT_FALSE(QFile::exists(FileOf("one"))) << "no other project is looked at meanwhile";
    deleteIt();
    EXPECT_EQ(Selected(List1()), 0);
    EXPECT_THAT(Texts(u"List2"_s), IsEmpty());
    deleteIt();
    EXPECT_EQ(Selected(List1()), -1);
    EXPECT_EQ(List1().count(), 0);
    EXPECT_EQ(Enabled(), u"1111111"_s) << "the buttons stay as they are";
    deleteIt();
    EXPECT_EQ(List1().count(), 0);
    PressButton(6);
    EXPECT_THAT(Stored(), IsEmpty());
}

TEST_F(frmProjectTest, ADoubleClickAsksToDelete) {
    Store({u"one"_s});
    OpenForm();
    ClickRow(List1(), 0);
    frame.prompts.messageAnswers = {MsgAnswer::No};
    QTest::mouseDClick(List1().viewport(), Qt::LeftButton, {},
                       List1().visualItemRect(List1().item(0)).center());
    EXPECT_EQ(Box().text, u"Are you sure you want to delete this project?"_s);
}

TEST_F(frmProjectTest, FilesAreAddedAndSaved) {
    Store({u"one"_s});
    OpenForm();
    ClickRow(List1(), 0);
    frame.prompts.openAnswers = {FileAnswer{u"/site/"_s, {u"b.htm"_s, u"a.htm"_s}}};
    PressButton(4);
    const FileRequest request = Box().request;
    EXPECT_TRUE(request.multiSelect);
    EXPECT_EQ(request.filter,
              u"All Files (*.*)|*.*|HTML Files (*.htm);(*.html);(*.shtml)|*.htm;*.html;*.shtml|"
              "MS Files (*.htx);(*.asp);(*.idc)|*.htx;*.asp;*.idc|"
              "Server Files (*.cgi);(*.pl)|*.cgi;*.pl|Text Files (*.txt)|*.txt|"_s);
    EXPECT_THAT(Texts(u"List2"_s), ElementsAre(u"/site/b.htm"_s, u"/site/a.htm"_s));
    EXPECT_EQ(ReadFile(FileOf("one")), Record("/site/b.htm") + Record("/site/a.htm"));
    // Cancel and a failure save as well.
    List2().addItem(u"/c.htm"_s);
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled()};
    PressButton(4);
    EXPECT_EQ(ReadFile(FileOf("one")).size(), 3 * 256);
    EXPECT_THAT(frame.prompts.Messages(), IsEmpty());
    List2().addItem(u"/d.htm"_s);
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(u"/"_s + QString(25000, u'x'))};
    PressButton(4);
    EXPECT_THAT(frame.prompts.Messages(), ElementsAre(u"Error 12291 occurred"_s));
    EXPECT_EQ(ReadFile(FileOf("one")).size(), 4 * 256);
}

TEST_F(frmProjectTest, FilesAreRemovedAndSaved) {
    Store({u"one"_s});
    WriteFile(FileOf("one"), Record("/a.htm") + Record("/b.htm") + Record("/c.htm"));
    OpenForm();
    ClickRow(List1(), 0);
    PressButton(5);
    EXPECT_EQ(ReadFile(FileOf("one")).size(), 3 * 256) << "with no line selected nothing goes";
    ClickRow(List2(), 1);
    PressButton(5);
    EXPECT_EQ(ReadFile(FileOf("one")), Record("/a.htm") + Record("/c.htm"));
    EXPECT_EQ(Selected(List2()), 1);
    PressButton(5);
    EXPECT_EQ(Selected(List2()), 0);
    PressButton(5);
    EXPECT_EQ(Selected(List2()), -1);
    EXPECT_EQ(ReadFile(FileOf("one")), QByteArray());
}

TEST_F(frmProjectTest, TenThousandFilesAreAProjectToo) {
    Store({u"one"_s});
    OpenForm();
    ClickRow(List1(), 0);
    QStringList names;
    for (int n = 0; n < 10'000; ++n)
        names << u"/site/%1.htm"_s.arg(n);
    List2().addItems(names);
    PressButton(2);
    ClickRow(List1(), 0);
    EXPECT_EQ(List2().count(), 10'000);
    EXPECT_EQ(List2().item(9'999)->text(), Padded("/site/9999.htm"));
}

TEST_F(frmProjectTest, WithoutAProjectNothingIsWritten) {
    Store({u"one"_s});
    OpenForm();
    ClickRow(List1(), 0);
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    PressButton(3);
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(u"/a.htm"_s)};
    PressButton(4);
    EXPECT_THAT(Texts(u"List2"_s), ElementsAre(u"/a.htm"_s));
    PressButton(0);
    EXPECT_THAT(frame.opened, ElementsAre(u"/a.htm"_s));
    EXPECT_THAT(QDir(ProgramFolder()).entryList({u"*.tnw"_s}, QDir::Files | QDir::Hidden), IsEmpty());
}

TEST_F(frmProjectTest, TheBlanksThatFillALineDoNotShow) {
    Store({u"one"_s});
    WriteFile(FileOf("one"), Record("/a.htm"));
    OpenForm();
    ClickRow(List1(), 0);
    EXPECT_LT(List2().sizeHintForColumn(0), 100);
    EXPECT_EQ(Texts(u"List2"_s), QStringList(Padded("/a.htm")));
}

} // namespace
