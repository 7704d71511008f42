#include "platform/text/RtfReader.h"

#include "platform/values/Cp1252.h"

#include <algorithm>
#include <array>
#include <optional>
#include <QStringConverter>
#include <utility>

namespace {

bool IsLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

int HexDigit(QChar c) {
    if (IsDigit(c))
        return c.unicode() - u'0';
    if (c >= u'a' && c <= u'f')
        return c.unicode() - u'a' + 10;
    if (c >= u'A' && c <= u'F')
        return c.unicode() - u'A' + 10;
    return -1;
}

/// What a group's closing brace gives back to the text behind it.
struct GroupState {
    enum class Target { Text, ColorTable, Nothing };
    Target target = Target::Text;
    ColorNumber color = -1;
    int fallbackLength = 1; ///< characters behind \uN that stand for it in a reader without Unicode
};

struct ControlWord {
    QStringView name;
    std::optional<int> number;
};

/// The bytes that are read so far, with room ahead: a page comes in thousands of short pieces, and growing
/// for each would be most of the work.
class Utf8Text {
  public:
    /// Room for so many bytes behind the text. What is written there counts once End has moved.
    char* Room(qsizetype size) {
        if (bytes_.size() - used_ < size)
            bytes_.resize(std::max(used_ + size, 2 * bytes_.size()));
        return bytes_.data() + used_;
    }
    void End(const char* end) { used_ = end - bytes_.constData(); }
    void Append(QByteArrayView text) { End(std::copy(text.begin(), text.end(), Room(text.size()))); }
    QByteArray Take() {
        bytes_.truncate(used_);
        return std::move(bytes_);
    }

  private:
    QByteArray bytes_;
    qsizetype used_ = 0;
};

class Reader {
  public:
    Reader(const QString& rtf, RawLineEnds lineEnds, CharacterSet characters)
        : rtf_(rtf), keepLineEnds_(lineEnds == RawLineEnds::Keep), characters_(characters) {
        text_.Room(rtf.size());
        for (const char c : {'\\', '{', '}'})
            special_[static_cast<std::size_t>(c)] = true;
        special_['\r'] = special_['\n'] = !keepLineEnds_;
    }

    RtfText Read() {
        while (pos_ < rtf_.size() && !ended_)
            Step();
        EndSurrogate();
        return {text_.Take(), std::move(runs_)};
    }

  private:
    void Step() {
        const QChar c = rtf_[pos_];
        if (c == u'{') {
            EndSurrogate();
            groups_.push_back(state_);
            ++pos_;
            groupStart_ = true;
            return;
        }
        if (c == u'}')
            CloseGroup();
        else if (c == u'\\')
            ReadControl();
        else
            ReadPlain();
        groupStart_ = false;
    }

    void CloseGroup() {
        EndSurrogate();
        ++pos_;
        skip_ = 0;
        // The brace that closes the outermost group ends the document, as does one that closes none.
        if (groups_.size() <= 1) {
            ended_ = true;
            return;
        }
        state_ = groups_.back();
        groups_.pop_back();
    }

    bool IsSpecial(QChar c) const { return c < u'\x80' && special_[c.unicode()]; }

    void ReadPlain() {
        if (!keepLineEnds_ && (rtf_[pos_] == u'\r' || rtf_[pos_] == u'\n')) {
            ++pos_;
            return;
        }
        if (skip_ > 0) {
            --skip_;
            ++pos_;
            return;
        }
        if (state_.target == GroupState::Target::Text && rtf_[pos_] < u'\x80') {
            EndSurrogate();
            CopyAscii();
            return;
        }
        const qsizetype start = pos_;
        while (pos_ < rtf_.size() && !IsSpecial(rtf_[pos_]))
            ++pos_;
        const QStringView piece = QStringView(rtf_).mid(start, pos_ - start);
        if (state_.target == GroupState::Target::ColorTable)
            ReadTableText(piece);
        else
            Put(piece);
    }

