#include "app/help/HelpFile.h"

#include <QFileInfo>

QString BuiltHelpFile() {
    const QString path = QStringLiteral(TARNWICK_HELP_FILE);
    return QFileInfo(path).isFile() ? path : QString();
}
