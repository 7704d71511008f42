#include "builders/tables/ReadTable.h"

namespace {

/// A tag without its brackets, by its places in the text.
struct Span {
    qsizetype from;
    qsizetype to;
};

/// Where a word stands next, asked from places that never go back: the text is searched through once,
/// however many tags lie in one another.
class WordSearch {
  public:
    WordSearch(const QString& text, QLatin1String word) : text_(text), word_(word) {}

    /// The word's first place at or behind from; -1 where there is none.
    qsizetype From(qsizetype from) {
        if (!ended_ && place_ < from) {
            place_ = text_.indexOf(word_, from);
            ended_ = place_ < 0;
        }
        return place_;
    }
    bool IsIn(Span tag) {
        const qsizetype place = From(tag.from);
        return place >= 0 && place + word_.size() <= tag.to;
    }
    /// The one character behind the word in a tag; empty at the tag's end. Nothing in a tag without the word.
    std::optional<QString> CharacterBehind(Span tag) {
        if (!IsIn(tag))
            return std::nullopt;
        const qsizetype at = place_ + word_.size();
        const bool pair = at + 1 < tag.to && text_[at].isHighSurrogate() && text_[at + 1].isLowSurrogate();
        return at < tag.to ? text_.mid(at, pair ? 2 : 1) : QString();
    }

  private:
    const QString& text_;
    QLatin1String word_;
    qsizetype place_ = -1;
    bool ended_ = false;
};

/// The same length: no character becomes two.
QString UpperCase(QString text) {
    for (QChar& one : text)
        one = one.toUpper();
    return text;
}

class TableScan {
  public:
    TableScan(const QString& text, GridCells grid)
        : text_(text), upper_(UpperCase(text)), read_{.grid = std::move(grid)} {}

    TableRead Run() {
        while (TakeTag()) {
        }
        read_.grid.SetCols(read_.columns);
        read_.grid.SetRows(read_.grid.Rows() - 1);
        return std::move(read_);
    }

  private:
    bool TakeTag() {
        const qsizetype open = open_.From(pos_);
        const qsizetype close = open < 0 ? -1 : close_.From(open);
        if (close < 0)
            return false;
        pos_ = open + 1;
        const Span tag{pos_, close};
        if (!TakeStructure(tag) || (OpensCell(tag) && !TakeCell(close + 1)))
            return false;
        TakeAttributes(tag);
        return true;
    }

    bool TakeStructure(Span tag) {
        if (table_.IsIn(tag)) {
            if (!endTable_.IsIn(tag)) {
                read_.grid.SetRows(1);
                read_.grid.SetCols(1);
            }
            return true;
        }
        if (!endRow_.IsIn(tag))
            return true;
        firstRow_ = false;
        GridCells& grid = read_.grid;
        return grid.SetRows(grid.Rows() + 1) && grid.SetRow(grid.Row() + 1) && grid.SetCol(0);
    }

    /// Of a head cell with a width the word "WIDTH=" is what keeps it out; it is there because "WIDTH" holds
    /// a "TH".
    bool OpensCell(Span tag) {
        return (data_.IsIn(tag) && !endData_.IsIn(tag)) ||
               (head_.IsIn(tag) && !endHead_.IsIn(tag) && !width_.IsIn(tag));
    }

    bool TakeCell(qsizetype from) {
        const qsizetype to = cellEnd_.From(from);
        if (to < 0)
            return false;
        // Tags within tags end at the same place; they share one text.
        if (from != cellFrom_) {
            cellFrom_ = from;
            cell_ = text_.mid(from, to - from);
        }
        GridCells& grid = read_.grid;
        if (!grid.SetText(cell_))
            return false;
        grid.SetCols(grid.Cols() + 1);
        grid.SetCol(grid.Col() + 1);
        read_.columns += firstRow_ ? 1 : 0;
        return true;
    }

    void TakeAttributes(Span tag) {
        if (auto value = cellPadding_.CharacterBehind(tag))
            read_.cellPadding = value;
        if (auto value = border_.CharacterBehind(tag))
            read_.border = value;
        if (auto value = cellSpacing_.CharacterBehind(tag))
            read_.cellSpacing = value;
    }

    WordSearch Word(const char* word) const { return {upper_, QLatin1String(word)}; }

    const QString& text_;
    const QString upper_;
    TableRead read_;
    qsizetype pos_ = 0;
    bool firstRow_ = true;
    qsizetype cellFrom_ = -1;
    QString cell_;

    WordSearch open_ = Word("<"), close_ = Word(">"), cellEnd_ = Word("<");
    WordSearch table_ = Word("TABLE"), endTable_ = Word("/TABLE"), endRow_ = Word("/TR");
    WordSearch data_ = Word("TD"), endData_ = Word("/TD");
    WordSearch head_ = Word("TH"), endHead_ = Word("/TH"), width_ = Word("WIDTH=");
    WordSearch cellPadding_ = Word("CELLPADDING="), border_ = Word("BORDER="),
               cellSpacing_ = Word("CELLSPACING=");
};

} // namespace

TableRead ReadTable(const QString& text, GridCells grid) {
    return TableScan(text, std::move(grid)).Run();
}
