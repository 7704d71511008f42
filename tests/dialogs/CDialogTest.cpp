// The file dialog of links, frames and the site tools.
#include "dialogs/CDialog.h"

#include "dialogs/DialogState.h"
#include "dialogs/FileDialogs.h"
#include "support/Files.h"
#include "support/FreshUser.h"
#include "support/NoPlainFile.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace {

QString Here(const char* name) {
    return TestFolder() + u'/' + QString::fromLatin1(name);
}

class CDialogTest : public testing::Test {
  protected:
    TestFrame frame;
    CDialog dialog{frame};
};

} // namespace

TEST_F(CDialogTest, StartsWithNothingSelected) {
    EXPECT_EQ(dialog.SelectedFileCount(), 0);
    EXPECT_EQ(dialog.SelectedFile(1), QString());
    EXPECT_EQ(dialog.FilterIndex(), 1);
    EXPECT_EQ(dialog.MultiSelect(), CDialog::Off);
    EXPECT_EQ(dialog.ErrorCode(), 0);
    EXPECT_EQ(dialog.Filter(), QString());
}

TEST_F(CDialogTest, SingleSelectionIsTheFullPath) {
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(QStringLiteral("C:\\site\\a.htm"))};
    EXPECT_TRUE(dialog.ShowOpen());
    EXPECT_EQ(dialog.SelectedFileCount(), 1);
    EXPECT_EQ(dialog.SelectedFile(1), QStringLiteral("C:\\site\\a.htm"));
    for (const int outside : {0, 2, -1, 1000})
        EXPECT_EQ(dialog.SelectedFile(outside), QString()) << outside;
}

TEST_F(CDialogTest, SeveralAreEachTheFolderAndTheName) {
    const QStringList folders{QStringLiteral("C:\\site"), QStringLiteral("C:\\site\\"),
                              QStringLiteral("/site")};
    const QStringList firsts{QStringLiteral("C:\\site\\a.htm"), QStringLiteral("C:\\site\\a.htm"),
                             QStringLiteral("/site/a.htm")};
    for (int i = 0; i < folders.size(); ++i) {
        frame.prompts.openAnswers = {FileAnswer{
            folders[i], {QStringLiteral("a.htm"), QStringLiteral("b.htm"), QStringLiteral("c c.htm")}}};
        dialog.SetMultiSelect(CDialog::Multiple);
        EXPECT_TRUE(dialog.ShowOpen());
        EXPECT_EQ(dialog.SelectedFileCount(), 3);
        EXPECT_EQ(dialog.SelectedFile(1), firsts[i]);
        EXPECT_TRUE(dialog.SelectedFile(3).endsWith(QStringLiteral("c c.htm")));
        EXPECT_EQ(dialog.SelectedFile(4), QString());
    }
}

TEST_F(CDialogTest, MoreThanFiftyFilesFit) {
    FileAnswer answer{QStringLiteral("/site/"), {}};
    for (int n = 1; n <= 173; ++n)
        answer.names << QStringLiteral("page%1.htm").arg(n);
    frame.prompts.openAnswers = {answer};
    dialog.SetMultiSelect(CDialog::Explorer);
    EXPECT_TRUE(dialog.ShowOpen());
    EXPECT_EQ(dialog.SelectedFileCount(), 173);
    EXPECT_EQ(dialog.SelectedFile(50), QStringLiteral("/site/page50.htm"));
    EXPECT_EQ(dialog.SelectedFile(51), QStringLiteral("/site/page51.htm"));
    EXPECT_EQ(dialog.SelectedFile(173), QStringLiteral("/site/page173.htm"));
}

TEST_F(CDialogTest, BufferHolds25000Characters) {
    dialog.SetMultiSelect(CDialog::Multiple);
    const auto answerOf = [](qsizetype length) {
        // Folder and separator, first name and separator, second name and separator, and one behind all.
        FileAnswer answer{QStringLiteral("/"), {QStringLiteral("a")}};
        answer.names << QString(length - 2 - 2 - 2, u'x');
        return answer;
    };
    frame.prompts.openAnswers = {answerOf(25000), answerOf(25001)};
    EXPECT_TRUE(dialog.ShowOpen());
    EXPECT_EQ(dialog.ErrorCode(), 0);
    EXPECT_FALSE(dialog.ShowOpen());
    EXPECT_EQ(dialog.ErrorCode(), 12291);
    EXPECT_EQ(dialog.SelectedFileCount(), 0);
}

