#include "ftp/ServerAddress.h"

#include <QRegularExpression>

namespace {

int PortOf(const QString& digits) {
    constexpr int last = 65535;
    bool isNumber = false;
    const int port = digits.toInt(&isNumber);
    return isNumber && port > 0 && port <= last ? port : ServerAddress::StandardPort;
}

} // namespace

QString ServerAddress::Text() const {
    const QString shown = host.contains(u':') ? u'[' + host + u']' : host;
    return port == StandardPort ? shown : shown + u':' + QString::number(port);
}

ServerAddress ReadAddress(const QStringList& words) {
    static const QRegularExpression form(
        QStringLiteral("^(?:ftp://)?(?:\\[([^\\]]*)\\]|([^:/]*)|([^/]*:[^/]*:[^/]*))(?::([0-9]*))?(?:/.*)?$"),
        QRegularExpression::CaseInsensitiveOption);
    ServerAddress address;
    const auto match = form.match(words.value(0).trimmed());
    if (!match.hasMatch())
        address.host = words.value(0).trimmed();
    for (int part = 1; part <= 3 && address.host.isEmpty(); ++part)
        address.host = match.captured(part);
    address.port = PortOf(words.size() > 1 ? words[1] : match.captured(4));
    return address;
}
