// The menus as a person finds them: names, captions, order, nesting, separators, shortcut keys.
#include "app/surface/MenuTree.h"

#include "app/surface/CommandActions.h"
#include "app/surface/MenuEntry.h"
#include "app/surface/NewEntries.h"
#include "support/TestFrame.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <QMenu>
#include <QMenuBar>
#include <QSet>

namespace {

// A line an entry: name, caption, shortcut key; "-" is a separator; two blanks a level of nesting.
const char menus[] =
    R"(mnuFile "&File"
  mnuNew "&New" Ctrl+N
  mnuOpen "&Open..." Ctrl+O
  -
  mnuSave "&Save" Ctrl+S
  mnuSaveAs "Save &As..."
  -
  mnuClose "&Close" Ctrl+W
  -
  mnuPrint "&Print" Ctrl+P
  -
  mnuExit "E&xit"
  - mnuSep10 hidden
  mnuFileArray_0 "" hidden
  mnuFileArray_1 "" hidden
  mnuFileArray_2 "" hidden
  mnuFileArray_3 "" hidden
  mnuFileArray_4 "" hidden
  mnuFileArray_5 "" hidden
  mnuFileArray_6 "" hidden
  mnuFileArray_7 "" hidden
mMain "&Edit"
  mEdit_0 "&Undo          Ctrl+Z"
  -
  mEdit_2 "&Cut             Ctrl+X"
  mEdit_3 "C&opy          Ctrl+C"
  mEdit_4 "&Paste         Ctrl+V"
  mEdit_5 "&Delete        Del"
  -
  mnuEditTag "&Edit Tag" Ctrl+D
  -
  mnuSelectAll "&Select All" Ctrl+A
  -
  mnuTimeDate "Insert &Date"
  mnuInsertContents "&Insert Contents"
  -
  mnuSpellCheck "Sp&ell Check" Ctrl+F12
  -
  mnuFind "&Find" Ctrl+F
  mnuFindAgain "Find &Next" F3
  mnuReplace "&Replace" Ctrl+R
  mnuMultiFile "&Multi File Replace"
mnuTags "&Tags"
  mnuFontOpt "&Font Options"
    mnuBIG "<BIG>"
    mnuSMALL "<SMALL>"
    mnuBlink "<BLINK>"
    mnuSUB "<SUB>"
    mnuSUP "<SUP>"
    mnuEm "<EM>"
    mnuStrong "<STRONG>"
    mnuS "<S>"
    mnuCODE "<CODE>"
    mnuSAMP "<SAMP>"
    mnuKBD "<KBD>"
    mnuCITE "<CITE>"
    mnuTT "<TT>"
    mnuBASE "Base Font Size"
  mnuParagraph "&Paragraph"
    mnuBlockQuote "Block Quote"
    mnuDef "Definition List"
  mnuCharacters "C&haracters"
    mnuSpace "Space"
    mnuExclamation "Exclamation Mark"
    mnuQuotation "Quotation Mark"
    mnuNumber "Number Sign"
    mnuDollar "Dollar Sign"
    mnuPercent "Percent Sign"
    mnuAmpersand "Ampersand"
    mnuApostrophe "Apostrophe"
    mnuLeftP "Left Parenthesis"
    mnuRightP "Right Parenthesis"
    mnuAsterisk "Asterisk"
    mnuPlusSign "Plus Sign"
    mnuLessThan "Less Than"
    mnuEqual "Equal Sign"
    mnuGreaterThan "Greater Than"
    mnuQuestion "Question Mark"
    mnuAT "Commercial At "
    mnuLeftSQ "Left Square Bracket"
    mnuRightSQ "Right Square Bracket"
    mnuTilde "Tilde"
    mnuInEx "Inverted Exclamation"
    mnuCent "Cent Sign"
    mnuCopyright "Copyright"
    mnuRegistered "Registered"
    mnuOneFourth "Fraction One-Fourth"
    mnuOneHalf "Fraction One-Half"
    mnuThreeFourths "Fraction Three-Fourths"
  mnuOther "&Other"
    mnuImageMap "&Image Map"
    mnuMapArea "&Map Area"
    mnuNOBR "<NOBR>"
    mnuWBR "<WBR>"
  mnuIE "&Internet Explorer"
    mnuBack "Background Properties"
      mnuBGPROP "BGPROPERTIES=FIXED"
      mnuLeftMargin "LEFTMARGIN"
      mnuTopMargin "TOPMARGIN"
    mnuBackgroundSound "Background Sound"
      mnuBGSOUND "<BGSOUND>"
    mnuFontOptions "Font Options"
      mnuFace "FACE"
    mnuIMGOpt "IMG Options"
      mnuControls "CONTROLS"
      mnuDYN "DYNSRC"
      mnuLOOP "LOOP"
      mnuFileOpen "START=FILEOPEN"
      mnuMouseOver "START=MOUSEOVER"
    mnuMarquee "Marquee"
      mnuMar "<MARQUEE>"
      mnuAligns "ALIGN"
      mnuBehavior "BEHAVIOR"
      mnuDirection "DIRECTION"
      mnuH "HEIGHT"
      mnuScrollAm "SCROLLAMOUNT"
      mnuScrollD "SCROLLDELAY"
      mnuWidthAgain "WIDTH"
    mnuMap "<MAP>"
  mnuFrontButtons "&Front Buttons"
    mnuBold "&Bold" Ctrl+B
    mnuItalic "&Italic" Ctrl+I
    mnuUnderline "&Underline" Ctrl+U
    mnuReload "&Reload" Ctrl+T
    mnuLink "&Link" Ctrl+L
    mnuImage "&Image" Ctrl+Q
    mnuEmbed "&Embed" Ctrl+E
    mnuCenter "&Center" Ctrl+J
    mnuBreak "&Break" Ctrl+G
    mnuHR "&HR" Ctrl+H
  -
  mnuShowLinks "&Show Links"
  -
  mnuAddBreaks "&Add Breaks"
  mnuAddLi "A&dd List Tags"
  mnuRemoveTags "&Remove Tags"
mnuDocument "Docu&ment"
  mnuInsertImageMap "&Insert Image Map"
  -
  mnuWizard "&Webpage Wizard"
  -
  mnuDefault "&Default Template"
  mnuUserTemplate "&User Template"
  -
  mnuSetUserTemplate "&Save Template"
  -
  mnuConversions "&Conversions"
    mnuConvertFromMac "&Convert FROM Macintosh format"
    mnuConvertToMac "C&onvert TO Macintosh format"
    -
    mnuConvertFromUNIX "Convert &FROM UNIX format"
    mnuConvertToUNIX "Convert &TO UNIX format"
mnuWindow "&Window"
  mnuCascade "&Cascade" Shift+F5
  mnuTile "&Tile" Shift+F4
  mnuArrangeIcons "&Arrange Icons"
  -
  mnuWebBrowser "&Options..."
mnuHelp "&Help"
  mnuMainHelp "&Help"
  mnuAbout "&About"
)";

