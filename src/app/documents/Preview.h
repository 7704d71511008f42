// The active document, or a file, in the user's external browser.
#pragma once

#include <QString>
#include <QStringList>

class Frame;

/// Registers mnuReload.
void FillPreviewCommands(Frame& frame);

/// Saves the active document as the Save command does, then starts the browser of ProgramState::WebPath on
/// path, or on the document's own file without one. Starts nothing with an empty or blank WebPath; a browser
/// that can't be started is passed over.
void PreviewInBrowser(Frame& frame, const QString& path = QString());

/// The words of the command line "browser target": cut at blanks, so a path that holds one becomes two words.
/// A word of the target that begins with "-" gets "./" in front: only the browser's own words are options.
QStringList BrowserCommandLine(const QString& browser, const QString& target);
