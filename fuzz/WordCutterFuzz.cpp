// Cuts any text into words: they stand in order, each in the text as it reads, and a correction by the same
// letters reads the same.
#include "editor/spelling/WordCutter.h"

#include "editor/spelling/Sentence.h"
#include "editor/spelling/SpelledAs.h"
#include "platform/values/Cp1252.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

void Require(bool holds) {
    if (!holds)
        std::abort();
}

/// The letters of a stretch, read the plainest way.
QString Letters(QStringView written) {
    QString letters;
    for (qsizetype at = 0; at < written.size();) {
        const TextCharacter here = CharacterAt(written, at);
        Require(here.length > 0 && at + here.length <= written.size());
        if (here.IsApostrophe())
            letters += u'\'';
        else if (here.IsLetter())
            letters += QChar::fromUcs4(here.code);
        else
            Require(here.IsUnseen());
        at += here.length;
    }
    return letters;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    QString units(static_cast<qsizetype>(size / 2), Qt::Uninitialized);
    std::memcpy(units.data(), data, size / 2 * 2);
    for (const QString& text : {Cp1252::FromBytes(bytes), QString::fromUtf8(bytes), units}) {
        qsizetype last = 0;
        WordCutter cutter(text);
        while (const auto word = cutter.Next()) {
            Require(word->start >= last && word->length > 0 && word->start + word->length <= text.size());
            last = word->start + word->length;
            const QString written = text.mid(word->start, word->length);
            Require(Letters(written) == word->letters);
            Require(!word->letters.startsWith(u'\'') && !word->letters.endsWith(u'\''));
            const Sentence sentence = SentenceAround(text, word->start, word->length);
            Require(sentence.text.mid(sentence.wordStart, sentence.wordLength) == written);
            // What was written with the letters that stood there reads the same.
            Require(Letters(SpelledAs(written, word->letters)) == word->letters);
        }
    }
    return 0;
}
