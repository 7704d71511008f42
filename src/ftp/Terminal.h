// The client in the terminal that it was started in, or with input and output from elsewhere.
#pragma once

#include "ftp/Arguments.h"
#include "ftp/Cancel.h"
#include "ftp/Screen.h"

#include <optional>

/// Whether there is anything to read commands from, or to show something on: what a program with windows
/// starts has neither.
bool HasTerminal();

class Terminal final : public Screen {
  public:
    void Line(const QString& text) override;
    void Mark() override;
    void Show(const Progress&) override {}
    bool Trusts(const Certificate& certificate) override;
    QString Ask(const QString& prompt, Echo echo) override;

    /// A line of the standard input; nothing at its end, or when Ctrl+C was pressed.
    std::optional<QString> ReadLine(const QString& prompt);

  private:
    void EndMarks();

    bool marks_ = false;
};

/// From the login to the last command; the exit code.
int RunInTerminal(const Arguments& arguments);
