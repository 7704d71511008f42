// The upload window, used as a person does.
#include "tools/upload/frmFTP.h"

#include "platform/store/Settings.h"
#include "support/CommandTest.h"
#include "support/Files.h"
#include "support/FreshUser.h"
#include "tools/projects/ProjectFile.h"
#include "tools/ToolForms.h"
#include "tools/upload/UploadClient.h"

#include <gtest/gtest.h>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <set>

namespace {

class frmFTPTest : public testing::Test {
  protected:
    void SetUp() override { frame.active->caption = Latin("/site/index.htm"); }

    QWidget& Show() {
        form = &frame.LoadedForms().Show<frmFTP>(frame);
        form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form));
        return *form;
    }
    void Close() {
        QTest::keyClick(form, Qt::Key_Escape);
        EXPECT_FALSE(frame.LoadedForms().Find<frmFTP>());
    }
    template <typename T> T& Control(const char* name) {
        T* control = form->findChild<T*>(QString::fromLatin1(name));
        if (!control)
            qFatal("no control %s", name);
        return *control;
    }
    QComboBox& Combo(const char* name) { return Control<QComboBox>(name); }
    void Press(const char* name) { Control<QAbstractButton>(name).click(); }
    QStringList Items(const char* name) {
        QStringList items;
        for (int i = 0; i < Combo(name).count(); ++i)
            items << Combo(name).itemText(i);
        return items;
    }
    QStringList Files() {
        QStringList lines;
        const auto& list = Control<QListWidget>("lstFiles");
        for (int i = 0; i < list.count(); ++i)
            lines << list.item(i)->text();
        return lines;
    }
    void Store(const SettingsKey& key, const char* text) { frame.Store().Write(key, Latin(text)); }
    QString Stored(const SettingsKey& key) { return frame.Store().Read(key); }
    void Choose(int project) {
        Combo("Combo1").setCurrentIndex(project);
        Q_EMIT Combo("Combo1").activated(project);
    }
    /// Types into a box and leaves it for the list of files.
    void TypeAndLeave(const char* name, const char* text) {
        Combo(name).setFocus();
        Combo(name).lineEdit()->selectAll();
        QTest::keyClick(form->focusWidget(), Qt::Key_Delete);
        QTest::keyClicks(form->focusWidget(), Latin(text));
        Control<QWidget>("lstFiles").setFocus();
    }

    TestFrame frame;
    QWidget* form = nullptr;
};

TEST_F(frmFTPTest, ComesUpAsItIsNamed) {
    Show();
    EXPECT_EQ(form->windowTitle(), Latin("FTP File Upload"));
    EXPECT_FALSE(form->isModal());
    EXPECT_EQ(form->parentWidget(), frame.Window());
    const std::pair<const char*, const char*> labels[] = {
        {"txtServer", "FTP Server:"}, {"txtDir", "Remote Directory:"},    {"txtUserName", "Username:"},
        {"txtPassword", "Password:"}, {"lstFiles", "File(s) to upload:"}, {"Combo1", "Projects:"}};
    for (const auto& [name, text] : labels) {
        QString label;
        for (const QLabel* one : form->findChildren<QLabel*>())
            if (one->buddy() == &Control<QWidget>(name))
                label = one->text().remove(u'&');
        EXPECT_EQ(label, Latin(text));
    }
    const std::pair<const char*, const char*> captions[] = {
        {"chkPass", "Save Password"}, {"optBinary", "Binary"}, {"optASCII", "ASCII"}, {"cmdGetFle", ""},
        {"cmdSend", "Upload"},        {"cmdCancel", "Exit"}};
    for (const auto& [name, text] : captions)
        EXPECT_EQ(Control<QAbstractButton>(name).text().remove(u'&'), Latin(text));
    const std::pair<const char*, const char*> tips[] = {{"Combo1", "Add files from a project"},
                                                        {"cmdGetFle", "Add Files"},
                                                        {"cmdSend", "FTP Files to Server"},
                                                        {"cmdCancel", "Exit"}};
    for (const auto& [name, text] : tips)
        EXPECT_EQ(Control<QWidget>(name).toolTip(), Latin(text));
    EXPECT_TRUE(Control<QRadioButton>("optBinary").isChecked());
    EXPECT_EQ(Control<QLineEdit>("txtPassword").echoMode(), QLineEdit::Password);
    EXPECT_EQ(Combo("Combo1").currentIndex(), -1);
    EXPECT_EQ(Items("Combo1"), QStringList{QString()});
    EXPECT_EQ(Files(), QStringList{Latin("/site/index.htm")});
    for (const char* name : {"txtServer", "txtDir", "txtUserName"}) {
        EXPECT_EQ(Combo(name).count(), 0);
        EXPECT_EQ(Combo(name).currentText(), QString());
    }
}

