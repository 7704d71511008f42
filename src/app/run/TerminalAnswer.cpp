#include "app/run/TerminalAnswer.h"

#include "app/run/Version.h"

#include <string_view>

std::string TerminalAnswer(int argc, const char* const* argv) {
    if (argc != 2)
        return {};
    const std::string_view word = argv[1];
    const std::string version = "The Tarnwick " + Version::Dotted().toStdString() + "\n";
    if (word == "--version" || word == "-v")
        return version;
    if (word == "--help" || word == "-h")
        return version + "Usage: tarnwick [FILE]\n\n"
                         "Opens FILE in the editor for HTML source, or in the copy that runs already.\n"
                         "The whole command line is the name of one file: it may hold blanks.\n\n"
                         "  -h, --help     tells this and ends\n"
                         "  -v, --version  tells the version and ends\n";
    return {};
}
