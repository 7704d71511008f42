// The one routine through which every coloured piece of text goes, and the rule that picks a tag's colour.
#pragma once

#include <QString>

class Document;
class Frame;

/// Gathers a piece in the buffer, or flushes the buffer into the active document's selection as one RTF
/// document. With ColoredTags at 0 it assigns the text to SelText instead, and changes nothing of it. Else
/// every CR LF in text has become "\par " after the call. resetOnly empties the buffer and writes nothing.
/// Without an active document it does nothing.
void WriteColoredText(Frame& frame, QString& text, QStringView colorWord, bool resetOnly);

/// The same on a given document: a window that is being loaded resets the buffer through its own control,
/// before it is the active one.
void WriteColoredText(Frame& frame, Document& document, QString& text, QStringView colorWord, bool resetOnly);

/// The colour word, "\cf2 " to "\cf6 ", of a piece of tag text: by substring of the whole text, in a fixed
/// order.
QStringView TagColorCode(QStringView tag);

/// "{{\colortbl ;…;}": the head of every RTF document, from the current colour table.
QString RtfHeader(Frame& frame);

/// Each doubles or prefixes its character with a backslash. To be called in this order, so that the
/// backslashes added for braces are not doubled.
void EscapeBackslashes(QString& text);
void EscapeOpenBraces(QString& text);
void EscapeCloseBraces(QString& text);
