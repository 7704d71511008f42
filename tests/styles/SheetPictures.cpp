// Pictures of the style sheet builder and the layer dialog for the eye: set TARNWICK_PICTURES to a folder and
// run SheetPictures.*.
#include "styles/sheet/SheetTest.h"
#include "support/DarkPalette.h"
#include <QDir>

namespace {

using SheetPictures = SheetTest;

TEST_F(SheetPictures, OfBothDialogs) {
    const QString folder = qEnvironmentVariable("TARNWICK_PICTURES");
    if (folder.isEmpty())
        GTEST_SKIP() << "TARNWICK_PICTURES names no folder";
    ASSERT_TRUE(QDir().mkpath(folder));
    const QPalette before = QApplication::palette();
    if (qEnvironmentVariableIsSet("TARNWICK_DARK"))
        QApplication::setPalette(DarkPalette());
    const auto take = [&](const char16_t* name) {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form));
        EXPECT_TRUE(form->grab().save(QDir(folder).filePath(T(name))));
    };
    Add(u"Color", u"red");
    Press(T(u"cmdAddSheet"));
    Add(u"font-style", u"italic");
    take(u"frmCSS.png");
    ChooseProperty(u"font-family");
    take(u"frmCSSfont-family.png");
    Open(T(u"tb_Layer"), T(u"frmDHTML"));
    Fill(T(u"txtName"), T(u"box"));
    take(u"frmDHTML.png");
    QApplication::setPalette(before);
}

} // namespace
