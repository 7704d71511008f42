// The engine's sandbox, which keeps what a page does to its process from the rest of the machine.
#include "web/Sandbox.h"

#include <QByteArray>
#include <QtGlobal>

void DoWithoutSandboxAsRoot(unsigned int userId) {
    if (userId == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}
