#include "editor/spelling/WordCutter.h"

#include "editor/spelling/Address.h"

namespace {

constexpr qsizetype mostLetters = 100;

/// What stands around words and addresses.
bool PartsStretches(const TextCharacter& character) {
    switch (character.code) {
    case U'"':
    case U'(':
    case U')':
    case U'[':
    case U']':
    case U'{':
    case U'}':
    case U'<':
    case U'>':
    case U'\u00ab':
    case U'\u00bb':
    case U'\u201c':
    case U'\u201d':
    case TextCharacter::Unknown:
        return true;
    default:
        return character.IsBlank();
    }
}

/// The run that is being read.
class Run {
  public:
    explicit Run(qsizetype start) : start_(start), end_(start) {}

    void Add(const TextCharacter& character) {
        isWord_ = isWord_ && character.IsLetter() && letters_.size() <= mostLetters;
        if (isWord_)
            letters_ += QChar::fromUcs4(character.code);
        end_ += character.length;
    }
    void AddApostrophe(qsizetype length) {
        if (isWord_)
            letters_ += u'\'';
        end_ += length;
    }
    void AddUnseen(qsizetype length) { end_ += length; }

    qsizetype End() const { return end_; }
    bool IsWord() const { return isWord_ && letters_.size() <= mostLetters; }
    TextWord Word() && { return {start_, end_ - start_, std::move(letters_)}; }

  private:
    qsizetype start_;
    qsizetype end_;
    bool isWord_ = true;
    QString letters_;
};

bool BelongsToRun(const TextCharacter& character) {
    return character.IsLetter() || character.IsDigit() || character.code == U'_';
}

} // namespace

std::optional<TextWord> WordCutter::Next() {
    while (at_ < text_.size()) {
        if (at_ >= stretchEnd_) {
            TakeStretch();
            continue;
        }
        if (const TextCharacter here = CharacterAt(text_, at_); !BelongsToRun(here)) {
            at_ += here.length;
            continue;
        }
        if (auto word = TakeRun())
            return word;
    }
    return std::nullopt;
}

void WordCutter::TakeStretch() {
    while (at_ < text_.size()) {
        const TextCharacter here = CharacterAt(text_, at_);
        if (!PartsStretches(here))
            break;
        at_ += here.length;
    }
    stretchEnd_ = at_;
    while (stretchEnd_ < text_.size()) {
        const TextCharacter here = CharacterAt(text_, stretchEnd_);
        if (PartsStretches(here))
            break;
        stretchEnd_ += here.length;
    }
    if (IsAddress(text_.mid(at_, stretchEnd_ - at_)))
        at_ = stretchEnd_;
}

// Apostrophes and unseen characters belong to the run only where it goes on behind them.
std::optional<TextWord> WordCutter::TakeRun() {
    Run run(at_);
    while (run.End() < stretchEnd_) {
        const TextCharacter here = CharacterAt(text_, run.End());
        if (BelongsToRun(here)) {
            run.Add(here);
            continue;
        }
        const qsizetype behind = run.End() + here.length;
        if ((!here.IsApostrophe() && !here.IsUnseen()) || behind >= stretchEnd_ ||
            !BelongsToRun(CharacterAt(text_, behind)))
            break;
        if (here.IsApostrophe())
            run.AddApostrophe(here.length);
        else
            run.AddUnseen(here.length);
    }
    at_ = run.End();
    return run.IsWord() ? std::optional(std::move(run).Word()) : std::nullopt;
}
