#include "web/Sandbox.h"

#include <QByteArray>
#include <QtGlobal>

void DoWithoutSandboxAsRoot(unsigned int userId) {
    if (userId == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}
