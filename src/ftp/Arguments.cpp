#include "ftp/Arguments.h"

namespace {

QString WithoutQuotes(const QString& text) {
    const bool quoted = text.size() > 1 && text.startsWith(u'"') && text.endsWith(u'"');
    return quoted ? text.mid(1, text.size() - 2) : text;
}

} // namespace

Arguments ReadArguments(const QStringList& words) {
    Arguments result;
    QStringList server;
    for (const QString& word : words) {
        if (word.startsWith(QStringLiteral("-s:")))
            result.script = WithoutQuotes(word.mid(3));
        else if (word == QStringLiteral("--help"))
            result.help = true;
        else if (word == QStringLiteral("--version"))
            result.version = true;
        else if (word.startsWith(u'-') && result.unknown.isEmpty())
            result.unknown = word;
        else
            server << word;
    }
    result.server = ReadAddress(server);
    return result;
}

QString Usage() {
    return QStringLiteral("Usage: tarnwick-ftp [-s:FILE] [SERVER [PORT]]\n\n"
                          "Sends files to an FTP server. FILE holds the user's name, the password and then\n"
                          "commands, a line each; when they are used up, more can be typed.\n"
                          "Works in the terminal that it is started in, and without one in a window.\n"
                          "Ends with 0 when every file went up, with 1 when one did not.\n");
}