    /// A text is mostly this, so here is where the time goes: each character is looked at and copied in one
    /// step, as one byte, up to the next that means something or takes more than a byte.
    void CopyAscii() {
        const QChar* const from = rtf_.constData() + pos_;
        const QChar* const end = rtf_.constData() + rtf_.size();
        char* to = text_.Room(end - from);
        const QChar* at = from;
        for (; at != end && *at < u'\x80' && !special_[at->unicode()]; ++at)
            *to++ = static_cast<char>(at->unicode());
        text_.End(to);
        pos_ += at - from;
        CountRun(static_cast<int>(at - from));
    }

    void ReadControl() {
        ++pos_;
        if (pos_ == rtf_.size())
            return;
        const QChar c = rtf_[pos_];
        if (IsLetter(c)) {
            ControlWord word = ReadWord();
            ApplyWord(word);
            return;
        }
        if (c == u'\\' || c == u'{' || c == u'}') {
            ++pos_;
            PutOne(c);
        } else if (c == u'\'') {
            ++pos_;
            ReadHex();
        } else if (c == u'\r' || c == u'\n') {
            ReadEscapedLineEnd();
        } else {
            // \* marks a group that a reader who does not know it passes over; other symbols mean nothing
            // here.
            if (c == u'*' && groupStart_)
                state_.target = GroupState::Target::Nothing;
            ++pos_;
        }
    }

    /// RTF takes a backslash before a raw line end as \par; where line ends are text it stands as it is.
    void ReadEscapedLineEnd() {
        if (keepLineEnds_)
            return;
        if (rtf_[pos_] == u'\r' && pos_ + 1 < rtf_.size() && rtf_[pos_ + 1] == u'\n')
            ++pos_;
        ++pos_;
        PutAscii("\r\n");
    }

    void ReadHex() {
        const int high = pos_ < rtf_.size() ? HexDigit(rtf_[pos_]) : -1;
        const int low = pos_ + 1 < rtf_.size() ? HexDigit(rtf_[pos_ + 1]) : -1;
        if (high < 0 || low < 0)
            return;
        pos_ += 2;
        PutOne(Cp1252::FromCode(high * 16 + low));
    }

    ControlWord ReadWord() {
        const qsizetype start = pos_;
        while (pos_ < rtf_.size() && IsLetter(rtf_[pos_]))
            ++pos_;
        ControlWord word{QStringView(rtf_).mid(start, pos_ - start), std::nullopt};
        const bool negative = pos_ + 1 < rtf_.size() && rtf_[pos_] == u'-' && IsDigit(rtf_[pos_ + 1]);
        if (negative)
            ++pos_;
        if (pos_ < rtf_.size() && IsDigit(rtf_[pos_])) {
            int value = 0;
            for (; pos_ < rtf_.size() && IsDigit(rtf_[pos_]); ++pos_)
                value = std::min(value * 10 + (rtf_[pos_].unicode() - u'0'), 1'000'000);
            word.number = negative ? -value : value;
        }
        if (pos_ < rtf_.size() && rtf_[pos_] == u' ')
            ++pos_;
        return word;
    }

    void ApplyWord(const ControlWord& word) {
        if (word.name == u"u" && word.number) {
            PutUnit(*word.number);
            return;
        }
        EndSurrogate();
        if (word.name == u"par" || word.name == u"line")
            PutAscii("\r\n");
        else if (word.name == u"tab")
            PutAscii("\t");
        else if (word.name == u"cf")
            state_.color = TableColor(word.number.value_or(0));
        else if (word.name == u"uc")
            state_.fallbackLength = std::max(word.number.value_or(1), 0);
        else if (state_.target == GroupState::Target::ColorTable)
            ReadTableWord(word);
        else if (groupStart_)
            OpenDestination(word.name);
    }

    /// A word directly behind an opening brace may say that its group is no text of the document.
    void OpenDestination(QStringView name) {
        if (name == u"colortbl") {
            state_.target = GroupState::Target::ColorTable;
            table_.clear();
            entry_.reset();
        } else if (name == u"fonttbl" || name == u"stylesheet" || name == u"info" || name == u"pict") {
            state_.target = GroupState::Target::Nothing;
        }
    }

