#include "web/BodyEnd.h"

#include "web/PageBlank.h"

#include <vector>

namespace {

/// Walks the text backwards, so that each place knows at once what comes behind it: looked at forwards, every
/// end tag and every comment would have to be followed to the text's end once more.
class TailScan {
  public:
    explicit TailScan(QStringView text) : text_(text), closed_(Places(text)), closable_(Places(text)) {
        closed_[Place(text.size())] = closable_[Place(text.size())] = true;
    }

    qsizetype FirstEndOfBody(qsizetype from) {
        qsizetype first = text_.size();
        for (qsizetype at = text_.size() - 1; at >= from; --at) {
            if (Has(at + 4, u"-->"))
                commentEnd_ = at + 7;
            const qsizetype behind = Behind(at);
            const qsizetype html = EndTag(at, u"</html");
            closed_[Place(at)] = behind > 0 && closed_[Place(behind)];
            closable_[Place(at)] =
                (behind > 0 && closable_[Place(behind)]) || (html > 0 && closed_[Place(html)]);
            const qsizetype body = EndTag(at, u"</body");
            if (body > 0 && closable_[Place(body)])
                first = at;
        }
        return first;
    }

  private:
    static size_t Place(qsizetype at) { return static_cast<size_t>(at); }
    static size_t Places(QStringView text) { return Place(text.size() + 1); }

    bool Has(qsizetype at, QStringView word) const {
        return at < text_.size() && text_[at] == word.front() &&
               text_.sliced(at).startsWith(word, Qt::CaseInsensitive);
    }

    /// The position behind the blank or the comment that begins here; 0 where neither does.
    qsizetype Behind(qsizetype at) const {
        if (IsPageBlank(text_[at]))
            return at + 1;
        return Has(at, u"<!--") ? commentEnd_ : 0;
    }

    /// The position behind the end tag of this name that begins here; 0 where none does.
    qsizetype EndTag(qsizetype at, QStringView opening) const {
        if (!Has(at, opening))
            return 0;
        at += opening.size();
        while (at < text_.size() && IsPageBlank(text_[at]))
            ++at;
        return at < text_.size() && text_[at] == u'>' ? at + 1 : 0;
    }

    QStringView text_;
    /// Whether the page may end so from here: with blanks and comments alone; with the html tag's end too.
    std::vector<bool> closed_, closable_;
    /// The end of the comment that a "<!--" at the current place begins; 0 where nothing closes it.
    qsizetype commentEnd_ = 0;
};

} // namespace

qsizetype BodyEnd(QStringView text, qsizetype from) {
    return TailScan(text).FirstEndOfBody(from);
}
