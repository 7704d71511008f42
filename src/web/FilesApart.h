// Makes each file an origin of its own, as browsers do.
#pragma once

#include <QByteArray>

/// While one lives, an engine that starts keeps the pages of files apart: a page shows the files that it
/// names, but its scripts can read none of them. The engine's own attribute for this also refuses to show
/// them.
class FilesApart {
  public:
    FilesApart();
    ~FilesApart();
    FilesApart(const FilesApart&) = delete;
    FilesApart& operator=(const FilesApart&) = delete;

  private:
    QByteArray before_;
};
