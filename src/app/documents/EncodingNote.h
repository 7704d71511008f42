// The word in the status bar that tells of a document in UTF-8.
#pragma once

class Document;
class Frame;

/// Writes "UTF-8" into panel 3 for a document that comes to the front, if it is in UTF-8; it stands there
/// until something else is told, and behind a notice.
void TellEncoding(Frame& frame, const Document& document);
