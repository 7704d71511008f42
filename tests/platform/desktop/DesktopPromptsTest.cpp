// The real dialogs, driven as a person drives them while they are up.
#include "platform/desktop/DesktopPrompts.h"

#include "platform/desktop/BoxWidth.h"
#include "support/FreshUser.h"
#include "support/Text.h"

#include <functional>
#include <gtest/gtest.h>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace {

/// Does something with the dialog of type T as soon as it is up.
template <typename T> class WhenUp : public QObject {
  public:
    explicit WhenUp(std::function<void(T&)> act) {
        connect(&timer_, &QTimer::timeout, this, [this, act] {
            auto* dialog = qobject_cast<T*>(QApplication::activeModalWidget());
            if (!dialog || done_)
                return;
            done_ = true;
            act(*dialog);
            // A check that gave up half way leaves nobody to answer it.
            if (testing::Test::HasFatalFailure())
                dialog->reject();
        });
        timer_.start(0);
    }
    ~WhenUp() override { EXPECT_TRUE(done_) << "no dialog came"; }

  private:
    QTimer timer_;
    bool done_ = false;
};

/// Counts the boxes by which a file dialog refuses a name, and puts them away.
class Refusals : public QObject {
  public:
    Refusals() {
        connect(&timer_, &QTimer::timeout, this, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                ++count;
                box->reject();
            }
        });
        timer_.start(0);
    }
    int count = 0;

  private:
    QTimer timer_;
};

void Write(const QString& name) {
    QFile file(TestFolder() + u'/' + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("x");
}

class DesktopPromptsTest : public testing::Test {
  protected:
    void SetUp() override { FreshUser(); }
    DesktopPrompts prompts;
    QWidget owner;
};

} // namespace

TEST_F(DesktopPromptsTest, MessageBoxShowsIconButtonsAndTitle) {
    struct Row {
        MsgButtons buttons;
        MsgIcon icon;
        QMessageBox::StandardButtons expectedButtons;
        QMessageBox::Icon expectedIcon;
        QMessageBox::StandardButton press;
        MsgAnswer answer;
    };
    using Q = QMessageBox;
    const Row rows[] = {
        {MsgButtons::OK, MsgIcon::Information, Q::Ok, Q::Information, Q::Ok, MsgAnswer::OK},
        {MsgButtons::OKCancel, MsgIcon::Critical, Q::Ok | Q::Cancel, Q::Critical, Q::Cancel,
         MsgAnswer::Cancel},
        {MsgButtons::OKCancel, MsgIcon::None, Q::Ok | Q::Cancel, Q::NoIcon, Q::Ok, MsgAnswer::OK},
        {MsgButtons::YesNo, MsgIcon::Question, Q::Yes | Q::No, Q::Question, Q::No, MsgAnswer::No},
        {MsgButtons::YesOrNoByDefault, MsgIcon::Question, Q::Yes | Q::No, Q::Question, Q::Yes,
         MsgAnswer::Yes},
        {MsgButtons::YesNoCancel, MsgIcon::Exclamation, Q::Yes | Q::No | Q::Cancel, Q::Warning, Q::Yes,
         MsgAnswer::Yes},
    };
    for (const Row& row : rows) {
        WhenUp<QMessageBox> act([&](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), QStringLiteral("The Tarnwick"));
            EXPECT_EQ(box.text(), QStringLiteral("line <b>one</b>\nline two"));
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.standardButtons(), row.expectedButtons);
            EXPECT_EQ(box.icon(), row.expectedIcon);
            QTest::mouseClick(box.button(row.press), Qt::LeftButton);
        });
        EXPECT_EQ(prompts.MsgBox(&owner, QStringLiteral("line <b>one</b>\r\nline two"), row.buttons, row.icon,
                                 QStringLiteral("The Tarnwick")),
                  row.answer);
    }
}

