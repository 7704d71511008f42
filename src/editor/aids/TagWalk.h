// The tags of a text, one after the other, as far as a search for "<", ">" and words can tell them.
#pragma once

#include "editor/color/TagEnds.h"

#include <QString>

/// What stands in a comment, a declaration, a script or a quoted value is no tag; nor is a "<" behind which
/// the next "<" comes before a ">". What is never closed (a comment, a quote) hides nothing. Reads the text
/// once, from its start, in pieces, and can rest in between. Linear in the text's length.
class TagWalk {
  public:
    struct Tag {
        TagPlace place = {0, 0};
        QString word; ///< in lower case; what lies beyond its first 64 characters is left out
        bool closing = false;
        bool empty = false; ///< closed by itself, "<br/>"

        int End() const { return place.start + place.length; }
    };

    enum class Stop { Tag, Rest, End };

    /// The text must not change meanwhile. So many characters are read at a time; no less than 80.
    explicit TagWalk(TextReader read, int piece = 1 << 14);

    /// Goes on to the next tag, or rests after about so many characters, of which it takes off those read.
    Stop Next(int& characters);
    /// The tag that Next found last.
    const Tag& Current() const { return tag_; }

  private:
    enum class State { Text, InTag, Hidden, Done };

    bool PieceIsUsedUp() const;
    bool ReadOn(int& characters);
    /// Each goes on as far as the piece reaches. InTag is true at the tag's end.
    void GoInText();
    bool GoInTag();
    void GoInHidden();
    void BeginAtBracket();
    void BeginTag(bool closing);
    void FinishTag();
    /// A stretch begins that hides tags, up to an end by its number.
    void Hide(int end, State then);
    void NoEnd();

    QChar At(int position) const { return piece_[position - pieceStart_]; }
    int PieceEnd() const { return pieceStart_ + static_cast<int>(piece_.size()); }

    TextReader read_;
    int pieceLength_;
    QString piece_;
    int pieceStart_ = 0;
    bool lastPiece_ = false;

    State state_ = State::Text;
    int at_ = 0;
    Tag tag_;
    QChar lastInTag_;      ///< the last character that is no blank
    bool inValue_ = false; ///< in a value without quotes
    bool slash_ = false;   ///< the last one is a slash of its own

    int hiddenEnd_ = 0;
    int hiddenStart_ = 0;
    State behindHidden_ = State::Text;
    unsigned missingEnds_ = 0; ///< one bit for each end that does not come any more
};
