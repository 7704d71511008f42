// Picking a file in a tag dialog.
#include "dialogs/FileDialogs.h"

#include "dialogs/DialogState.h"
#include "dialogs/frmImage.h"
#include "platform/desktop/DesktopPrompts.h"
#include "support/Files.h"
#include "support/FreshUser.h"
#include "support/NoPlainFile.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

QString Here(const char* name) {
    return TestFolder() + u'/' + QString::fromLatin1(name);
}

void Picture(const QString& path, int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::blue);
    ASSERT_TRUE(image.save(path));
}

/// A frame whose prompts are the desktop's own.
class RealPromptsFrame final : public TestFrame {
  public:
    Prompts& Ask() override { return desktop_; }

  private:
    DesktopPrompts desktop_;
};

} // namespace

TEST(FileFilter, TextsToTheLetter) {
    EXPECT_EQ(FileFilter::Picture,
              QStringLiteral(
                  "Image Files (*.jpg);(*.gif);(*.png);(*.bmp)|*.jpg;*.gif;*.png;*.bmp|All files (*.*)|*.*"));
    EXPECT_EQ(FileFilter::Document,
              QStringLiteral("All Files (*.*)|*.*|") +
                  QStringLiteral("HTML Files (*.htm);(*.html);(*.shtml)|*.htm;*.html;*.shtml|") +
                  QStringLiteral("MS Files (*.htx);(*.asp);(*.idc)|*.htx;*.asp;*.idc|") +
                  QStringLiteral("Server Files (*.cgi);(*.pl)|*.cgi;*.pl|") +
                  QStringLiteral("Text Files (*.txt)|*.txt|"));
    EXPECT_EQ(FileFilter::LinkTarget,
              QStringLiteral("All Files (*.*)|*.*|") +
                  QStringLiteral("HTML Files (*.htm);(*.html)|*.htm;*.html|") +
                  QStringLiteral("Graphic Files (*.jpg);(*.gif);(*.bmp)|*.jpg;*.jpeg;*.gif;*.bmp|") +
                  QStringLiteral("Text Files (*.txt)|*.txt|"));
    EXPECT_EQ(FileFilter::AnyFile, QStringLiteral("All Files (*.*)|*.*|"));
}

TEST(PickFileToSave, AsksAboutAFileWhoseLengthOfSixteenBitsIsTwoOrMore) {
    TestFrame frame;
    frame.State<DialogState>().LastDir = QStringLiteral("/site");
    const std::pair<int, bool> rows[] = {{-1, false},   {0, false},     {1, false},    {2, true},
                                         {32767, true}, {32768, false}, {65538, false}};
    for (const auto& [size, asks] : rows) {
        QFile::remove(Here("a.txt"));
        if (size >= 0)
            WriteFile(Here("a.txt"), QByteArray(size, 'x'));
        frame.prompts.asked.clear();
        frame.prompts.saveAnswers = {ScriptedPrompts::Picked(Here("a.txt"))};
        if (asks)
            frame.prompts.messageAnswers = {MsgAnswer::Yes};
        EXPECT_EQ(PickFileToSave(frame, frame.Window(), {.fileName = QStringLiteral("n")}).Path(),
                  Here("a.txt"));
        ASSERT_EQ(frame.prompts.asked.size(), asks ? 2 : 1) << size;
        EXPECT_EQ(frame.prompts.asked.first().request.folder, QStringLiteral("/site"));
        EXPECT_EQ(frame.prompts.asked.first().request.fileName, QStringLiteral("n"));
    }
}

TEST(PickFileToSave, ARefusalAsksForTheFileAnew) {
    TestFrame frame;
    WriteFile(Here("a.txt"), "old");
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(Here("a.txt")), ScriptedPrompts::Cancelled()};
    frame.prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_TRUE(PickFileToSave(frame, frame.Window(), {}).Cancelled());
    ASSERT_EQ(frame.prompts.asked.size(), 3);
    EXPECT_EQ(frame.prompts.asked[1].text, QStringLiteral("Overwrite File?"));
    EXPECT_EQ(frame.prompts.asked[1].title, QStringLiteral("Overwrite"));
    EXPECT_EQ(frame.prompts.asked[1].owner, frame.Window());
}

