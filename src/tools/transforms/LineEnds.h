// The four commands that give the active document other line ends.
#pragma once

#include <QString>

class Frame;

/// Registers mnuConvertFromMac, mnuConvertToMac, mnuConvertFromUNIX and mnuConvertToUNIX.
void FillLineEndCommands(Frame& frame);

/// Puts the text with every from replaced by to in place of the active document's, plain and in the text
/// colour, as one undo step; says "Finished!". Without a document it says so first, by a box of its own.
/// Returns the new text.
QString ConvertLineEnds(Frame& frame, const QString& text, const QString& from, const QString& to);
