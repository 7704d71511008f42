#include "editor/aids/TagPartner.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

/// No tag that has a partner is longer, on either side of the caret.
constexpr int reach = 1 << 14;

constexpr QStringView withoutEnd[] = {
    u"area",  u"base",    u"basefont", u"bgsound", u"br",   u"col",   u"embed",  u"frame",  u"hr",    u"img",
    u"input", u"isindex", u"keygen",   u"link",    u"meta", u"param", u"source", u"spacer", u"track", u"wbr",
};

bool HasEnd(const QString& word) {
    return std::ranges::find(withoutEnd, QStringView(word)) == std::end(withoutEnd);
}

bool IsOfWord(QChar c) {
    return c.isLetterOrNumber() || c == u'-' || c == u'_' || c == u':' || c == u'.';
}

QString WordBehind(const QString& text, qsizetype bracket) {
    qsizetype start = bracket + 1;
    if (start < text.size() && text[start] == u'/')
        ++start;
    qsizetype end = start;
    while (end < text.size() && IsOfWord(text[end]))
        ++end;
    return text.sliced(start, end - start).toLower();
}

} // namespace

std::optional<TagPartners> TagPartner(const QString& text, int position) {
    PartnerSearch search(position, [&](int start, int length) { return text.mid(start, length); });
    while (search.Turn(std::numeric_limits<int>::max() / 2)) {
    }
    return search.Found();
}

PartnerSearch::PartnerSearch(int caret, TextReader read, int piece)
    : caret_(std::max(caret, 0)), read_(std::move(read)), piece_(piece), walk_(read_, piece) {
    LookAround();
}

void PartnerSearch::LookAround() {
    const int from = std::max(caret_ - reach, 0);
    const QString text = read_(from, caret_ - from + reach);
    const qsizetype caret = std::min<qsizetype>(caret_ - from, text.size());
    const bool behindTag = caret > 0 && text[caret - 1] == u'>';
    const bool beforeTag = caret < text.size() && text[caret] == u'<';
    const auto isBracket = [](QChar c) { return c == u'<' || c == u'>'; };
    const auto right = std::find_if(text.begin() + caret, text.end(), isBracket);
    const auto left = std::find_if(std::make_reverse_iterator(text.begin() + caret), text.rend(), isBracket);
    // With a ">" on the left it takes one on the right too to be inside of a tag: then the left one is in a
    // quoted value.
    const bool between = left != text.rend() && (*left == u'<' || (right != text.end() && *right == u'>'));
    over_ = !behindTag && !beforeTag && !between;
    if (over_)
        return;
    const qsizetype opening = caret > 0 ? text.lastIndexOf(u'<', caret - 1) : -1;
    const bool onLeft = behindTag || (left != text.rend() && *left == u'<');
    word_ = WordBehind(text, onLeft || !beforeTag ? std::max<qsizetype>(opening, 0) : caret);
}

void PartnerSearch::StartOver(const QString& word) {
    word_ = word;
    open_.clear();
    walk_ = TagWalk(read_, piece_);
}

bool PartnerSearch::Turn(int characters) {
    while (!over_) {
        switch (walk_.Next(characters)) {
        case TagWalk::Stop::Rest:
            return true;
        case TagWalk::Stop::End:
            over_ = true;
            break;
        case TagWalk::Stop::Tag:
            over_ = !Take(walk_.Current());
            break;
        }
    }
    return false;
}

bool PartnerSearch::Take(const TagWalk::Tag& tag) {
    if (own_)
        return TakeBehindCaret(tag);
    return tag.End() < caret_ ? TakeBeforeCaret(tag) : tag.place.start <= caret_ && TakeAtCaret(tag);
}

bool PartnerSearch::TakeBeforeCaret(const TagWalk::Tag& tag) {
    if (tag.empty || tag.word != word_)
        return true;
    if (!tag.closing)
        open_.push_back(tag.place);
    else if (!open_.empty())
        open_.pop_back();
    return true;
}

bool PartnerSearch::TakeAtCaret(const TagWalk::Tag& tag) {
    if (tag.empty || !HasEnd(tag.word))
        return false;
    if (!tag.closing) {
        own_ = tag.place;
        word_ = tag.word;
        depth_ = 1;
        return true;
    }
    if (tag.word != word_) {
        StartOver(QString(tag.word));
        return true;
    }
    if (!open_.empty())
        found_ = {tag.place, open_.back()};
    return false;
}

bool PartnerSearch::TakeBehindCaret(const TagWalk::Tag& tag) {
    if (tag.empty || tag.word != word_)
        return true;
    depth_ += tag.closing ? -1 : 1;
    if (depth_ == 0)
        found_ = {*own_, tag.place};
    return depth_ > 0;
}
