#include "editor/spelling/SpelledAs.h"

#include "editor/spelling/LetterEntities.h"
#include "editor/spelling/TextCharacter.h"

#include <QList>

namespace {

/// The first apostrophe as the text has it, "&rsquo;" or the like; a straight one where there is none.
QString ApostropheOf(QStringView written) {
    for (qsizetype at = 0; at < written.size();) {
        const TextCharacter here = CharacterAt(written, at);
        if (here.IsApostrophe())
            return written.mid(at, here.length).toString();
        at += here.length;
    }
    return QStringLiteral("'");
}

bool HasEntity(QStringView written) {
    for (qsizetype at = 0; at < written.size();) {
        const TextCharacter here = CharacterAt(written, at);
        if (written[at] == u'&' && here.length > 1)
            return true;
        at += here.length;
    }
    return false;
}

} // namespace

QString SpelledAs(const QString& written, const QString& correction) {
    const bool entities = HasEntity(written);
    const QString apostrophe = ApostropheOf(written);
    QString spelled;
    for (const char32_t code : correction.toUcs4()) {
        if (code == U'\'')
            spelled += apostrophe;
        else if (code > 127 && entities)
            spelled += EntityFor(code);
        else
            spelled += QChar::fromUcs4(code);
    }
    return spelled;
}
