// Cuts a text into the words that a reader sees in it.
#pragma once

#include "editor/spelling/TextCharacter.h"

#include <optional>
#include <QString>

struct TextWord {
    qsizetype start;  ///< 0-based, in the text
    qsizetype length; ///< as written: an entity counts all of its characters
    QString letters;  ///< as read: entities are their letters, apostrophes straight, nothing unseen
};

/// A word is a run of letters, with apostrophes inside. What holds a digit or an underscore is none, nor what
/// belongs to an address (IsAddress); nor is a run of more letters than any word has. Linear.
class WordCutter {
  public:
    WordCutter() = default;
    /// The text must stay for as long as words are asked for.
    explicit WordCutter(QStringView text) : text_(text) {}

    /// The next word; nothing at the text's end.
    std::optional<TextWord> Next();

  private:
    void TakeStretch();
    std::optional<TextWord> TakeRun();

    QStringView text_;
    qsizetype at_ = 0;
    qsizetype stretchEnd_ = 0; ///< up to here no blank or quote comes, and it is no address
};
