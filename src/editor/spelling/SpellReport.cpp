#include "editor/spelling/SpellReport.h"

QString SpellReport(int wordsChecked, int wordsReplaced) {
    return QStringLiteral("Spellcheck complete!\n %1 Words Checked\n %2 Words Replaced")
        .arg(wordsChecked)
        .arg(wordsReplaced);
}
