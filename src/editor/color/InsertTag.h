// The primitives by which menus, toolbar, user buttons and dialogs put HTML into the active document.
#pragma once

#include <QString>

class Frame;

/// Whether a tag is written as it is, or in lower case where LowerCaseTags is 1.
enum class KeepCase { No, Yes };

/// The two strings as they went out: lowered, and "\par " for each CR LF where it was coloured.
struct WrittenTag {
    QString open;
    QString close;
    bool operator==(const WrittenTag&) const = default;
};

/// Wraps the selection of the active document in two strings, coloured, and leaves the caret before close,
/// where what comes next has the text colour. Without a document nothing is written.
WrittenTag InsertTag(Frame& frame, QString open, QString close, KeepCase keepCase);

enum class Compare { Exact = 0, IgnoreCase = 1 };

/// Replaces every find in text, assigns the result to the active document's SelText, uncoloured, and says
/// "Finished!". An empty find changes nothing. Returns the new text.
QString ReplaceInSelection(Frame& frame, const QString& text, const QString& find, const QString& replacement,
                           Compare compare = Compare::Exact);