TEST_F(CDialogTest, CancelForgetsTheSelectionAndIsNoError) {
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(QStringLiteral("/a.htm")),
                                 ScriptedPrompts::Cancelled()};
    EXPECT_TRUE(dialog.ShowOpen());
    EXPECT_FALSE(dialog.ShowOpen());
    EXPECT_EQ(dialog.SelectedFileCount(), 0);
    EXPECT_EQ(dialog.SelectedFile(1), QString());
    EXPECT_EQ(dialog.ErrorCode(), 0);
}

TEST_F(CDialogTest, AsksWithItsFilterIndexFolderAndKind) {
    frame.State<DialogState>().LastDir = QStringLiteral("/site");
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled(), ScriptedPrompts::Cancelled()};
    frame.prompts.saveAnswers = {ScriptedPrompts::Cancelled()};
    dialog.SetFilter(FileFilter::Document);
    dialog.SetFilterIndex(2);
    dialog.SetFileMustExist(true);
    dialog.SetMultiSelect(CDialog::Multiple);
    EXPECT_FALSE(dialog.Action(1));
    FileRequest request = frame.prompts.asked.last().request;
    EXPECT_EQ(frame.prompts.asked.last().kind, Asked::Open);
    EXPECT_EQ(request.filter, FileFilter::Document);
    EXPECT_EQ(request.filterIndex, 2);
    EXPECT_EQ(request.folder, QStringLiteral("/site"));
    EXPECT_TRUE(request.multiSelect);
    EXPECT_TRUE(request.mustExist);
    dialog.SetMultiSelect(7);
    EXPECT_FALSE(dialog.ShowOpen());
    EXPECT_FALSE(frame.prompts.asked.last().request.multiSelect);
    EXPECT_FALSE(dialog.Action(2));
    EXPECT_EQ(frame.prompts.asked.last().kind, Asked::Save);
    EXPECT_FALSE(dialog.Action(0));
    EXPECT_EQ(frame.prompts.asked.size(), 3);
}

TEST_F(CDialogTest, ItsOwnerIsTheActiveFormUnlessOneIsGiven) {
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled(), ScriptedPrompts::Cancelled()};
    frame.prompts.saveAnswers = {ScriptedPrompts::Cancelled()};
    QWidget given;
    EXPECT_FALSE(dialog.ShowOpen(&given));
    EXPECT_EQ(frame.prompts.asked.last().owner, &given);
    QWidget active;
    active.show();
    active.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&active));
    EXPECT_FALSE(dialog.ShowOpen());
    EXPECT_EQ(frame.prompts.asked.last().owner, &active);
    EXPECT_FALSE(dialog.ShowSave());
    EXPECT_EQ(frame.prompts.asked.last().owner, &active);
}

TEST_F(CDialogTest, LeavesTheLastFolderToTheFrame) {
    frame.State<DialogState>().LastDir = QStringLiteral("/site");
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(QStringLiteral("/elsewhere/a.htm"))};
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(QStringLiteral("/elsewhere/a.htm"))};
    EXPECT_TRUE(dialog.ShowOpen());
    EXPECT_TRUE(dialog.ShowSave());
    EXPECT_EQ(frame.State<DialogState>().LastDir, QStringLiteral("/site"));
}

TEST_F(CDialogTest, FiltersAreAddedOneByOne) {
    dialog.AddFilter(QStringLiteral("All Files (*.*)"), QStringLiteral("*.*"));
    dialog.AddFilter(QStringLiteral("Text Files (*.txt)"), QStringLiteral("*.txt"));
    EXPECT_EQ(dialog.Filter(), QStringLiteral("All Files (*.*)|*.*|Text Files (*.txt)|*.txt|"));
    dialog.SetFilter(QStringLiteral("A|*.a"));
    dialog.AddFilter(QStringLiteral("B"), QStringLiteral("*.b"));
    EXPECT_EQ(dialog.Filter(), QStringLiteral("A|*.a|B|*.b|"));
}