void Write(const QMenu& menu, const QString& indent, QString& text) {
    const QList<QAction*> entries = menu.actions();
    for (const QAction* entry : entries) {
        if (entry->menu()) {
            text += indent + entry->menu()->objectName() + QStringLiteral(" \"") + entry->text() +
                    QStringLiteral("\"\n");
            Write(*entry->menu(), indent + QStringLiteral("  "), text);
            continue;
        }
        QStringList words;
        if (entry->isSeparator())
            words << QStringLiteral("-");
        if (!entry->objectName().isEmpty())
            words << entry->objectName();
        if (!entry->isSeparator())
            words << u'"' + entry->text() + u'"';
        if (!entry->shortcut().isEmpty())
            words << entry->shortcut().toString(QKeySequence::PortableText);
        if (!entry->isVisible())
            words << QStringLiteral("hidden");
        text += indent + words.join(u' ') + u'\n';
    }
}

class MenuTreeTest : public testing::Test {
  protected:
    MenuTreeTest() { BuildMenus(bar, frame); }

    QAction* Entry(const char* name) { return MenuEntry(frame, QString::fromLatin1(name)); }

    TestFrame frame;
    QMenuBar bar{frame.Window()};
};

TEST_F(MenuTreeTest, NamesCaptionsOrderAndKeysAreTheseToTheLetter) {
    QString text;
    const QList<QAction*> titles = bar.actions();
    for (const QAction* title : titles) {
        text += title->menu()->objectName() + QStringLiteral(" \"") + title->text() + QStringLiteral("\"\n");
        Write(*title->menu(), QStringLiteral("  "), text);
    }
    QStringList built = text.split(u'\n');
    // What the forms bring of their own stands at the end of its menu, as another test shows.
    for (const FormRow& row : FormsWithNewEntry()) {
        const auto removed = built.removeIf([&](const QString& line) {
            return line.trimmed().section(u' ', 0, 0) == QString::fromLatin1(row.reach.entry.name);
        });
        EXPECT_EQ(removed, 1) << row.name;
    }
    const QStringList expected = QString::fromLatin1(menus).split(u'\n');
    for (qsizetype i = 0; i < expected.size(); ++i)
        EXPECT_EQ(built.value(i), expected[i]) << "line " << i;
    EXPECT_EQ(built.size(), expected.size());
}

TEST_F(MenuTreeTest, EveryEntryIsFoundByItsName) {
    QSet<QString> names;
    for (const MenuRow& row : MenuTree()) {
        if (row.kind != MenuRow::Entry)
            continue;
        const QString name = QString::fromLatin1(row.name);
        EXPECT_FALSE(names.contains(name)) << row.name << " stands twice";
        names.insert(name);
        ASSERT_TRUE(MenuEntry(frame, name)) << row.name;
        EXPECT_EQ(MenuEntry(frame, name)->text(), QString::fromLatin1(row.caption));
    }
    // mEdit is an array with gaps: 1 and 6 would be its separators.
    EXPECT_FALSE(Entry("mEdit_1"));
    EXPECT_FALSE(Entry("mEdit_6"));
    EXPECT_TRUE(Entry("mnuFileArray_7"));
    EXPECT_FALSE(Entry("mnuFileArray_8"));
}

