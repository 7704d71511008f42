// Word wrap of a document's text.
#pragma once

class RichTextBox;

/// On, the text wraps at the window; off, no line is as long as the margin.
void SetWordWrap(RichTextBox& text, bool on);
