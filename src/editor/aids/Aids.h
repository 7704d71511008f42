// What helps to see one's way in a text and touches nothing of it.
#pragma once

class Document;
class Frame;
class QObject;

/// Gives a document that opens the aids that the settings ask for; parent is its window, or something in it.
/// Of those that are off nothing exists.
void AttachAids(Frame& frame, Document& document, QObject* parent);
