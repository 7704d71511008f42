// Pictures of every tag dialog for the eye: set TARNWICK_PICTURES to a folder and run FormPictures.*.
#include "builders/DialogTest.h"
#include "builders/frames/frmFrame.h"
#include "builders/lists/frmBulletList.h"
#include "builders/tables/frmTable.h"
#include "builders/tables/Grid.h"
#include "dialogs/DialogState.h"
#include "dialogs/frmImage.h"
#include "support/DarkPalette.h"
#include "support/Site.h"
#include <QDir>
#include <QTabBar>
#include <QTimer>

namespace {

class FormPictures : public DialogTest {
  protected:
    void ShowTable(const Site& site);
    void Take(const QString& folder, const QString& name, const QString& page = QString()) {
        form = frame.LoadedForms().Find(name);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form));
        EXPECT_TRUE(form->grab().save(QDir(folder).filePath(name + page + QStringLiteral(".png"))));
    }
    /// A form in each of its states that look different.
    void TakeForm(const QString& folder) {
        const QString name = QStringLiteral("frmForm");
        form = frame.LoadedForms().Find(name);
        for (const QString& item : {QStringLiteral("Small"), QStringLiteral("Large")}) {
            Fill(QStringLiteral("txtList"), item);
            Control<QAbstractButton>(QStringLiteral("cmdAddItem")).click();
        }
        auto& tabs = Control<QTabBar>(QStringLiteral("TabStrip"));
        for (int i = 0; i < tabs.count(); ++i) {
            tabs.setCurrentIndex(i);
            Take(folder, name, tabs.tabText(i));
        }
    }
    void TakeFrames(const QString& folder) {
        const QString name = QStringLiteral("VisFrame");
        form = frame.LoadedForms().Find(name);
        for (const QString& count : {QStringLiteral("15"), QStringLiteral("3")}) {
            frame.prompts.inputAnswers = {count};
            Press(count == QStringLiteral("3") ? QStringLiteral("cmdAcross") : QStringLiteral("cmdUpDown"));
            QMetaObject::invokeMethod(form->findChild<QTimer*>(QStringLiteral("Timer1")), "timeout");
            Take(folder, name, count);
            QTest::keyClick(form, Qt::Key_Escape);
            frame.Commands().Run(QStringLiteral("tb_frame"));
            form = frame.LoadedForms().Find(name);
        }
        frame.LoadedForms().Show<frmFrame>(frame);
        Take(folder, QStringLiteral("frmFrame"));
    }
};

/// A table with some cells, one of them open and about to get a picture.
void FormPictures::ShowTable(const Site& site) {
    form = frame.LoadedForms().Find(QStringLiteral("frmTable"));
    Fill(QStringLiteral("txtRows"), QStringLiteral("5"));
    Fill(QStringLiteral("txtCols"), QStringLiteral("4"));
    auto& table = *frame.LoadedForms().Find<frmTable>();
    auto& Grid1 = *table.findChild<Grid*>();
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 4; ++col) {
            Grid1.SetRow(row);
            Grid1.SetCol(col);
            table.SetCell(QString(), QStringLiteral("Cell %1").arg(row * 4 + col));
        }
    }
    frame.State<DialogState>().LastDir = site.Path(QStringLiteral("img"));
    QTest::keyClick(&Grid1, Qt::Key_Return);
    form = frame.LoadedForms().Find(QStringLiteral("frmGridInput"));
    Press(QStringLiteral("cmdGetFile"));
    frame.LoadedForms().Find<frmImage>()->findChild<QListWidget*>()->setCurrentRow(1);
}

TEST_F(FormPictures, OfEveryDialog) {
    const QString folder = qEnvironmentVariable("TARNWICK_PICTURES");
    if (folder.isEmpty())
        GTEST_SKIP() << "TARNWICK_PICTURES names no folder";
    ASSERT_TRUE(QDir().mkpath(folder));
    if (qEnvironmentVariableIsSet("TARNWICK_DARK"))
        QApplication::setPalette(DarkPalette());
    frame.SetText(QStringLiteral("<BODY BGCOLOR=\"#FFFFCC\" TEXT=\"#333333\" VLINK=\"#800080\">"));
    ShowBulletList(frame, ListKind::Bullets);
    form = frame.LoadedForms().Find<frmBulletList>();
    for (const QString& item : {QStringLiteral("Apples"), QStringLiteral("Pears")}) {
        Fill(QStringLiteral("txtAddItem"), item);
        Press(QStringLiteral("cmdAddItem"));
    }
    Take(folder, QStringLiteral("frmBulletList"));
    for (const QString& entry : frame.Commands().Names())
        frame.Commands().Run(entry);
    form = frame.LoadedForms().Find(QStringLiteral("frmSpacer"));
    Press(QStringLiteral("optBlock"));
    const Site site;
    frame.active->caption = site.Path(QStringLiteral("pages/a.htm"));
    form = frame.LoadedForms().Find(QStringLiteral("frmBody"));
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(site.Path(QStringLiteral("img/low.png")))};
    Press(QStringLiteral("Command1"));
    ShowTable(site);
    form = frame.LoadedForms().Find(QStringLiteral("frmFont"));
    Fill(QStringLiteral("txtFontColor"), QStringLiteral("#2060C0"));
    for (int i = 0; i < frame.LoadedForms().Count(); ++i) {
        const QString name = frame.LoadedForms().At(i)->objectName();
        if (name != QStringLiteral("frmTemplate"))
            Take(folder, name);
    }
    TakeForm(folder);
    TakeFrames(folder);
}

} // namespace
