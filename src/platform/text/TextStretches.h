// Short stretches of text for the control, which measures a stretch of one style number at a cost that grows
// with the square of its length, and remembers what short ones measure.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The control's style numbers, here called cells. Each style (a colour, see StyleTable) has two that look
/// the same; they take turns along the text, and where they change a stretch ends. The numbers 32 to 39 are
/// the control's own.
class StyleCells {
  public:
    /// How many styles there is room for.
    static constexpr int styles = (256 - 8) / 2;

    static constexpr char First(int style) { return static_cast<char>(2 * style + (style < 16 ? 0 : 8)); }
    /// The other cell of the same style.
    static constexpr char Twin(char cell) { return static_cast<char>(cell ^ 1); }
    static constexpr bool SameStyle(char a, char b) { return a == b || a == Twin(b); }
    static constexpr int StyleOf(char cell) {
        const int number = static_cast<unsigned char>(cell);
        return (number < 32 ? number : number - 8) / 2;
    }
};

/// Bytes of UTF-8 text and the cell of each.
struct CellText {
    QByteArray text;
    QByteArray cells;
};

/// Hands out the cells of a text from left to right. A stretch ends behind blanks, behind a quote, "=", "/"
/// or ">", and at the latest where it is long enough: what pages repeat is then measured once. A cut is only
/// where the text looks the same with it (MayCutAt): letters that join, combining marks and words from right
/// to left stay whole. Cuts inside words ask of the control that it wraps lines at blanks alone; in its other
/// mode it takes each change of cells for a place to wrap.
class StretchCutter {
  public:
    /// In bytes. The longest is what costs least in pages of tables and of prose; the control remembers up
    /// to 29.
    static constexpr int longest = 8;
    static constexpr int longestBeyondAscii = 24;
    static constexpr int shortest = 2;

    /// The text goes on behind this one, of which no more than the last longest + 1 bytes are looked at.
    explicit StretchCutter(const CellText& before = {});
    /// Adds the cells of the next piece of text, all of it of one style.
    void Append(QByteArrayView text, int style, QByteArray& cells);

  private:
    char cell_ = 0;
    char last_ = '\0'; ///< the byte that the stretch ends with so far
    int length_ = 0;   ///< of the stretch so far; 0 if nothing stands in front
};

/// A part of a text, in bytes from its start.
struct TextPart {
    int start;
    int end;
    bool operator==(const TextPart&) const = default;
};

/// Edits let stretches melt into one another. Where the one around a place is longer than two should be, the
/// part in its middle that is to get the other cell; else an empty part, and also where nothing may be cut.
TextPart PartToTurn(const CellText& around, int place);
