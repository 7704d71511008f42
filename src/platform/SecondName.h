// A file held by a second name while another takes its place.
#pragma once

#include <deque>
#include <filesystem>
#include <QString>

/// For as long as this lives. None where the folder takes no new names: then no new file can replace the old
/// one either.
class SecondName {
  public:
    explicit SecondName(const QString& path);
    /// Takes over a second name that is there.
    SecondName(std::filesystem::path file, std::filesystem::path name);
    ~SecondName();
    SecondName(const SecondName&) = delete;
    SecondName& operator=(const SecondName&) = delete;

    /// Those that a program which was killed meanwhile has left.
    static std::deque<SecondName> LeftFor(const QString& path);

    QString Path() const;
    /// Whether another file has taken the first name meanwhile.
    bool IsReplaced() const;
    void PutBack();

  private:
    std::filesystem::path file_, name_;
    bool holds_ = false;
};
