// The upload client: in the terminal that it was started in, else in a window.
#include "ftp/Arguments.h"
#include "ftp/frmClient.h"
#include "ftp/Terminal.h"

#include <cstdio>
#include <curl/curl.h>
#include <QApplication>

namespace {

constexpr int wrongUse = 2;

int Answer(const QString& text, int code) {
    std::fputs(text.toLocal8Bit().constData(), code == 0 ? stdout : stderr);
    return code;
}

int RunInWindow(int argc, char** argv, const Arguments& arguments) {
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tarnwick-ftp"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    frmClient window(arguments);
    QObject::connect(&window, &frmClient::Ended, &application,
                     [&window] { QCoreApplication::exit(window.AllWentUp() ? 0 : 1); });
    window.show();
    window.raise();
    window.activateWindow();
    window.Start();
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[]) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);
    const Arguments arguments = ReadArguments(words);
    if (arguments.help)
        return Answer(Usage(), 0);
    if (arguments.version)
        return Answer(QStringLiteral("tarnwick-ftp " TARNWICK_VERSION "\n"), 0);
    if (!arguments.unknown.isEmpty())
        return Answer(QStringLiteral("There is no option %1.\n\n").arg(arguments.unknown) + Usage(),
                      wrongUse);
    curl_global_init(CURL_GLOBAL_DEFAULT);
    return HasTerminal() ? RunInTerminal(arguments) : RunInWindow(argc, argv, arguments);
}
