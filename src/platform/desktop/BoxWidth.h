// How wide boxes are made.
#pragma once

class QMessageBox;
class QString;
class QWidget;

/// What a window's title asks for, in pixels: its text as the desktop draws titles, and the buttons beside.
int TitleWidth(const QString& title, const QWidget& window);

/// Makes a message box, which sets its own size, as wide as its title at least.
void WidenToTitle(QMessageBox& box);

/// The width of a field for a line of text, such as the description of a page; less on a small screen.
int LineWidth(const QWidget& window);
