// The primitives by which menus, toolbar, user buttons and dialogs put HTML into the active document.
#pragma once

#include <QString>

class Frame;

/// Wraps the selection of the active document in two strings, coloured, and leaves the caret before close,
/// where what comes next has the text colour.
/// Without keepCase both are lowered first when LowerCaseTags is 1. Both may come back changed: lowered,
/// "\par " for CR LF.
void InsertTag(Frame& frame, QString& open, QString& close, bool keepCase);

/// The same for callers that need nothing back.
void InsertTag(Frame& frame, const QString& open, const QString& close, bool keepCase);

enum class Compare { Exact = 0, IgnoreCase = 1 };

/// Replaces every find in text, assigns the result to the active document's SelText, uncoloured, and says
/// "Finished!". An empty find changes nothing. Returns the new text.
QString ReplaceInSelection(Frame& frame, const QString& text, const QString& find, const QString& replacement,
                           Compare compare = Compare::Exact);
