#include "tools/transforms/TagRemoval.h"

#include <limits>

namespace {

/// The text as it is after each removal, without one being carried out: what stands in front of a place is
/// settled, and what stands behind it is the old text from another place on.
class Rest {
  public:
    Rest(QStringView text, int settled) : text_(text), settled_(settled), old_(settled) {}

    /// The first such character from a place on that is not settled, or -1.
    int Find(QChar character, int from) const {
        const qsizetype found = text_.indexOf(character, qsizetype{old_} + (from - settled_));
        return found < 0 ? -1 : settled_ + static_cast<int>(found - old_);
    }
    /// Takes a stretch out. All in front of it is settled from then on. Returns where it was in the old text.
    CharRange Remove(int start, int length) {
        const int oldStart = old_ + (start - settled_);
        settled_ = start;
        old_ = oldStart + length;
        return {oldStart, old_};
    }

  private:
    QStringView text_;
    int settled_;
    int old_;
};

} // namespace

TagRemoval TagsToRemove(QStringView text, int selStart, int selLength) {
    TagRemoval removal{{}, selStart, selLength};
    const auto select = [&removal](int start, int length) {
        removal.selStart = start;
        removal.selLength = length;
    };
    const bool inSelection = selLength > 0;
    int p = inSelection ? selStart : 0;
    int q = p;
    int end = inSelection ? selStart + selLength : std::numeric_limits<int>::max();
    Rest rest(text, p);
    while (p < end) {
        p = rest.Find(u'<', p);
        if (p >= 0)
            select(p, 1);
        q = rest.Find(u'>', q);
        if (q >= 0)
            select(q, 1);
        if (p < 0 || p >= end || q >= end)
            break;
        select(p, 0);
        const int length = q - p + 1;
        if (length <= 0)
            break;
        removal.gone.push_back(rest.Remove(p, length));
        end -= length;
        if (!inSelection)
            q = p;
    }
    return removal;
}
