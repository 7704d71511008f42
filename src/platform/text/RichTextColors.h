// The colours behind the text control: one style for each colour, and the memory that lets undo and
// redo bring colours back, which the control's own undo forgets.
#pragma once

#include "platform/text/ColorNumber.h"
#include "platform/text/TextStretches.h"

#include <array>
#include <cstdint>
#include <QHash>
#include <vector>

/// Stretches of text of one style each, lengths in bytes, packed into four bytes a stretch.
class StyleRuns {
  public:
    StyleRuns() = default;
    StyleRuns(int length, int style) { Append(length, style); }
    /// Adds a stretch at the end; it melts into the last one if that has the same style.
    void Append(int length, int style);
    /// Adds what another list holds.
    void Append(const StyleRuns& more);
    bool Empty() const { return packed_.empty(); }
    std::size_t Count() const { return packed_.size(); }
    int StyleOf(std::size_t run) const { return static_cast<int>(packed_[run] & 0xff); }
    int LengthOf(std::size_t run) const { return static_cast<int>(packed_[run] >> 8); }
    bool operator==(const StyleRuns&) const = default;

  private:
    std::vector<std::uint32_t> packed_;
};

/// Which style shows which colour. Style 0 is the control's own text colour, black. A document has room for
/// 123 colours beside it, over its whole life; any further one is shown in the nearest there is, and is that
/// one for whoever asks.
class StyleTable {
  public:
    static constexpr int count = StyleCells::styles;

    struct Found {
        int style;
        bool isNew; ///< the style has just been given this colour
    };
    /// The style of a colour; a negative colour is the control's own text colour.
    Found StyleFor(ColorNumber color);
    ColorNumber ColorOf(int style) const { return colors_[static_cast<std::size_t>(style)]; }
    /// All styles in use are those below this number.
    int End() const { return next_; }

  private:
    int Nearest(ColorNumber color) const;

    std::array<ColorNumber, count> colors_{};
    QHash<ColorNumber, int> styles_{{0, 0}};
    int next_ = 1;
};

/// A list that runs parallel to the control's undo steps, one entry for each single insertion and deletion,
/// and holds the colours of text that is out of the document: deleted, or inserted and undone.
class UndoColors {
  public:
    enum class Kind : std::uint8_t { Insertion, Deletion };

    /// A new edit was made: what could be redone is forgotten.
    void Append(Kind kind, StyleRuns colors);
    /// The entry of the edit that is undone (redone) next, and steps over it. Null if the list does not fit
    /// the control's, which would be a defect; the text then comes back in the text colour.
    StyleRuns* StepBack(Kind kind);
    StyleRuns* StepForward(Kind kind);
    void Clear();

  private:
    struct Entry {
        StyleRuns colors;
        Kind kind;
    };

    std::vector<Entry> entries_;
    std::size_t cursor_ = 0; ///< edits before it are done, those from it on are undone
};
