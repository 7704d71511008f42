// The one road by which a document's file is written over.
#pragma once

#include "editor/frame/SaveResult.h"
#include "platform/store/WriteResult.h"

#include <functional>
#include <QString>

class Document;
class Frame;

/// Writes a document to its own file. Asks first where that is not the one any more that was read or written
/// last (AskBeforeOverwrite); a file of which only a part was read is kept whole first (KeepCutPages), and
/// where it can't be, the save is refused. A failure is told of in the status bar.
SaveResult SaveOver(Frame& frame, Document& document);

/// The same for a step that writes the file by itself. What stands there afterwards is what the document
/// knows of it.
SaveResult WriteOver(Frame& frame, Document& document, const std::function<WriteResult()>& write);

/// Writes a document to a file that the user has just chosen, and asks nothing.
SaveResult SaveUnder(Frame& frame, const QString& path, Document& document);
