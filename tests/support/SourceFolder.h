// The project's own folder, for tests that read its files.
#pragma once

#include <QString>

/// The top folder of the project as it was built; its sources lie in its "src".
QString SourceFolder();
