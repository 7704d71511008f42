// The tag at a caret and the one that it opens or closes.
#pragma once

#include "editor/aids/TagWalk.h"

#include <optional>
#include <vector>

struct TagPartners {
    TagPlace atCaret;
    TagPlace partner;
    bool operator==(const TagPartners&) const = default;
};

/// The tag at a position (0-based, between two characters) with its partner. A tag reaches from in front of
/// its "<" to behind its ">"; where two meet, the left one counts. Its partner is found by counting the tags
/// of the same word, in any case. Nothing where there is no tag or no partner, and for the tags of elements
/// that have no end, such as <BR>.
std::optional<TagPartners> TagPartner(const QString& text, int position);

/// The same in turns, for a text that is long.
class PartnerSearch {
  public:
    /// The text must not change meanwhile. Looks at what stands around the caret only.
    PartnerSearch(int caret, TextReader read, int piece = 1 << 14);

    /// Looks at about so many characters more. False once the search is over.
    bool Turn(int characters);
    /// What was found once the search is over.
    const std::optional<TagPartners>& Found() const { return found_; }

  private:
    /// What the brackets around the caret tell at once.
    void LookAround();
    /// False at the end of the search.
    bool Take(const TagWalk::Tag& tag);
    bool TakeBeforeCaret(const TagWalk::Tag& tag);
    bool TakeAtCaret(const TagWalk::Tag& tag);
    bool TakeBehindCaret(const TagWalk::Tag& tag);
    void StartOver(const QString& word);

    int caret_;
    TextReader read_;
    int piece_;
    TagWalk walk_;
    bool over_ = false;
    /// The word of the caret's tag: a guess, until that is known.
    QString word_;
    /// Those of the word that are open in front of the caret.
    std::vector<TagPlace> open_;
    /// The caret's tag, where it is one that opens, and how many of its word are open behind it.
    std::optional<TagPlace> own_;
    int depth_ = 0;
    std::optional<TagPartners> found_;
};
