// The complete style sheet in a file of its own, and the link to such a file.
#pragma once

#include "editor/color/TagCase.h"

#include <QString>

class Frame;
class QWidget;

/// Asks for a file and writes the sheet to it. A write that fails is told of in the status bar: the old file
/// then stands whole. False on Cancel; else the file's folder is the one that file dialogs open in from now
/// on.
bool SaveToExternalFile(Frame& frame, QWidget* owner, const QString& sheet);

/// The LINK tag to a sheet's file, with its line end: no blank stands before "title", and one within its
/// value.
QString LinkTag(const QString& target, TagCase tagCase);

/// Asks for a file and writes the link to it before "</HEAD>" of the active document; a Cancel links to
/// nothing. Where there is no such tag, the seven characters from the caret follow the link. With something
/// selected only that is searched.
void ImportFile(Frame& frame, QWidget* owner);