TEST_F(frmFTPTest, ANewDocumentIsAnEmptyLineAndNoneIsNoLine) {
    frame.active->caption.clear();
    Show();
    EXPECT_EQ(Files(), QStringList{QString()});
    Close();
    frame.CloseDocument();
    Show();
    EXPECT_EQ(Files(), QStringList());
}

TEST_F(frmFTPTest, TheRecentTextsComeBackInTheirOrder) {
    Store(Keys::Server(0), "one");
    Store(Keys::Server(1), "two");
    Store(Keys::Dir(0), "www");
    Store(Keys::UserName(0), "jo");
    Show();
    EXPECT_EQ(Items("txtServer"), (QStringList{Latin("one"), Latin("two")}));
    EXPECT_EQ(Combo("txtServer").currentText(), Latin("one"));
    EXPECT_EQ(Combo("txtDir").currentText(), Latin("www"));
    EXPECT_EQ(Combo("txtUserName").currentText(), Latin("jo"));
}

TEST_F(frmFTPTest, ATextBehindAGapHasNoPlace) {
    Store(Keys::Server(0), "one");
    Store(Keys::Server(2), "three");
    Show();
    EXPECT_EQ(Items("txtServer"), QStringList{Latin("one")});
}

TEST_F(frmFTPTest, TheKeyOfAFolderHasItsOddTail) {
    Show();
    TypeAndLeave("txtDir", "www");
    Close();
    const SettingsKey key{Keys::Tarnwick, Latin("FTP"), Latin("Dir(0, 0 Or 2 Or 4 Or 8 Or 16)"), QString()};
    EXPECT_EQ(frame.Store().Read(key), Latin("www"));
}

TEST_F(frmFTPTest, WhatIsLeftBecomesTheFirstEntry) {
    Show();
    for (const char* name : {"txtServer", "txtDir", "txtUserName"}) {
        for (const char* text : {"a", "b", "a", "a"})
            TypeAndLeave(name, text);
        // Listed already or not.
        EXPECT_EQ(Items(name), (QStringList{Latin("a"), Latin("a"), Latin("b"), Latin("a")})) << name;
        EXPECT_EQ(Combo(name).currentText(), Latin("a"));
        TypeAndLeave(name, "");
        EXPECT_EQ(Items(name).first(), QString());
        EXPECT_EQ(Combo(name).currentText(), QString());
        EXPECT_EQ(Combo(name).count(), 5);
    }
}

TEST_F(frmFTPTest, TheTabKeyLeavesABoxTooAndAnEmptyTextCounts) {
    Show();
    QTest::keyClicks(form->focusWidget(), Latin("host"));
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(Items("txtServer"), QStringList{Latin("host")});
    EXPECT_EQ(Items("txtDir"), QStringList{QString()});
    EXPECT_EQ(Items("txtUserName"), QStringList());
}

TEST_F(frmFTPTest, OnlyAnotherControlMeansThatABoxIsLeft) {
    Show();
    Combo("txtServer").setFocus();
    Combo("txtServer").setEditText(Latin("x"));
    Combo("txtServer").showPopup();
    Combo("txtServer").hidePopup();
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
    EXPECT_EQ(Combo("txtServer").count(), 0);
    Control<QWidget>("lstFiles").setFocus();
    EXPECT_EQ(Items("txtServer"), QStringList{Latin("x")});
}

TEST_F(frmFTPTest, TheFirstFiveEntriesAreStoredAndEmptyOnesOverwriteNothing) {
    Store(Keys::Server(1), "old one");
    Store(Keys::Server(4), "old four");
    Show();
    for (const char* text : {"f", "e", "d", "c", "", "a"})
        TypeAndLeave("txtServer", text);
    Close();
    EXPECT_EQ(Stored(Keys::Server(0)), Latin("a"));
    EXPECT_EQ(Stored(Keys::Server(1)), Latin("old one"));
    EXPECT_EQ(Stored(Keys::Server(2)), Latin("c"));
    EXPECT_EQ(Stored(Keys::Server(3)), Latin("d"));
    EXPECT_EQ(Stored(Keys::Server(4)), Latin("e"));
    EXPECT_EQ(Stored(Keys::Server(5)), QString());
}

