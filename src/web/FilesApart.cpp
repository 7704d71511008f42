#include "web/FilesApart.h"

#include <QtGlobal>

namespace {

const char* const engineFlags = "QTWEBENGINE_CHROMIUM_FLAGS";

} // namespace

FilesApart::FilesApart() : before_(qgetenv(engineFlags)) {
    // The last of several flags of one name holds, so the user's own can't undo it.
    qputenv(engineFlags, before_ + " --blink-settings=allowFileAccessFromFileURLs=false");
}

FilesApart::~FilesApart() {
    // The programs that the editor starts have nothing to do with it.
    before_.isNull() ? qunsetenv(engineFlags) : qputenv(engineFlags, before_);
}
