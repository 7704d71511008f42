#include "builders/lists/frmBulletList.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "dialogs/TagRows.h"

namespace {

class frmBulletListTest : public DialogTest {
  protected:
    QWidget& Show(ListKind kind) {
        ShowBulletList(frame, kind);
        form = frame.LoadedForms().Find<frmBulletList>();
        return *form;
    }
    void Add(const char16_t* item) {
        Fill(T(u"txtAddItem"), T(item));
        Press(T(u"cmdAddItem"));
    }
    QStringList Shown() {
        QStringList items;
        for (int row = 0; row < Control<QListWidget>(T(u"List1")).count(); ++row)
            items << Control<QListWidget>(T(u"List1")).item(row)->text();
        return items;
    }
};

TEST_F(frmBulletListTest, LooksAsItShould) {
    Show(ListKind::Bullets);
    EXPECT_EQ(form->windowTitle(), T(u"Lists"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdAddItem")).text(), T(u"&Add Item"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdDone")).text(), T(u"&Done"));
    EXPECT_EQ(Field(T(u"txtAddItem")), QString());
    EXPECT_EQ(Shown(), QStringList());
    EXPECT_FALSE(form->isModal());
    EXPECT_EQ(form->property("Tag").toString(), T(u"U"));
}

TEST_F(frmBulletListTest, CollectsItemsAndWritesThemAtOnce) {
    Show(ListKind::Bullets);
    Add(u"One");
    EXPECT_EQ(Field(T(u"txtAddItem")), QString());
    EXPECT_EQ(form->focusWidget(), &Control<QLineEdit>(T(u"txtAddItem")));
    Add(u"Two");
    EXPECT_EQ(Text(), QString());
    Press(T(u"cmdDone"));
    EXPECT_EQ(Text(), T(u"<UL>\r\n<LI>One\r\n<LI>Two\r\n</UL>"));
    EXPECT_FALSE(Loaded(T(u"frmBulletList")));
}

TEST_F(frmBulletListTest, ANewKindIsTakenAndTheItemsStay) {
    QWidget& first = Show(ListKind::Bullets);
    Add(u"One");
    EXPECT_EQ(&Show(ListKind::Definitions), &first);
    Press(T(u"cmdDone"));
    EXPECT_EQ(Text(), T(u"<DL>\r\n<DT>One\r\n</DL>"));
}

TEST_F(frmBulletListTest, GoesWithLowerCaseTags) {
    LowerCaseTags();
    Show(ListKind::Numbers);
    Add(u"One");
    Press(T(u"cmdDone"));
    EXPECT_EQ(Text(), T(u"<ol>\r\n<li>One\r\n</ol>"));
}

TEST_F(frmBulletListTest, ADoubleClickRemovesAnItem) {
    Show(ListKind::Bullets);
    for (const char16_t* item : {u"One", u"Two", u"Three"})
        Add(item);
    auto& list = Control<QListWidget>(T(u"List1"));
    const QPoint at = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(list.count(), 3);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(Shown(), (QStringList{T(u"One"), T(u"Three")}));
}

TEST_F(frmBulletListTest, WorksByKeysAlone) {
    Show(ListKind::Bullets);
    auto& txtAddItem = Control<QLineEdit>(T(u"txtAddItem"));
    for (const char16_t* item : {u"One", u"Two", u"Three"}) {
        QTest::keyClicks(&txtAddItem, T(item));
        QTest::keyClick(&txtAddItem, Qt::Key_Return);
    }
    EXPECT_EQ(Shown(), (QStringList{T(u"One"), T(u"Two"), T(u"Three")}));
    auto& list = Control<QListWidget>(T(u"List1"));
    list.setFocus();
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(Shown(), (QStringList{T(u"Two"), T(u"Three")}));
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(list.count(), 1);
    QTest::keyClick(&Control<QAbstractButton>(T(u"cmdDone")), Qt::Key_Return);
    EXPECT_EQ(Text(), T(u"<UL>\r\n<LI>Three\r\n</UL>"));
}

TEST_F(frmBulletListTest, AnEmptyListHasTwoLines) {
    Show(ListKind::Bullets);
    Press(T(u"cmdDone"));
    EXPECT_EQ(Text(), T(u"<UL>\r\n</UL>"));
}

const AnyDialog inAnyDialogTest({.form = u"frmBulletList",
                                 .show = [](Frame& frame) { ShowBulletList(frame, ListKind::Bullets); },
                                 .field = u"txtAddItem",
                                 .open = u"<ul>\r\n<li>MiXed\r\n</ul>",
                                 .press = u"cmdAddItem",
                                 .ok = {u"cmdDone", u"&Done"},
                                 .cancel = {u"", u""}});

} // namespace