TEST_F(MenuTreeTest, ANewEntryOfAFormStandsAtTheEndOfItsMenu) {
    const FormRow forms[] = {
        {"frmKnown", {.entry = {"mnuLink"}}},
        {"frmTag", {.entry = {"mnuTag", "&Tag", "Ctrl+K"}}},
        {"frmChart", {.entry = {"mnuChart", "C&hart", "", "mnuConversions"}}},
        {"frmOther", {.entry = {"mnuOther2", "&Other"}}},
    };
    const std::vector<MenuRow> tree = MenuTree(forms);
    const auto at = [&](std::string_view name) {
        return std::ranges::find_if(tree, [&](const MenuRow& row) { return row.name == name; });
    };
    ASSERT_EQ(tree.size(), MenuTree({}).size() + 3);
    EXPECT_STREQ((at("mnuRemoveTags") + 1)->name, "mnuTag");
    EXPECT_STREQ((at("mnuTag") + 1)->name, "mnuOther2");
    EXPECT_EQ((at("mnuOther2") + 1)->kind, MenuRow::End);
    EXPECT_STREQ((at("mnuConvertToUNIX") + 1)->name, "mnuChart");
    EXPECT_EQ(at("mnuTag")->kind, MenuRow::Entry);
    EXPECT_STREQ(at("mnuTag")->caption, "&Tag");
    EXPECT_STREQ(at("mnuTag")->shortcut, "Ctrl+K");
}

TEST_F(MenuTreeTest, EveryNewEntryNamesAMenuOfTheTree) {
    for (const FormRow& row : FormsWithNewEntry())
        EXPECT_TRUE(bar.findChild<QMenu*>(QString::fromLatin1(row.reach.entry.menu))) << row.name;
}

// What a key does once: two entries of one key would make it do nothing.
TEST_F(MenuTreeTest, NoKeyIsGivenTwiceAndTheTextControlKeepsItsOwn) {
    QSet<QString> keys;
    for (const MenuRow& row : MenuTree()) {
        const QString key = QString::fromLatin1(row.shortcut);
        if (key.isEmpty())
            continue;
        EXPECT_FALSE(keys.contains(key)) << row.shortcut;
        keys.insert(key);
    }
    const auto brought = FormsWithNewEntry();
    const auto withKey =
        std::ranges::count_if(brought, [](const FormRow& row) { return *row.reach.entry.shortcut != '\0'; });
    EXPECT_EQ(keys.size(), 23 + withKey);
    for (const char* own : {"Ctrl+Z", "Ctrl+X", "Ctrl+C", "Ctrl+V", "Del"})
        EXPECT_FALSE(keys.contains(QString::fromLatin1(own))) << own;
}

TEST_F(MenuTreeTest, AnEntryWithoutACommandIsDisabled) {
    frame.Commands().Set(QStringLiteral("mnuBold"), [] {});
    EnableCommands(*frame.Window(), frame.Commands());
    EXPECT_TRUE(Entry("mnuBold")->isEnabled());
    EXPECT_FALSE(Entry("mnuItalic")->isEnabled());
    frame.Commands().Set(QStringLiteral("mnuItalic"), [] {});
    EnableCommands(*frame.Window(), frame.Commands());
    EXPECT_TRUE(Entry("mnuItalic")->isEnabled());
}

TEST_F(MenuTreeTest, EnablingLeavesOtherActionsAlone) {
    QAction listed(QStringLiteral("an open document"), frame.Window());
    EnableCommands(*frame.Window(), frame.Commands());
    EXPECT_TRUE(listed.isEnabled());
    EXPECT_TRUE(bar.findChild<QMenu*>(QStringLiteral("mnuFile"))->isEnabled());
}

TEST_F(MenuTreeTest, AnEntryRunsTheCommandOfItsName) {
    QStringList ran;
    for (const MenuRow& row : MenuTree())
        if (row.kind == MenuRow::Entry) {
            const QString name = QString::fromLatin1(row.name);
            frame.Commands().Set(name, [&ran, name] { ran << name; });
        }
    EnableCommands(*frame.Window(), frame.Commands());
    QStringList expected;
    for (const MenuRow& row : MenuTree())
        if (row.kind == MenuRow::Entry) {
            expected << QString::fromLatin1(row.name);
            Entry(row.name)->trigger();
        }
    EXPECT_EQ(ran, expected);
    EXPECT_EQ(ran.size(), 124 + static_cast<qsizetype>(FormsWithNewEntry().size()));
}

} // namespace
