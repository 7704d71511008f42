// What helps in the frame beside its menus and strips: each by a setting, and none of it there without.
#pragma once

class MainFrame;
class OpenDocuments;
class QMdiArea;

/// Puts up the marks of changed documents, the text of the empty frame, the list of Ctrl+Tab and the keys of
/// the strips, as the settings ask for them.
void AddHints(MainFrame& frame, QMdiArea& area, OpenDocuments& documents);
