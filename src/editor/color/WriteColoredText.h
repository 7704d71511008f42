// The one routine through which every coloured piece of text goes, and the rule that picks a tag's colour.
#pragma once

#include <QString>

class Document;
class Frame;

/// Gathers a piece, or sends all that is gathered into the document's selection as one RTF document. With
/// ColoredTags at 0 it assigns the text to SelText instead. Returns the text as it went out: with "\par " for
/// each CR LF where it was coloured. Without a document it does nothing.
QString WriteColoredText(Frame& frame, Document* document, QString text, QStringView colorWord);

/// Drops what is gathered, for a document that opens. With ColoredTags at 0 it deletes the document's
/// selection instead.
void ResetColoredText(Frame& frame, Document& document);

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
