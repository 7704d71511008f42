#include "app/surface/MenuTree.h"

#include "app/surface/CommandActions.h"
#include "app/surface/ShownTextMenu.h"
#include "app/window/KnownForms.h"

#include <algorithm>
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QVector>
#include <string_view>

namespace {

constexpr auto Menu = MenuRow::Menu;
constexpr auto End = MenuRow::End;
constexpr auto Entry = MenuRow::Entry;
constexpr auto Separator = MenuRow::Separator;
constexpr auto Hidden = MenuRow::Hidden;

// The keys that the first Edit entries show are part of their captions: those keys belong to the text
// control. The recent files and the separator above them come to sight when a path fills them.
// clang-format off
const MenuRow designed[] = {
    {Menu, "mnuFile", "&File"},
        {Entry, "mnuNew", "&New", "Ctrl+N"},
        {Entry, "mnuOpen", "&Open...", "Ctrl+O"},
        {Separator},
        {Entry, "mnuSave", "&Save", "Ctrl+S"},
        {Entry, "mnuSaveAs", "Save &As..."},
        {Separator},
        {Entry, "mnuClose", "&Close", "Ctrl+W"},
        {Separator},
        {Entry, "mnuPrint", "&Print", "Ctrl+P"},
        {Separator},
        {Entry, "mnuExit", "E&xit"},
        {Separator, "mnuSep10", "", "", Hidden},
        {Entry, "mnuFileArray_0", "", "", Hidden},
        {Entry, "mnuFileArray_1", "", "", Hidden},
        {Entry, "mnuFileArray_2", "", "", Hidden},
        {Entry, "mnuFileArray_3", "", "", Hidden},
        {Entry, "mnuFileArray_4", "", "", Hidden},
        {Entry, "mnuFileArray_5", "", "", Hidden},
        {Entry, "mnuFileArray_6", "", "", Hidden},
        {Entry, "mnuFileArray_7", "", "", Hidden},
    {End},
    {Menu, "mMain", "&Edit"},
        {Entry, "mEdit_0", "&Undo          Ctrl+Z"},
        {Separator},
        {Entry, "mEdit_2", "&Cut             Ctrl+X"},
        {Entry, "mEdit_3", "C&opy          Ctrl+C"},
        {Entry, "mEdit_4", "&Paste         Ctrl+V"},
        {Entry, "mEdit_5", "&Delete        Del"},
        {Separator},
        {Entry, "mnuEditTag", "&Edit Tag", "Ctrl+D"},
        {Separator},
        {Entry, "mnuSelectAll", "&Select All", "Ctrl+A"},
        {Separator},
        {Entry, "mnuTimeDate", "Insert &Date"},
        {Entry, "mnuInsertContents", "&Insert Contents"},
        {Separator},
        {Entry, "mnuSpellCheck", "Sp&ell Check", "Ctrl+F12"},
        {Separator},
        {Entry, "mnuFind", "&Find", "Ctrl+F"},
        {Entry, "mnuFindAgain", "Find &Next", "F3"},
        {Entry, "mnuReplace", "&Replace", "Ctrl+R"},
        {Entry, "mnuMultiFile", "&Multi File Replace"},
    {End},
    {Menu, "mnuTags", "&Tags"},
        {Menu, "mnuFontOpt", "&Font Options"},
            {Entry, "mnuBIG", "<BIG>"},
            {Entry, "mnuSMALL", "<SMALL>"},
            {Entry, "mnuBlink", "<BLINK>"},
            {Entry, "mnuSUB", "<SUB>"},
            {Entry, "mnuSUP", "<SUP>"},
            {Entry, "mnuEm", "<EM>"},
            {Entry, "mnuStrong", "<STRONG>"},
            {Entry, "mnuS", "<S>"},
            {Entry, "mnuCODE", "<CODE>"},
            {Entry, "mnuSAMP", "<SAMP>"},
            {Entry, "mnuKBD", "<KBD>"},
            {Entry, "mnuCITE", "<CITE>"},
            {Entry, "mnuTT", "<TT>"},
            {Entry, "mnuBASE", "Base Font Size"},
        {End},
        {Menu, "mnuParagraph", "&Paragraph"},
            {Entry, "mnuBlockQuote", "Block Quote"},
            {Entry, "mnuDef", "Definition List"},
        {End},
        {Menu, "mnuCharacters", "C&haracters"},
            {Entry, "mnuSpace", "Space"},
            {Entry, "mnuExclamation", "Exclamation Mark"},
            {Entry, "mnuQuotation", "Quotation Mark"},
            {Entry, "mnuNumber", "Number Sign"},
            {Entry, "mnuDollar", "Dollar Sign"},
            {Entry, "mnuPercent", "Percent Sign"},
            {Entry, "mnuAmpersand", "Ampersand"},
            {Entry, "mnuApostrophe", "Apostrophe"},
            {Entry, "mnuLeftP", "Left Parenthesis"},
            {Entry, "mnuRightP", "Right Parenthesis"},
            {Entry, "mnuAsterisk", "Asterisk"},
            {Entry, "mnuPlusSign", "Plus Sign"},
            {Entry, "mnuLessThan", "Less Than"},
            {Entry, "mnuEqual", "Equal Sign"},
            {Entry, "mnuGreaterThan", "Greater Than"},
            {Entry, "mnuQuestion", "Question Mark"},
            {Entry, "mnuAT", "Commercial At "},
            {Entry, "mnuLeftSQ", "Left Square Bracket"},
            {Entry, "mnuRightSQ", "Right Square Bracket"},
            {Entry, "mnuTilde", "Tilde"},
            {Entry, "mnuInEx", "Inverted Exclamation"},
            {Entry, "mnuCent", "Cent Sign"},
            {Entry, "mnuCopyright", "Copyright"},
            {Entry, "mnuRegistered", "Registered"},
            {Entry, "mnuOneFourth", "Fraction One-Fourth"},
            {Entry, "mnuOneHalf", "Fraction One-Half"},
            {Entry, "mnuThreeFourths", "Fraction Three-Fourths"},
        {End},
        {Menu, "mnuOther", "&Other"},
            {Entry, "mnuImageMap", "&Image Map"},
            {Entry, "mnuMapArea", "&Map Area"},
            {Entry, "mnuNOBR", "<NOBR>"},
            {Entry, "mnuWBR", "<WBR>"},
        {End},
        {Menu, "mnuIE", "&Internet Explorer"},
            {Menu, "mnuBack", "Background Properties"},
                {Entry, "mnuBGPROP", "BGPROPERTIES=FIXED"},
                {Entry, "mnuLeftMargin", "LEFTMARGIN"},
                {Entry, "mnuTopMargin", "TOPMARGIN"},
            {End},
            {Menu, "mnuBackgroundSound", "Background Sound"},
                {Entry, "mnuBGSOUND", "<BGSOUND>"},
            {End},
            {Menu, "mnuFontOptions", "Font Options"},
                {Entry, "mnuFace", "FACE"},
            {End},
            {Menu, "mnuIMGOpt", "IMG Options"},
                {Entry, "mnuControls", "CONTROLS"},
                {Entry, "mnuDYN", "DYNSRC"},
                {Entry, "mnuLOOP", "LOOP"},
                {Entry, "mnuFileOpen", "START=FILEOPEN"},
                {Entry, "mnuMouseOver", "START=MOUSEOVER"},
            {End},
            {Menu, "mnuMarquee", "Marquee"},
                {Entry, "mnuMar", "<MARQUEE>"},
                {Entry, "mnuAligns", "ALIGN"},
                {Entry, "mnuBehavior", "BEHAVIOR"},
                {Entry, "mnuDirection", "DIRECTION"},
                {Entry, "mnuH", "HEIGHT"},
                {Entry, "mnuScrollAm", "SCROLLAMOUNT"},
                {Entry, "mnuScrollD", "SCROLLDELAY"},
                {Entry, "mnuWidthAgain", "WIDTH"},
            {End},
            {Entry, "mnuMap", "<MAP>"},
        {End},
        {Menu, "mnuFrontButtons", "&Front Buttons"},
            {Entry, "mnuBold", "&Bold", "Ctrl+B"},
            {Entry, "mnuItalic", "&Italic", "Ctrl+I"},
            {Entry, "mnuUnderline", "&Underline", "Ctrl+U"},
            {Entry, "mnuReload", "&Reload", "Ctrl+T"},
            {Entry, "mnuLink", "&Link", "Ctrl+L"},
            {Entry, "mnuImage", "&Image", "Ctrl+Q"},
            {Entry, "mnuEmbed", "&Embed", "Ctrl+E"},
            {Entry, "mnuCenter", "&Center", "Ctrl+J"},
            {Entry, "mnuBreak", "&Break", "Ctrl+G"},
            {Entry, "mnuHR", "&HR", "Ctrl+H"},
        {End},
        {Separator},
        {Entry, "mnuShowLinks", "&Show Links"},
        {Separator},
        {Entry, "mnuAddBreaks", "&Add Breaks"},
        {Entry, "mnuAddLi", "A&dd List Tags"},
        {Entry, "mnuRemoveTags", "&Remove Tags"},
    {End},
    {Menu, "mnuDocument", "Docu&ment"},
        {Entry, "mnuInsertImageMap", "&Insert Image Map"},
        {Separator},
        {Entry, "mnuWizard", "&Webpage Wizard"},
        {Separator},
        {Entry, "mnuDefault", "&Default Template"},
        {Entry, "mnuUserTemplate", "&User Template"},
        {Separator},
        {Entry, "mnuSetUserTemplate", "&Save Template"},
        {Separator},
        {Menu, "mnuConversions", "&Conversions"},
            {Entry, "mnuConvertFromMac", "&Convert FROM Macintosh format"},
            {Entry, "mnuConvertToMac", "C&onvert TO Macintosh format"},
            {Separator},
            {Entry, "mnuConvertFromUNIX", "Convert &FROM UNIX format"},
            {Entry, "mnuConvertToUNIX", "Convert &TO UNIX format"},
        {End},
    {End},
    {Menu, "mnuWindow", "&Window"},
        {Entry, "mnuCascade", "&Cascade", "Shift+F5"},
        {Entry, "mnuTile", "&Tile", "Shift+F4"},
        {Entry, "mnuArrangeIcons", "&Arrange Icons"},
        {Separator},
        {Entry, "mnuWebBrowser", "&Options..."},
    {End},
    {Menu, "mnuHelp", "&Help"},
        {Entry, "mnuMainHelp", "&Help"},
        {Entry, "mnuAbout", "&About"},
    {End},
};
// clang-format on

/// Adds a menu to another one, or to the bar where there is no other.
QMenu* AddMenu(QMenuBar& bar, QMenu* around, const MenuRow& row) {
    QWidget* parent = around ? static_cast<QWidget*>(around) : &bar;
    auto* menu = new ShownTextMenu(QString::fromLatin1(row.caption), parent);
    menu->setObjectName(QString::fromLatin1(row.name));
    parent->addAction(menu->menuAction());
    return menu;
}

void AddSeparator(QMenu& menu, const MenuRow& row) {
    QAction* separator = menu.addSeparator();
    separator->setObjectName(QString::fromLatin1(row.name));
    separator->setVisible(row.showing == MenuRow::Shown);
}

void AddEntry(QMenu& menu, const MenuRow& row, Frame& frame, QObject* owner) {
    QAction* entry = MakeCommandAction(QString::fromLatin1(row.name), QString::fromLatin1(row.caption),
                                       frame.Commands(), owner);
    entry->setShortcut(QKeySequence(QString::fromLatin1(row.shortcut), QKeySequence::PortableText));
    entry->setVisible(row.showing == MenuRow::Shown);
    menu.addAction(entry);
}

/// The row that closes a menu; what names no menu of the tree goes into the last one.
std::vector<MenuRow>::const_iterator EndOf(const std::vector<MenuRow>& tree, std::string_view menu) {
    auto row =
        std::ranges::find_if(tree, [&](const MenuRow& one) { return one.kind == Menu && one.name == menu; });
    for (int depth = 0; row != tree.end(); ++row) {
        depth += row->kind == Menu ? 1 : row->kind == End ? -1 : 0;
        if (depth == 0)
            return row;
    }
    return tree.end() - 1;
}

} // namespace

std::span<const MenuRow> MenuTree() {
    static const std::vector<MenuRow> tree = MenuTree(KnownForms());
    return tree;
}

std::vector<MenuRow> MenuTree(std::span<const FormRow> forms) {
    std::vector<MenuRow> tree(std::begin(designed), std::end(designed));
    for (const FormRow& form : forms)
        if (const FormEntry& entry = form.reach.entry; *entry.caption)
            tree.insert(EndOf(tree, entry.menu), {Entry, entry.name, entry.caption, entry.shortcut});
    return tree;
}

void BuildMenus(QMenuBar& bar, Frame& frame) {
    QVector<QMenu*> open;
    for (const MenuRow& row : MenuTree()) {
        switch (row.kind) {
        case MenuRow::Menu:
            open.push_back(AddMenu(bar, open.isEmpty() ? nullptr : open.last(), row));
            break;
        case MenuRow::End:
            open.pop_back();
            break;
        case MenuRow::Entry:
            AddEntry(*open.last(), row, frame, &bar);
            break;
        case MenuRow::Separator:
            AddSeparator(*open.last(), row);
            break;
        }
    }
}