TEST_F(DesktopPromptsTest, BoxWithoutATitleHasAnEmptyOne) {
    WhenUp<QMessageBox> act([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QString());
        box.accept();
    });
    prompts.MsgBox(&owner, QStringLiteral("text"), MsgButtons::OK, MsgIcon::None, QString());
}

TEST_F(DesktopPromptsTest, ABoxWhoseDefaultIsNoTakesEnterAndEscapeForIt) {
    const auto ask = [&] {
        return prompts.MsgBox(&owner, QStringLiteral("?"), MsgButtons::YesOrNoByDefault, MsgIcon::None,
                              QString());
    };
    {
        WhenUp<QMessageBox> act([](QMessageBox& box) { QTest::keyClick(box.focusWidget(), Qt::Key_Return); });
        EXPECT_EQ(ask(), MsgAnswer::No);
    }
    {
        WhenUp<QMessageBox> act([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        EXPECT_EQ(ask(), MsgAnswer::No);
    }
    {
        WhenUp<QMessageBox> act([](QMessageBox& box) { box.close(); });
        EXPECT_EQ(ask(), MsgAnswer::No);
    }
}

TEST_F(DesktopPromptsTest, EscapeCancelsAndEnterTakesTheFirstButton) {
    {
        WhenUp<QMessageBox> act([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        EXPECT_EQ(
            prompts.MsgBox(&owner, QStringLiteral("?"), MsgButtons::YesNoCancel, MsgIcon::None, QString()),
            MsgAnswer::Cancel);
    }
    {
        WhenUp<QMessageBox> act([](QMessageBox& box) { QTest::keyClick(box.focusWidget(), Qt::Key_Return); });
        EXPECT_EQ(prompts.MsgBox(&owner, QStringLiteral("?"), MsgButtons::YesNo, MsgIcon::None, QString()),
                  MsgAnswer::Yes);
    }
    {
        WhenUp<QMessageBox> act([](QMessageBox& box) {
            QTest::keyClick(&box, Qt::Key_Escape);
            EXPECT_TRUE(box.isVisible()) << "there is no way out but the two answers";
            box.close();
            EXPECT_TRUE(box.isVisible());
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        EXPECT_EQ(prompts.MsgBox(&owner, QStringLiteral("?"), MsgButtons::YesNo, MsgIcon::None, QString()),
                  MsgAnswer::Yes);
    }
}

TEST_F(DesktopPromptsTest, InputBoxGivesTheTextOrNothing) {
    {
        WhenUp<QInputDialog> act([](QInputDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Title"));
            EXPECT_EQ(dialog.labelText(), QStringLiteral("How many?"));
            auto* edit = dialog.findChild<QLineEdit*>();
            EXPECT_EQ(edit->text(), QStringLiteral("3"));
            edit->setText(QStringLiteral("a\u2603"));
            dialog.accept();
        });
        EXPECT_EQ(prompts.InputBox(&owner, QStringLiteral("How many?"), QStringLiteral("Title"),
                                   QStringLiteral("3")),
                  QStringLiteral("a\u2603"));
    }
    WhenUp<QInputDialog> act([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QString());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(prompts.InputBox(&owner, QStringLiteral("?"), QString(), QStringLiteral("3")), QString());
}

TEST_F(DesktopPromptsTest, ColourDialogHandsCustomColoursInAndOut) {
    QByteArray custom(64, '\0');
    custom[4] = char(1);
    custom[5] = char(2);
    custom[6] = char(3);
    {
        WhenUp<QColorDialog> act([](QColorDialog& dialog) {
            EXPECT_EQ(QColorDialog::customColor(0), QColor(0, 0, 0));
            EXPECT_EQ(QColorDialog::customColor(1), QColor(1, 2, 3));
            QColorDialog::setCustomColor(15, QColor(250, 251, 252));
            dialog.setCurrentColor(QColor(255, 128, 1));
            dialog.accept();
        });
        EXPECT_EQ(prompts.ChooseColor(&owner, custom), 255 + 128 * 256 + 1 * 65536);
    }
    EXPECT_EQ(custom.size(), 64);
    EXPECT_EQ(custom.mid(60, 4), QByteArray("\xfa\xfb\xfc\0", 4));
    EXPECT_EQ(custom.mid(4, 4), QByteArray("\1\2\3\0", 4));
    const QByteArray before = custom;
    WhenUp<QColorDialog> act([](QColorDialog& dialog) {
        QColorDialog::setCustomColor(2, QColor(9, 9, 9));
        dialog.reject();
    });
    EXPECT_EQ(prompts.ChooseColor(&owner, custom), std::nullopt);
    EXPECT_EQ(custom, before);
}

TEST_F(DesktopPromptsTest, OpenDialogHasFiltersFolderAndPanelAndTellsTheSelection) {
    Write(QStringLiteral("a.gif"));
    Write(QStringLiteral("b.htm"));
    Write(QStringLiteral("README"));
    QWidget home;
    auto* panel = new QLabel(QStringLiteral("preview"), &home);
    QStringList selected;
    FileRequest request;
    request.filter = QStringLiteral("Image Files (*.gif)|*.gif|All files (*.*)|*.*");
    request.filterIndex = 2;
    request.folder = TestFolder();
    request.panel = panel;
    request.selectionChanged = [&](const QString& path) { selected << path; };
    WhenUp<QFileDialog> act([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath(), TestFolder());
        EXPECT_EQ(dialog.nameFilters().size(), 2);
        auto* types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        ASSERT_NE(types, nullptr);
        EXPECT_EQ(types->itemText(0), QStringLiteral("Image Files (*.gif)"));
        EXPECT_EQ(types->currentIndex(), 1);
        EXPECT_EQ(panel->window(), &dialog);
        EXPECT_TRUE(panel->isVisible());
        EXPECT_EQ(panel->size(), QSize(200, 200));
        auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
        ASSERT_NE(list, nullptr);
        EXPECT_GT(panel->mapTo(&dialog, QPoint()).x(), list->mapTo(&dialog, QPoint()).x());
        ASSERT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 3; }));
        // As a click on it does: while the name field has the focus, no program may choose a name.
        list->setFocus();
        const auto found = list->model()->match(list->model()->index(0, 0, list->rootIndex()),
                                                Qt::DisplayRole, QStringLiteral("a.gif"));
        ASSERT_EQ(found.size(), 1);
        list->setCurrentIndex(found.front());
        QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open),
                          Qt::LeftButton);
    });
    const FileAnswer answer = prompts.OpenFile(&owner, request);
    EXPECT_EQ(answer.folder, TestFolder() + u'/');
    EXPECT_EQ(answer.names, QStringList{QStringLiteral("a.gif")});
    EXPECT_EQ(selected, QStringList{TestFolder() + QStringLiteral("/a.gif")});
    EXPECT_EQ(panel->parentWidget(), &home) << "the panel goes back";
    EXPECT_FALSE(panel->isVisible());
}

struct NamesRow {
    const char* typed; ///< into the name field, by the keys
    const char* folder;
    QStringList names;
};

TEST_F(DesktopPromptsTest, FilesAreNamedByTheKeysWhetherTheyExistOrNot) {
    const NamesRow rows[] = {
        {"\"a.htm\" \"b.htm\"", "/", {QStringLiteral("a.htm"), QStringLiteral("b.htm")}},
        {"new.htm", "/", {QStringLiteral("new.htm")}},
        {"\"a.htm\" \"new.htm\"", "/", {QStringLiteral("a.htm"), QStringLiteral("new.htm")}},
        {"\"new.htm\" \"b.htm\"", "/", {QStringLiteral("new.htm"), QStringLiteral("b.htm")}},
        {"sub/new.htm", "/sub/", {QStringLiteral("new.htm")}},
        {"\"sub/new.htm\" \"b.htm\"", "/", {QStringLiteral("sub/new.htm"), QStringLiteral("b.htm")}},
    };
    for (const NamesRow& row : rows) {
        SCOPED_TRACE(row.typed);
        FreshUser();
        Write(QStringLiteral("a.htm"));
        Write(QStringLiteral("b.htm"));
        QDir(TestFolder()).mkdir(QStringLiteral("sub"));
        FileRequest request;
        request.folder = TestFolder();
        request.multiSelect = true;
        const Refusals refusals;
        WhenUp<QFileDialog> act([&](QFileDialog& dialog) {
            auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
            ASSERT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 3; }));
            auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            ASSERT_TRUE(QTest::qWaitFor([&] { return name->hasFocus(); }));
            QTest::keyClicks(name, QString::fromLatin1(row.typed));
            // The dialog takes Enter once it has looked at the folder; one that refuses a name stays up.
            EXPECT_TRUE(QTest::qWaitFor([&] {
                QTest::keyClick(name, Qt::Key_Return);
                return !dialog.isVisible();
            }));
            if (dialog.isVisible())
                dialog.reject();
        });
        const FileAnswer answer = prompts.OpenFile(&owner, request);
        EXPECT_EQ(answer.folder, TestFolder() + QString::fromLatin1(row.folder));
        EXPECT_EQ(answer.names, row.names);
        EXPECT_EQ(refusals.count, 0);
    }
}

