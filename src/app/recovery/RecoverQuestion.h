// The words in which a start asks about the pages that were not saved.
#pragma once

#include <QStringList>

/// One question for all: their paths, an empty one for a page without a file. Long paths are cut in the
/// middle, and of many pages only the first are named.
QString RecoverQuestion(const QStringList& paths);