TEST_F(CDialogTest, DefaultFiltersByTheKindOfTarget) {
    RichTextBox& rich = frame.Box();
    QLabel picture;
    QListWidget list;
    QComboBox combo;
    QLineEdit field;
    QPushButton button;
    QString text;
    const QString richFilters =
        QStringLiteral("All Document files|*.rtf;*.txt|Rich Text Box files|*.rtf|Text Files|*.txt|");
    const QString pictureFilters =
        QStringLiteral("All Image files|*.bmp;*.dib;*.wmf;*.emf;*.ico;*.cur|Bitmaps|*.bmp;*.dib|"
                       "Metafiles|*.wmf;*.emf|Icons|*.ico;*.cur|");
    EXPECT_EQ(DialogTarget(&rich).DefaultFilters(), richFilters);
    EXPECT_EQ(DialogTarget(&picture).DefaultFilters(), pictureFilters);
    EXPECT_EQ(DialogTarget(&list).DefaultFilters(), QStringLiteral("Data Files|*.dat;*.lst|"));
    EXPECT_EQ(DialogTarget(&combo).DefaultFilters(), QStringLiteral("Data Files|*.dat;*.lst|"));
    EXPECT_EQ(DialogTarget(&field).DefaultFilters(), QStringLiteral("Text files |*.txt|"));
    EXPECT_EQ(DialogTarget(&text).DefaultFilters(), QStringLiteral("Text files |*.txt|"));
    EXPECT_EQ(DialogTarget(&button).DefaultFilters(), QString());
    EXPECT_EQ(DialogTarget().DefaultFilters(), QString());
    dialog.AddDefaultFilters(&list);
    EXPECT_EQ(dialog.Filter(), QStringLiteral("Data Files|*.dat;*.lst|"));
}

TEST_F(CDialogTest, OpenLoadsIntoItsTarget) {
    WriteFile(Here("lines.txt"), "one\r\ntwo \x80\r\n");
    const QString text = QStringLiteral("one\r\ntwo \u20ac\r\n");
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(Here("lines.txt"))};
    QString loaded;
    EXPECT_TRUE(dialog.ShowOpen(nullptr, &loaded));
    EXPECT_EQ(loaded, text);
    EXPECT_EQ(frame.prompts.asked.last().request.filter, QStringLiteral("Text files |*.txt|"));

    QListWidget list;
    QComboBox combo;
    QLineEdit field;
    QPlainTextEdit plain;
    QPushButton button(QStringLiteral("as it was"));
    EXPECT_TRUE(dialog.LoadInto(&list));
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(1)->text(), QStringLiteral("two \u20ac"));
    EXPECT_TRUE(dialog.LoadInto(&combo));
    EXPECT_EQ(combo.count(), 2);
    EXPECT_TRUE(dialog.LoadInto(&field));
    EXPECT_EQ(field.text(), text);
    EXPECT_TRUE(dialog.LoadInto(&plain));
    EXPECT_EQ(plain.toPlainText(), QStringLiteral("one\ntwo \u20ac\n"));
    EXPECT_TRUE(dialog.LoadInto(&frame.Box()));
    EXPECT_EQ(frame.Box().Text(), text);
    EXPECT_FALSE(dialog.LoadInto(&button));
    EXPECT_EQ(button.text(), QStringLiteral("as it was"));
}

TEST_F(CDialogTest, ADocumentInUtf8LosesNothing) {
    const QString text = QStringLiteral("\u20ac \u017c \u65e5 \u05e9\r\n");
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(Here("page.txt"))};
    frame.Box().SetHolds(CharacterSet::Unicode);
    frame.Box().SetText(text);
    EXPECT_TRUE(dialog.ShowSave(nullptr, &frame.Box()));
    EXPECT_EQ(ReadFile(Here("page.txt")), text.toUtf8());
    frame.Box().SetText(QString());
    EXPECT_TRUE(dialog.LoadInto(&frame.Box()));
    EXPECT_EQ(frame.Box().Text(), text);
    WriteFile(Here("page.txt"), "caf\xe9 \x80");
    EXPECT_TRUE(dialog.LoadInto(&frame.Box()));
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("caf\u00e9 \u20ac"));

    frame.Box().SetHolds(CharacterSet::CodePage1252);
    WriteFile(Here("page.txt"), "caf\xc3\xa9");
    EXPECT_TRUE(dialog.LoadInto(&frame.Box()));
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("caf\u00c3\u00a9"));
    EXPECT_TRUE(dialog.SaveFrom(&frame.Box()));
    EXPECT_EQ(ReadFile(Here("page.txt")), QByteArray("caf\xc3\xa9"));
}