TEST_F(DesktopPromptsTest, FolderIsEnteredAndAnEmptyNameIsNone) {
    QDir(TestFolder()).mkdir(QStringLiteral("sub"));
    FileRequest request;
    request.folder = TestFolder();
    request.multiSelect = true;
    WhenUp<QFileDialog> act([&](QFileDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QTest::keyClick(name, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClicks(name, QStringLiteral("sub"));
        QTest::keyClick(name, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(dialog.directory().absolutePath(), TestFolder() + QStringLiteral("/sub"));
        dialog.reject();
    });
    EXPECT_TRUE(prompts.OpenFile(&owner, request).Cancelled());
}

TEST_F(DesktopPromptsTest, SeveralFilesAreSelectedInTheList) {
    Write(QStringLiteral("a.htm"));
    Write(QStringLiteral("b.htm"));
    for (const bool mustExist : {false, true}) {
        FileRequest request;
        request.folder = TestFolder();
        request.multiSelect = true;
        request.mustExist = mustExist;
        WhenUp<QFileDialog> act([&](QFileDialog& dialog) {
            auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
            ASSERT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 2; }));
            list->setFocus();
            list->setCurrentIndex(list->model()->index(0, 0, list->rootIndex()));
            QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
            QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open),
                              Qt::LeftButton);
        });
        EXPECT_EQ(prompts.OpenFile(&owner, request).names,
                  (QStringList{QStringLiteral("a.htm"), QStringLiteral("b.htm")}));
    }
}

