// Finds a web browser on this machine, to offer it where the user has set none.
#pragma once

#include <QString>
#include <QStringList>

namespace BrowserLookup {

/// The full path of the first of the usual browsers that lies in one of the folders, or in the folders of
/// PATH where none are given; empty where there is none.
QString Find(const QStringList& folders = {});

} // namespace BrowserLookup
