#include "ftp/Begin.h"

#include "ftp/Client.h"

#include <QFile>
#include <QFileInfo>

namespace {

/// More than any list of files needs.
constexpr qint64 largestScript = 1 << 26;

} // namespace

void Begin(Client& client, Screen& screen, const Arguments& arguments) {
    if (arguments.script.isEmpty()) {
        if (arguments.server.host.isEmpty())
            return;
        const QString user = screen.Ask(QStringLiteral("User: "), Echo::Shown);
        client.LogIn(user, screen.Ask(QStringLiteral("Password: "), Echo::Hidden));
        return;
    }
    QFile file(arguments.script);
    const bool plain = QFileInfo(file).isFile() && file.size() <= largestScript;
    if (!plain || !file.open(QIODevice::ReadOnly)) {
        screen.Line(QStringLiteral("The script can't be read: %1").arg(arguments.script));
        client.Fail();
        return;
    }
    client.Run(ReadScript(file.readAll()));
}