TEST_F(DesktopPromptsTest, FileThatMustExistIsNotTypedOtherwise) {
    Write(QStringLiteral("a.htm"));
    for (const bool multiSelect : {false, true}) {
        FileRequest request;
        request.folder = TestFolder();
        request.mustExist = true;
        request.multiSelect = multiSelect;
        const Refusals refusals;
        WhenUp<QFileDialog> act([&](QFileDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            QTest::keyClicks(name, QStringLiteral("new.htm"));
            QTest::keyClick(name, Qt::Key_Return);
            EXPECT_TRUE(dialog.isVisible());
            dialog.reject();
        });
        EXPECT_TRUE(prompts.OpenFile(&owner, request).Cancelled());
    }
}

TEST_F(DesktopPromptsTest, CancelledDialogAnswersNothing) {
    FileRequest request;
    request.folder = TestFolder();
    WhenUp<QFileDialog> act([](QFileDialog& dialog) { dialog.reject(); });
    const FileAnswer answer = prompts.OpenFile(&owner, request);
    EXPECT_TRUE(answer.Cancelled());
    EXPECT_EQ(answer.folder, QString());
}

TEST_F(DesktopPromptsTest, SaveAddsTheExtensionAndAsksNoOverwriteQuestion) {
    Write(QStringLiteral("old.htm"));
    FileRequest request;
    request.folder = TestFolder();
    request.defaultExtension = QStringLiteral("htm");
    WhenUp<QFileDialog> act([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("old"));
        QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save),
                          Qt::LeftButton);
    });
    const FileAnswer answer = prompts.SaveFile(&owner, request);
    EXPECT_EQ(answer.names, QStringList{QStringLiteral("old.htm")});
    EXPECT_EQ(answer.folder, TestFolder() + u'/');
}

