// A character of a page's text as a reader sees it: an entity is the one that it stands for.
#pragma once

#include <QStringView>

struct TextCharacter {
    char32_t code;    ///< the letter itself, or Unknown
    qsizetype length; ///< how many positions of the text it takes

    /// An entity of no known name, or a number that is no character: neither letter nor blank.
    static constexpr char32_t Unknown = 0xfffc;

    bool IsBlank() const;
    /// A letter, or a mark that belongs to the one before. Those of scripts that put no blanks between words
    /// count for none.
    bool IsLetter() const;
    bool IsDigit() const;
    bool IsApostrophe() const { return code == U'\'' || code == U'\u2019'; }
    /// Unseen within a word: soft hyphen, joiner and non-joiner.
    bool IsUnseen() const { return code == 0xad || code == 0x200c || code == 0x200d; }
};

/// The character at a position (0-based, within the text).
TextCharacter CharacterAt(QStringView text, qsizetype at);