TEST_F(CDialogTest, OpenLoadsAPictureAndLeavesTheTargetWhereItCannot) {
    QImage(30, 20, QImage::Format_RGB32).save(Here("p.png"));
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(Here("p.png")),
                                 ScriptedPrompts::Picked(Here("none.png"))};
    QLabel picture;
    EXPECT_TRUE(dialog.ShowOpen(nullptr, &picture));
    EXPECT_EQ(picture.pixmap(Qt::ReturnByValue).size(), QSize(30, 20));
    EXPECT_TRUE(dialog.ShowOpen(nullptr, &picture));
    EXPECT_EQ(picture.pixmap(Qt::ReturnByValue).size(), QSize(30, 20));
    QString text = QStringLiteral("old");
    EXPECT_FALSE(dialog.LoadInto(&text));
    EXPECT_EQ(text, QStringLiteral("old"));
}

TEST_F(CDialogTest, WhatIsNoPlainFileIsNotWaitedForAndLeavesTheTarget) {
    FreshUser();
    const QStringList paths = NoPlainFiles();
    ASSERT_FALSE(paths.isEmpty());
    for (const QString& path : paths) {
        SCOPED_TRACE(path.toStdString());
        frame.prompts.openAnswers = {ScriptedPrompts::Picked(path)};
        QLineEdit field(QStringLiteral("old"));
        EXPECT_TRUE(dialog.ShowOpen(nullptr, &field));
        ASSERT_EQ(field.text(), QStringLiteral("old"));
        ASSERT_FALSE(dialog.LoadInto(&field));
        QLabel picture;
        ASSERT_FALSE(dialog.LoadInto(&picture));
        EXPECT_FALSE(dialog.SaveFrom(&field));
    }
}

TEST_F(CDialogTest, SaveWritesItsTarget) {
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(Here("out.txt"))};
    QString text = QStringLiteral("euro \u20ac\r\n");
    EXPECT_TRUE(dialog.ShowSave(nullptr, &text));
    EXPECT_EQ(ReadFile(Here("out.txt")), QByteArray("euro \x80\r\n"));

    QListWidget list;
    list.addItems({QStringLiteral("a"), QStringLiteral("b")});
    EXPECT_TRUE(dialog.SaveFrom(&list));
    EXPECT_EQ(ReadFile(Here("out.txt")), QByteArray("a\r\nb\r\n"));
    QComboBox combo;
    combo.addItem(QStringLiteral("c"));
    EXPECT_TRUE(dialog.SaveFrom(&combo));
    EXPECT_EQ(ReadFile(Here("out.txt")), QByteArray("c\r\n"));
    QPlainTextEdit plain(QStringLiteral("x\ny"));
    EXPECT_TRUE(dialog.SaveFrom(&plain));
    EXPECT_EQ(ReadFile(Here("out.txt")), QByteArray("x\r\ny"));
    QLabel picture;
    EXPECT_FALSE(dialog.SaveFrom(&picture));
    EXPECT_EQ(ReadFile(Here("out.txt")), QByteArray("x\r\ny")) << "a failure leaves the old file";
    QPixmap pixmap(7, 5);
    pixmap.fill(Qt::green);
    picture.setPixmap(pixmap);
    EXPECT_TRUE(dialog.SaveFrom(&picture));
    EXPECT_EQ(QImage(Here("out.txt")).size(), QSize(7, 5));
    EXPECT_FALSE(CDialog(frame).SaveFrom(&text)) << "nothing is selected";
}

TEST_F(CDialogTest, SavesOverAFileWhoseNameLeavesNoRoomForOneBesideIt) {
    const QString path = Here(QByteArray(255, 'n').constData());
    WriteFile(path, "old");
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(path)};
    QString text = QStringLiteral("new");
    EXPECT_TRUE(dialog.ShowSave(nullptr, &text));
    EXPECT_EQ(ReadFile(path), QByteArray("new"));
    EXPECT_TRUE(dialog.SaveFrom(&text));
}

TEST_F(CDialogTest, ComesAgainForAFileThatCannotBeWritten) {
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(Here("no/such/folder/a.txt")),
                                 ScriptedPrompts::Picked(Here("a.txt"))};
    dialog.SetFileMustBeWriteable(true);
    EXPECT_TRUE(dialog.FileMustBeWritable()) << "one switch, two spellings";
    EXPECT_TRUE(dialog.ShowSave());
    EXPECT_EQ(dialog.SelectedFile(1), Here("a.txt"));
    EXPECT_EQ(frame.prompts.asked.size(), 2);
}