TEST_F(DesktopPromptsTest, BoxesAreWideWhereTheyAreToBe) {
    const QString title = QStringLiteral("A title that is much longer than the question");
    bool isWide = false;
    const auto widths = [&] {
        std::pair<int, int> both;
        {
            WhenUp<QMessageBox> act([&](QMessageBox& box) {
                both.first = box.width();
                box.reject();
            });
            prompts.MsgBox(&owner, QStringLiteral("?"), MsgButtons::OKCancel, MsgIcon::None, title);
        }
        WhenUp<QInputDialog> act([&](QInputDialog& dialog) {
            both.second = dialog.findChild<QLineEdit*>()->width();
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
        });
        prompts.InputBox(&owner, QStringLiteral("?"), title, QString());
        return both;
    };
    const auto before = widths();
    prompts.wide = [&] { return isWide; };
    EXPECT_EQ(widths(), before);
    isWide = true;
    EXPECT_GE(widths().first, TitleWidth(title, owner));
    EXPECT_GT(widths().second, before.second);
    EXPECT_LE(widths().second, owner.screen()->availableSize().width());
}

TEST_F(DesktopPromptsTest, FileDialogsOfferTheFoldersOfDocuments) {
    QDir(TestFolder()).mkpath(QStringLiteral("site"));
    const QString site = TestFolder() + QStringLiteral("/site/");
    QStringList offered = {site, TestFolder() + QStringLiteral("/gone/"), site};
    const QUrl url = QUrl::fromLocalFile(TestFolder() + QStringLiteral("/site"));
    const auto sideBar = [&](bool saving) {
        QList<QUrl> urls;
        WhenUp<QFileDialog> act([&](QFileDialog& dialog) {
            urls = dialog.sidebarUrls();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        const FileRequest request{.folder = TestFolder()};
        saving ? prompts.SaveFile(&owner, request) : prompts.OpenFile(&owner, request);
        return urls;
    };
    const QList<QUrl> before = sideBar(false);
    EXPECT_FALSE(before.contains(url));
    prompts.folders = [&] { return offered; };
    EXPECT_EQ(sideBar(false), before + QList({url}));
    EXPECT_EQ(sideBar(true), before + QList({url}));
    offered.clear();
    EXPECT_EQ(sideBar(false), before) << "the toolkit's own list is as it was";
}

TEST_F(DesktopPromptsTest, ColumnsOfFileDialogsAreWideWhereTheyAreToBe) {
    const auto nameWidth = [&] {
        int width = 0;
        WhenUp<QFileDialog> act([&](QFileDialog& dialog) {
            width = dialog.findChild<QTreeView*>(QStringLiteral("treeView"))->columnWidth(0);
            dialog.reject();
        });
        prompts.OpenFile(&owner, {.folder = TestFolder()});
        return width;
    };
    const int before = nameWidth();
    prompts.wide = [] { return true; };
    EXPECT_GT(nameWidth(), before + 5);
    prompts.wide = nullptr;
    EXPECT_EQ(nameWidth(), before);
}