TEST(PickFile, OpensInLastDirWithTheFilterGiven) {
    TestFrame frame;
    auto& state = frame.State<DialogState>();
    state.LastDir = QStringLiteral("/site");
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled(),
                                 ScriptedPrompts::Picked(QStringLiteral("/img/a.gif")),
                                 FileAnswer{QStringLiteral("/img/"), {QString()}}};
    const FileRequest request{.filter = FileFilter::LinkTarget, .filterIndex = 2};
    EXPECT_EQ(PickFile(frame, nullptr, request), std::nullopt);
    EXPECT_EQ(PickFile(frame, nullptr, request), QStringLiteral("/img/a.gif"));
    EXPECT_EQ(PickFile(frame, nullptr, request), std::nullopt) << "an empty first name is a cancel";
    ASSERT_EQ(frame.prompts.asked.size(), 3);
    for (const Asked& asked : frame.prompts.asked) {
        EXPECT_EQ(asked.kind, Asked::Open);
        EXPECT_EQ(asked.request.folder, QStringLiteral("/site"));
        EXPECT_EQ(asked.request.filter, FileFilter::LinkTarget);
        EXPECT_EQ(asked.request.filterIndex, 2);
        EXPECT_EQ(asked.request.panel, nullptr);
    }
    EXPECT_EQ(state.LastDir, QStringLiteral("/site")) << "tag dialogs never change it";
}

TEST(PictureBrowse, PreviewsTheSelectionAndUnloadsTheForm) {
    TestFrame frame;
    Picture(Here("wide.png"), 468, 60);
    Picture(Here("tall.png"), 100, 400);
    frame.prompts.whileOpen = [&](const FileRequest& request) {
        auto* form = frame.LoadedForms().Find<frmImage>();
        ASSERT_NE(form, nullptr);
        EXPECT_EQ(request.panel, form->Frame1());
        request.selectionChanged(Here("wide.png"));
        EXPECT_EQ(form->PictureSize(), QSize(468, 60));
    };
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(Here("tall.png")), ScriptedPrompts::Cancelled()};
    {
        PictureBrowse browse(frame);
        EXPECT_EQ(browse.Show(nullptr, {}), Here("tall.png"));
        EXPECT_EQ(browse.PictureSize(), QSize(100, 400)) << "a name that was typed was never selected";
    }
    EXPECT_EQ(frame.LoadedForms().Find<frmImage>(), nullptr);
    {
        PictureBrowse browse(frame);
        EXPECT_EQ(browse.Show(nullptr, {}), std::nullopt);
    }
    EXPECT_EQ(frame.LoadedForms().Find<frmImage>(), nullptr);
}

TEST(PictureBrowse, WhatIsNoPlainFileIsNotWaitedForAndLeavesThePreview) {
    FreshUser();
    TestFrame frame;
    const QStringList paths = NoPlainFiles();
    ASSERT_FALSE(paths.isEmpty());
    Picture(Here("tall.png"), 100, 400);
    PictureBrowse browse(frame);
    ShowImagePreview(frame, Here("tall.png"));
    for (const QString& path : paths) {
        ShowImagePreview(frame, path);
        EXPECT_EQ(browse.PictureSize(), QSize(100, 400)) << path.toStdString();
    }
}

TEST(PictureBrowse, ShowsThePictureInTheRealFileDialog) {
    RealPromptsFrame frame;
    Picture(Here("wide.png"), 468, 60);
    frame.State<DialogState>().LastDir = TestFolder();
    bool seen = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog || seen)
            return;
        seen = true;
        auto* list = dialog->findChild<QListView*>(QStringLiteral("listView"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 1; }));
        list->setCurrentIndex(list->model()->index(0, 0, list->rootIndex()));
        auto* form = frame.LoadedForms().Find<frmImage>();
        ASSERT_NE(form, nullptr);
        EXPECT_EQ(form->PictureSize(), QSize(468, 60));
        EXPECT_EQ(form->Frame1()->window(), dialog);
        EXPECT_TRUE(form->Frame1()->isVisible());
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open),
                          Qt::LeftButton);
    });
    timer.start(0);
    PictureBrowse browse(frame);
    EXPECT_EQ(browse.Show(frame.Window(), {.filter = FileFilter::Picture}), Here("wide.png"));
    EXPECT_TRUE(seen);
    EXPECT_EQ(browse.PictureSize(), QSize(468, 60));
}
