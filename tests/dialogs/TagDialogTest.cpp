#include "dialogs/TagDialog.h"

#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

class SampleDialog final : public TagDialog {
    Q_OBJECT

  public:
    explicit SampleDialog(Frame& frame) : TagDialog(frame) {
        (new QLineEdit(this))->setObjectName(QStringLiteral("txtField"));
        (new QPushButton(this))->setObjectName(QStringLiteral("cmdOther"));
        auto* cmdOK = new QPushButton(this);
        auto* cmdCancel = new QPushButton(this);
        cmdOK->setObjectName(QStringLiteral("cmdOK"));
        cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
        Wire(*cmdOK, *cmdCancel);
    }

  protected:
    void cmdOK_Click() override {
        Insert(QStringLiteral("<B>"), QStringLiteral("</B>"));
        Unload();
    }
};

namespace {

class TagDialogTest : public testing::Test {
  protected:
    void SetUp() override { Show(); }
    void Show() { dialog = &frame.LoadedForms().Show<SampleDialog>(frame); }
    bool Loaded() { return frame.LoadedForms().Find<SampleDialog>() != nullptr; }
    TestFrame frame;
    SampleDialog* dialog = nullptr;
};

} // namespace

TEST_F(TagDialogTest, StandsOverTheFrameModeless) {
    EXPECT_EQ(dialog->parentWidget(), frame.Window());
    EXPECT_FALSE(dialog->isModal());
    EXPECT_TRUE(dialog->isWindow());
}

TEST_F(TagDialogTest, EnterInAFieldIsOk) {
    frame.SetText(QStringLiteral("word"));
    frame.Box().SetSelStart(0);
    frame.Box().SetSelLength(4);
    QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<B>word</B>"));
    EXPECT_FALSE(Loaded());
}

TEST_F(TagDialogTest, CancelEscAndCloseUnloadAndDoNothingElse) {
    frame.SetText(QStringLiteral("word"));
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("cmdCancel")), Qt::LeftButton);
    EXPECT_FALSE(Loaded());
    Show();
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_FALSE(Loaded());
    Show();
    dialog->close();
    EXPECT_FALSE(Loaded());
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("word"));
}

TEST_F(TagDialogTest, NothingIsKeptBetweenShowings) {
    dialog->findChild<QLineEdit*>()->setText(QStringLiteral("typed"));
    QTest::keyClick(dialog, Qt::Key_Escape);
    Show();
    EXPECT_EQ(dialog->findChild<QLineEdit*>()->text(), QString());
}

TEST_F(TagDialogTest, WithoutADocumentOkJustCloses) {
    frame.CloseDocument();
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    EXPECT_FALSE(Loaded());
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

#include "TagDialogTest.moc"
