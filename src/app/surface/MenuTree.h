// The menu tree of the main frame: one table, and the menus built from it.
#pragma once

#include <span>
#include <vector>

class Frame;
class QMenuBar;
class QObject;
struct FormRow;

/// A row of the tree. A Menu row opens a menu (at the top, or nested in the one that is open), and the End
/// row that belongs to it closes it. Entry rows are named after their commands; element i of an array is
/// "name_i".
struct MenuRow {
    enum Kind { Menu, End, Entry, Separator };
    enum Showing { Shown, Hidden };

    Kind kind;
    const char* name = "";
    const char* caption = "";
    const char* shortcut = "";
    Showing showing = Shown;
};

/// All rows, in the order of the menus, with the entries that the forms of the program bring.
std::span<const MenuRow> MenuTree();
/// The same with those of other forms. A new entry stands at the end of the menu that it names.
std::vector<MenuRow> MenuTree(std::span<const FormRow> forms);

/// Builds the menus of the tree into an empty bar. Each QMenu and each QAction has its row's name as
/// objectName.
void BuildMenus(QMenuBar& bar, Frame& frame);
