#include "editor/aids/TagWalk.h"

#include <algorithm>
#include <QStringView>
#include <utility>

namespace {

/// What ends a stretch in which no tag is looked for, by number.
enum HiddenEnd { Comment, Declaration, Instruction, ServerScript, DoubleQuote, SingleQuote, FirstRaw };

constexpr QStringView ends[] = {
    u"-->", u">", u"?>", u"%>", u"\"", u"'", u"</script", u"</style", u"</textarea", u"</title", u"</xmp",
};

constexpr int longestWord = 64;
/// So much must be at hand behind a "<" to tell what it begins.
constexpr int lookAhead = longestWord + 4;

bool IsLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool IsOfWord(QChar c) {
    return IsLetter(c) || (c >= u'0' && c <= u'9') || c == u'-' || c == u'_' || c == u':' || c == u'.';
}

bool IsBlank(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n' || c == u'\f';
}

/// The number of the end of an element that holds no tags, or -1.
int RawEndOf(const QString& word) {
    for (int end = FirstRaw; end < static_cast<int>(std::size(ends)); ++end)
        if (ends[end].sliced(2) == word)
            return end;
    return -1;
}

} // namespace

TagWalk::TagWalk(TextReader read, int piece) : read_(std::move(read)), pieceLength_(piece) {
    tag_.word.reserve(longestWord);
}

TagWalk::Stop TagWalk::Next(int& characters) {
    while (state_ != State::Done) {
        if (PieceIsUsedUp() && !ReadOn(characters))
            return Stop::Rest;
        switch (state_) {
        case State::Text:
            GoInText();
            break;
        case State::InTag:
            if (GoInTag())
                return Stop::Tag;
            break;
        case State::Hidden:
            GoInHidden();
            break;
        case State::Done:
            break;
        }
    }
    return Stop::End;
}

bool TagWalk::PieceIsUsedUp() const {
    if (lastPiece_)
        return false;
    const int left = PieceEnd() - at_;
    // A piece that begins here has all that may be asked for.
    return left == 0 || (left < lookAhead && at_ != pieceStart_);
}

bool TagWalk::ReadOn(int& characters) {
    if (characters <= 0)
        return false;
    pieceStart_ = at_;
    piece_ = read_(at_, pieceLength_);
    lastPiece_ = piece_.size() < pieceLength_;
    characters -= pieceLength_;
    return true;
}

void TagWalk::GoInText() {
    const qsizetype bracket = piece_.indexOf(u'<', at_ - pieceStart_);
    if (bracket < 0) {
        at_ = PieceEnd();
        state_ = lastPiece_ ? State::Done : State::Text;
        return;
    }
    at_ = pieceStart_ + static_cast<int>(bracket);
    if (!PieceIsUsedUp())
        BeginAtBracket();
}

void TagWalk::BeginAtBracket() {
    const QStringView ahead = QStringView(piece_).sliced(at_ - pieceStart_);
    const auto next = [&](qsizetype i) { return i < ahead.size() ? ahead[i] : QChar(); };
    // Two dashes may be those of the end: "<!-->".
    if (next(1) == u'!')
        return Hide(ahead.startsWith(u"<!--") ? Comment : Declaration, State::Text);
    if (next(1) == u'?')
        return Hide(Instruction, State::Text);
    if (next(1) == u'%')
        return Hide(ServerScript, State::Text);
    const bool closing = next(1) == u'/';
    if (IsLetter(next(closing ? 2 : 1)))
        BeginTag(closing);
    else
        ++at_;
}

void TagWalk::BeginTag(bool closing) {
    tag_.place = {at_, 0};
    tag_.closing = closing;
    tag_.word.resize(0);
    for (at_ += closing ? 2 : 1; at_ < PieceEnd() && IsOfWord(At(at_)); ++at_) {
        if (tag_.word.size() == longestWord)
            break;
        tag_.word += At(at_).toLower();
    }
    lastInTag_ = u'<';
    inValue_ = false;
    slash_ = false;
    state_ = State::InTag;
}

bool TagWalk::GoInTag() {
    for (const int end = PieceEnd(); at_ < end; ++at_) {
        const QChar c = At(at_);
        if (IsBlank(c)) {
            inValue_ = false;
            continue;
        }
        if (c == u'<') {
            state_ = State::Text;
            return false;
        }
        if (c == u'>') {
            FinishTag();
            return true;
        }
        const bool valueBegins = std::exchange(lastInTag_, c) == u'=';
        if (valueBegins && (c == u'"' || c == u'\'')) {
            slash_ = false;
            Hide(c == u'"' ? DoubleQuote : SingleQuote, State::InTag);
            return false;
        }
        inValue_ = inValue_ || valueBegins;
        slash_ = c == u'/' && !inValue_;
    }
    if (lastPiece_)
        state_ = State::Done;
    return false;
}

void TagWalk::FinishTag() {
    ++at_;
    tag_.place.length = at_ - tag_.place.start;
    tag_.empty = slash_ && !tag_.closing;
    state_ = State::Text;
    if (const int end = RawEndOf(tag_.word); end >= 0 && !tag_.closing && !tag_.empty)
        Hide(end, State::Text);
}

void TagWalk::Hide(int end, State then) {
    const bool atBracket = state_ == State::Text && at_ < PieceEnd() && At(at_) == u'<' && end < FirstRaw;
    // A bracket's own end is looked for behind its mark, a quote's behind the quote.
    hiddenStart_ = at_ + (atBracket ? 2 : end < FirstRaw ? 1 : 0);
    at_ = hiddenStart_;
    hiddenEnd_ = end;
    behindHidden_ = then;
    state_ = State::Hidden;
    if ((missingEnds_ & 1U << end) != 0)
        NoEnd();
}

void TagWalk::GoInHidden() {
    const QStringView end = ends[hiddenEnd_];
    const qsizetype found = piece_.indexOf(end, at_ - pieceStart_, Qt::CaseInsensitive);
    if (found < 0) {
        if (lastPiece_) {
            missingEnds_ |= 1U << hiddenEnd_;
            NoEnd();
            return;
        }
        at_ = std::max(at_, PieceEnd() - lookAhead + 1);
        return;
    }
    at_ = pieceStart_ + static_cast<int>(found);
    const auto length = static_cast<int>(end.size());
    const qsizetype behind = found + length;
    if (hiddenEnd_ < FirstRaw) {
        at_ += length;
        state_ = behindHidden_;
    } else if (behind == piece_.size() && !lastPiece_) {
        return; // what stands behind it comes with the next piece
    } else if (behind < piece_.size() && IsOfWord(piece_[behind])) {
        ++at_;
    } else {
        state_ = State::Text;
    }
}

void TagWalk::NoEnd() {
    at_ = hiddenStart_;
    state_ = behindHidden_;
    // The text goes on where the search for the end began.
    if (at_ < pieceStart_) {
        lastPiece_ = false;
        pieceStart_ = at_;
        piece_.resize(0);
    }
}