    void ReadTableWord(const ControlWord& word) {
        const int shift = word.name == u"red"     ? 0
                          : word.name == u"green" ? 8
                          : word.name == u"blue"  ? 16
                                                  : -1;
        if (shift < 0)
            return;
        const int value = std::clamp(word.number.value_or(0), 0, 255);
        entry_ = (entry_.value_or(0) & ~(0xff << shift)) | value << shift;
    }

    void ReadTableText(QStringView piece) {
        for (const QChar c : piece) {
            if (c != u';')
                continue;
            table_.push_back(entry_.value_or(-1));
            entry_.reset();
        }
    }

    ColorNumber TableColor(int index) const {
        const bool known = index >= 0 && index < static_cast<int>(table_.size());
        if (known)
            return table_[static_cast<std::size_t>(index)];
        return table_.empty() ? -1 : table_.front();
    }

    /// One unit of a \uN: half of a pair waits for the other half.
    void PutUnit(int number) {
        const QChar unit(static_cast<char16_t>(number & 0xffff));
        skip_ = 0;
        if (unit.isLowSurrogate() && !highSurrogate_.isNull()) {
            const QChar pair[] = {highSurrogate_, unit};
            highSurrogate_ = QChar();
            Put(QStringView(pair, 2));
        } else {
            EndSurrogate();
            if (unit.isHighSurrogate())
                highSurrogate_ = unit;
            else
                Put(QStringView(&unit, 1));
        }
        skip_ = state_.fallbackLength;
    }

    void EndSurrogate() {
        if (highSurrogate_.isNull())
            return;
        const QChar lone = highSurrogate_;
        highSurrogate_ = QChar();
        Put(QStringView(&lone, 1));
    }

    void PutOne(QChar c) {
        if (skip_ > 0) {
            --skip_;
        } else if (c < u'\x80') {
            // A script is made of escaped braces: they go the short way.
            const auto byte = static_cast<char>(c.unicode());
            PutAscii(QByteArrayView(&byte, 1));
        } else {
            Put(QStringView(&c, 1));
        }
    }

    void Put(QStringView piece) {
        if (state_.target != GroupState::Target::Text || piece.isEmpty())
            return;
        EndSurrogate();
        if (characters_ == CharacterSet::Unicode) {
            PutUnicode(piece);
            return;
        }
        const QByteArray bytes = Cp1252::Accept(piece).toUtf8();
        text_.Append(bytes);
        CountRun(static_cast<int>(bytes.size()));
    }

    void PutUnicode(QStringView piece) {
        QStringEncoder encoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
        char* const from = text_.Room(encoder.requiredSpace(piece.size()));
        char* const end = encoder.appendToBuffer(from, piece);
        text_.End(end);
        CountRun(static_cast<int>(end - from));
    }

    void PutAscii(QByteArrayView piece) {
        if (state_.target != GroupState::Target::Text)
            return;
        EndSurrogate();
        text_.Append(piece);
        CountRun(static_cast<int>(piece.size()));
    }

    /// The last bytes of the text are in the colour that holds now.
    void CountRun(int length) {
        if (!runs_.empty() && runs_.back().color == state_.color)
            runs_.back().length += length;
        else
            runs_.push_back({length, state_.color});
    }

    const QString& rtf_;
    const bool keepLineEnds_;
    const CharacterSet characters_;
    std::array<bool, 128> special_{}; ///< the characters that end a stretch of plain text
    qsizetype pos_ = 0;
    bool ended_ = false;
    bool groupStart_ = false; ///< nothing but \* stands between the last opening brace and here
    GroupState state_;
    std::vector<GroupState> groups_;
    std::vector<ColorNumber> table_;
    std::optional<ColorNumber> entry_;
    int skip_ = 0;
    QChar highSurrogate_;
    Utf8Text text_;
    std::vector<RtfRun> runs_;
};

} // namespace

RtfText ReadRtf(const QString& rtf, RawLineEnds rawLineEnds, CharacterSet characters) {
    return Reader(rtf, rawLineEnds, characters).Read();
}
