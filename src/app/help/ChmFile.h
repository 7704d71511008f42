// A compiled help file, read through chmlib.
#pragma once

#include <memory>
#include <optional>
#include <QByteArray>
#include <QString>
#include <QStringList>

struct chmFile;

class ChmFile {
  public:
    /// Opens the file of a path; one that is missing or no help file leaves it closed.
    explicit ChmFile(const QString& path);
    bool IsOpen() const { return file_ != nullptr; }
    /// What lies at a path inside ("/index.html"), whole; nothing where there is no such thing, or where it
    /// can't be unpacked.
    std::optional<QByteArray> Read(const QString& path) const;
    /// The paths of all that its maker put in, the compiler's own tables left out.
    QStringList Paths() const;

  private:
    struct Closer {
        void operator()(chmFile* file) const;
    };
    std::unique_ptr<chmFile, Closer> file_;
};
