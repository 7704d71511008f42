// The client's command line.
#pragma once

#include "ftp/ServerAddress.h"

#include <QStringList>

struct Arguments {
    QString script; ///< the file behind "-s:", empty without one
    ServerAddress server;
    bool help = false;
    bool version = false;
    QString unknown; ///< an option that there is none of
};

/// Reads `-s:"file" server [port]`, without the program's own name. The quotes may have gone to a shell.
Arguments ReadArguments(const QStringList& words);

/// What --help tells.
QString Usage();