TEST_F(frmFTPTest, APasswordIsStoredWhileItsBoxIsTicked) {
    Show();
    EXPECT_FALSE(Control<QCheckBox>("chkPass").isChecked());
    Control<QLineEdit>("txtPassword")
        .setText(Latin(" s\xE9"
                       "cret "));
    Close();
    EXPECT_EQ(Stored(Keys::chkPass), Latin("0"));
    EXPECT_EQ(Stored(Keys::Password), QString());
    Show();
    EXPECT_EQ(Control<QLineEdit>("txtPassword").text(), QString());
    Control<QLineEdit>("txtPassword")
        .setText(Latin(" s\xE9"
                       "cret "));
    Press("chkPass");
    Close();
    EXPECT_EQ(Stored(Keys::chkPass), Latin("1"));
    EXPECT_EQ(Stored(Keys::Password), Latin(" s\xE9"
                                            "cret "));
    Show();
    EXPECT_TRUE(Control<QCheckBox>("chkPass").isChecked());
    EXPECT_EQ(Control<QLineEdit>("txtPassword").text(), Latin(" s\xE9"
                                                              "cret "));
}

TEST_F(frmFTPTest, UntickingKeepsTheStoredPasswordAndHidesIt) {
    Store(Keys::chkPass, "1");
    Store(Keys::Password, "old");
    Show();
    Press("chkPass");
    Control<QLineEdit>("txtPassword").setText(Latin("new"));
    Close();
    EXPECT_EQ(Stored(Keys::Password), Latin("old"));
    Show();
    EXPECT_EQ(Control<QLineEdit>("txtPassword").text(), QString());
}

TEST_F(frmFTPTest, AnyEndOfTheFormStoresItsSettings) {
    Show();
    TypeAndLeave("txtServer", "host");
    // As the program's end does it.
    frame.LoadedForms().Unload<frmFTP>();
    EXPECT_EQ(Stored(Keys::Server(0)), Latin("host"));
}

TEST_F(frmFTPTest, AProjectTakesThePlaceOfTheList) {
    Store(Keys::ProjFile(0), "first");
    Store(Keys::ProjFile(1), "second");
    WriteFile(ProjectPath(Latin("second")));
    ASSERT_TRUE(SaveProjectFile(ProjectPath(Latin("second")), {Latin("/a.htm"), Latin("/b.htm")}));
    Show();
    EXPECT_EQ(Items("Combo1"), (QStringList{Latin("first"), Latin("second"), QString()}));
    EXPECT_EQ(Combo("Combo1").currentIndex(), -1);
    Choose(1);
    EXPECT_EQ(Files(), (QStringList{Latin("/a.htm").leftJustified(256), Latin("/b.htm").leftJustified(256)}));
    // A project whose file is not there has it from then on.
    Choose(0);
    EXPECT_EQ(Files(), QStringList());
    EXPECT_EQ(ReadFile(ProjectPath(Latin("first"))), QByteArray());
    Choose(1);
    Choose(2);
    EXPECT_EQ(Files(), QStringList());
}

TEST_F(frmFTPTest, AHundredProjectsLeaveNoEmptyLine) {
    for (int n = 0; n < 100; ++n)
        Store(Keys::ProjFile(n), "p");
    Show();
    EXPECT_EQ(Combo("Combo1").count(), 100);
    EXPECT_EQ(Items("Combo1").last(), Latin("p"));
}

TEST_F(frmFTPTest, PickedFilesGoToTheListsEnd) {
    Show();
    frame.prompts.openAnswers = {FileAnswer{Latin("/site"), {Latin("a.htm"), Latin("b.htm")}},
                                 ScriptedPrompts::Cancelled()};
    Press("cmdGetFle");
    EXPECT_EQ(Files(), (QStringList{Latin("/site/index.htm"), Latin("/site/a.htm"), Latin("/site/b.htm")}));
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_TRUE(frame.prompts.asked[0].request.multiSelect);
    EXPECT_EQ(frame.prompts.asked[0].request.filter, QString());
    Press("cmdGetFle");
    EXPECT_EQ(Files().size(), 3);
    EXPECT_EQ(frame.prompts.asked.size(), 2);
}

