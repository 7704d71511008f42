// What earlier runs of the program left in the recovery folder.
#pragma once

#include "app/recovery/DocumentCopy.h"
#include "app/recovery/RunCopies.h"

#include <memory>
#include <QDateTime>
#include <QStringList>
#include <vector>

struct LeftCopy {
    std::shared_ptr<RunCopies> run;
    QString file;
    QDateTime written;
    DocumentCopy copy;
};

struct LeftCopies {
    std::vector<LeftCopy> copies; ///< in the order in which their documents were first copied
    QStringList unreadable;       ///< the paths of those that can't be read, or are damaged
};

/// Takes the copies of the runs that are over. Of several of one path only the newest: no document is to be
/// open twice, and the others stay for the start after.
LeftCopies TakeLeftCopies();
