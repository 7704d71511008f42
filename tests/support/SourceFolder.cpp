// The project's own folder, for tests that read its files.
#include "support/SourceFolder.h"

QString SourceFolder() {
    return QStringLiteral(TARNWICK_SOURCE_DIR);
}
