// Which page of the help is about what the user is at.
#pragma once

#include <QString>

class Frame;
class HelpBook;
class QWidget;

inline const QString FirstHelpPage = QStringLiteral("index.html");

/// The page named after the widget, or after the nearest one around it that has a page: a form's is named
/// after the form ("frmBody.html"), a menu's after the menu. In the text of a document it is the page of the
/// tag around the caret, if the index knows its word ("<hr>"). Else the first page.
QString HelpTopicOf(Frame& frame, const QWidget* at, const HelpBook& book);