TEST_F(frmFTPTest, APickThatFailsIsTold) {
    Show();
    frame.prompts.openAnswers = {
        FileAnswer{Latin("/site"), QStringList(2000, Latin("a long name of a file"))}};
    Press("cmdGetFle");
    EXPECT_EQ(Files().size(), 1);
    ASSERT_EQ(frame.prompts.asked.size(), 2);
    EXPECT_EQ(frame.prompts.asked[1].text, Latin("Error 12291 occurred"));
    EXPECT_EQ(frame.prompts.asked[1].icon, MsgIcon::None);
}

TEST_F(frmFTPTest, ADoubleClickOrTheDeleteKeyTakesALineOut) {
    Store(Keys::ProjFile(0), "p");
    WriteFile(ProjectPath(Latin("p")));
    ASSERT_TRUE(SaveProjectFile(ProjectPath(Latin("p")), {Latin("/a"), Latin("/b"), Latin("/c")}));
    Show();
    Choose(0);
    auto& list = Control<QListWidget>("lstFiles");
    const QPoint place = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(Files(), (QStringList{Latin("/a").leftJustified(256), Latin("/c").leftJustified(256)}));
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(Files(), QStringList{Latin("/c").leftJustified(256)});
}

// There is no client beside the tests: what fails, and just that, is told once, and the form stays.
TEST_F(frmFTPTest, UploadWritesTheScriptAndTellsThatTheClientIsMissing) {
    WriteFile(TestFolder() + Latin("/a.htm"));
    frame.active->caption = TestFolder() + Latin("/a.htm");
    Show();
    Combo("txtServer").setEditText(Latin("host"));
    Combo("txtUserName").setEditText(Latin("jo"));
    Combo("txtDir").setEditText(Latin("www"));
    Control<QLineEdit>("txtPassword").setText(Latin("secret"));
    Press("optASCII");
    Press("cmdSend");
    EXPECT_EQ(ReadFile(UploadScriptPath()), "jo\r\nsecret\r\ncd www\r\nhash\r\nascii\r\nput \"" +
                                                TestFolder().toUtf8() + "/a.htm\" a.htm\r\nls\r\n");
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.prompts.asked[0].text, Latin("Error - 53"));
    EXPECT_EQ(frame.prompts.asked[0].title, Latin("The Tarnwick"));
    EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Critical);
    EXPECT_EQ(frame.prompts.asked[0].buttons, MsgButtons::OK);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(frmFTPTest, EveryControlIsNamedForAScreenReaderAndMnemonicsAreUnique) {
    Show();
    std::set<QChar> seen;
    for (QWidget* control : form->findChildren<QWidget*>()) {
        if (control->focusPolicy() != Qt::NoFocus && control->window() == form) {
            EXPECT_FALSE(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
                << control->objectName().toStdString();
        }
        const QString text = control->property("text").toString();
        const qsizetype at = text.indexOf(u'&');
        if (at >= 0) {
            EXPECT_TRUE(seen.insert(text[at + 1].toLower()).second) << text.toStdString();
        }
    }
    EXPECT_EQ(seen.size(), 11u);
}

TEST_F(frmFTPTest, TheKeysReachEverythingInItsOrder) {
    Show();
    const QStringList order{Latin("txtServer"),   Latin("txtDir"),   Latin("txtUserName"),
                            Latin("txtPassword"), Latin("chkPass"),  Latin("optBinary"),
                            Latin("Combo1"),      Latin("lstFiles"), Latin("cmdGetFle"),
                            Latin("cmdSend"),     Latin("cmdCancel")};
    QStringList reached;
    for (qsizetype i = 0; i < order.size(); ++i) {
        reached << form->focusWidget()->objectName();
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(reached, order);
    EXPECT_EQ(form->focusWidget()->objectName(), order.first());
    EXPECT_TRUE(Control<QPushButton>("cmdSend").isDefault());
}

TEST(ToolForms, TheUploadWindowHasItsTurnAtTheEnd) {
    const auto forms = ToolForms();
    const auto row =
        std::ranges::find_if(forms, [](const FormRow& one) { return QLatin1String(one.name) == u"frmFTP"; });
    ASSERT_NE(row, forms.end());
    EXPECT_EQ(row->reach.unload, 14);
    EXPECT_TRUE(row->reach.show);
}

} // namespace
