// The picture window: a file list beside the preview.
#include "dialogs/frmImage.h"

#include "support/Files.h"
#include "support/Site.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

namespace {

class frmImageTest : public testing::Test {
  protected:
    frmImageTest() { form.show(); }
    QListWidget& List() { return *form.findChild<QListWidget*>(QStringLiteral("lstFiles")); }
    QPushButton& Ok() { return *form.findChild<QPushButton*>(QStringLiteral("cmdOK")); }
    QString Folder() { return form.findChild<QLineEdit*>(QStringLiteral("txtFolder"))->text(); }
    QStringList Names() {
        QStringList names;
        for (int row = 0; row < List().count(); ++row)
            names << List().item(row)->text();
        return names;
    }
    QString Current() { return List().currentItem() ? List().currentItem()->text() : QString(); }
    void GoTo(const char* name) {
        const auto items = List().findItems(QString::fromLatin1(name), Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1) << name;
        List().setCurrentItem(items.first());
    }
    static QStringList Split(const char* names) { return QString::fromLatin1(names).split(u' '); }

    TestFrame frame;
    const Site site;
    frmImage& form = frame.LoadedForms().Load<frmImage>(frame);
};

TEST_F(frmImageTest, LooksAsItShould) {
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Select Image"));
    form.LookIn(site.Path(QStringLiteral("img")));
    EXPECT_EQ(Names(), Split(".. banner.png low.png"));
    EXPECT_EQ(Folder(), site.Path(QStringLiteral("img")));
    EXPECT_FALSE(Ok().isEnabled());
    EXPECT_EQ(form.Tag, QString());
}

TEST_F(frmImageTest, ShowsThePictureThatIsGoneTo) {
    form.LookIn(site.Path(QStringLiteral("img")));
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(form.PictureSize(), QSize(468, 60));
    EXPECT_TRUE(Ok().isEnabled());
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(form.PictureSize(), QSize(10, 20));
    QTest::keyClick(&List(), Qt::Key_Home);
    EXPECT_FALSE(Ok().isEnabled());
}

TEST_F(frmImageTest, AFileThatIsNoPictureLeavesThePreview) {
    WriteFile(site.Path(QStringLiteral("img/broken.gif")), "no picture");
    form.LookIn(site.Path(QStringLiteral("img")));
    GoTo("banner.png");
    GoTo("broken.gif");
    EXPECT_EQ(form.PictureSize(), QSize(468, 60));
    EXPECT_TRUE(Ok().isEnabled());
}

TEST_F(frmImageTest, EnterGoesIntoAFolderAndOutToWhereItCameFrom) {
    form.LookIn(site.Path(QString()));
    EXPECT_EQ(Names(), Split(".. img pages"));
    GoTo("pages");
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(Folder(), site.Path(QStringLiteral("pages")));
    EXPECT_EQ(Names(), Split(".."));
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(&List(), Qt::Key_Enter);
    EXPECT_EQ(Names(), Split(".. img pages"));
    EXPECT_EQ(Current(), QStringLiteral("pages"));
    EXPECT_EQ(form.Tag, QString());
}

TEST_F(frmImageTest, ADoubleClickPicksAFile) {
    form.LookIn(site.Path(QStringLiteral("img")));
    const QPoint at = List().visualItemRect(List().item(2)).center();
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, at);
    EXPECT_TRUE(form.isVisible());
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, at);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Tag, site.Path(QStringLiteral("img/low.png")));
}

TEST_F(frmImageTest, EnterPicksAFileAndEscNone) {
    form.LookIn(site.Path(QStringLiteral("img")));
    GoTo("low.png");
    QTest::keyClick(&List(), Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Tag, QString());
    form.show();
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Tag, site.Path(QStringLiteral("img/low.png")));
}

TEST_F(frmImageTest, OkHandsThePathBack) {
    form.LookIn(site.Path(QStringLiteral("img")));
    GoTo("banner.png");
    QTest::mouseClick(&Ok(), Qt::LeftButton);
    EXPECT_EQ(form.Tag, site.Path(QStringLiteral("img/banner.png")));
    EXPECT_EQ(form.result(), QDialog::Accepted);
}

TEST_F(frmImageTest, WithoutAFolderItLooksInTheUsersOwn) {
    for (const QString& folder : {QString(), site.Path(QStringLiteral("none"))}) {
        form.LookIn(folder);
        EXPECT_EQ(Folder(), QDir::homePath());
    }
}

} // namespace
