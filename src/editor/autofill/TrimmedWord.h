// The word typed since a list opened.
#pragma once

#include <QString>
#include <QStringView>

class RichTextBox;

/// The typed word is all text from where the last list opened up to the caret, and that may lie megabytes
/// back. All that anyone asks of it is whether it is empty, how long it is, and whether a row of a list
/// begins with it: so its length and its first characters are kept, and the text between is never fetched.
class TrimmedWord {
  public:
    void Clear();
    /// Takes the characters [start, end) of the text, 0-based and cut to what there is, without the blanks at
    /// both ends. With end before start the word stays what it was.
    void Take(const RichTextBox& text, int start, int end);

    bool IsEmpty() const { return length_ == 0; }
    int Length() const { return length_; }
    /// Whether a text begins with the word, case ignored.
    bool Begins(QStringView text) const;

  private:
    int length_ = 0;
    QString head_;
};
