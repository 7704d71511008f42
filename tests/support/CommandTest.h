// Runs the commands that write HTML by their names, on a document whose caret and selection are marks in its
// text.
#pragma once

#include "support/TestFrame.h"

#include <functional>
#include <gtest/gtest.h>

/// The bytes of a literal as characters of code page 1252.
QString Latin(const char* bytes);

/// At least so many bytes of lines that hold about everything that is troublesome in a text.
QString TroublesomeText(int bytes);

using Stretches = std::vector<std::pair<QString, int>>;

/// The fixture fills the frame's commands.
class CommandTest : public testing::Test {
  protected:
    static constexpr int textColor = 0;
    static constexpr int tagColor = 16711680;
    static constexpr int linkColor = 32768;
    static constexpr int imageColor = 255;
    static constexpr int commentColor = 8421504;

    void Use(bool lower, bool colored);
    /// Runs a body for both cases of tags, with colouring off and on. A failure names the command and the
    /// settings.
    void UnderAllSettings(const char* command, const std::function<void(bool lower, bool colored)>& body);

    /// "[" and "]" mark the selection, "|" the caret.
    void Put(const char* marked) { frame.SetMarked(Latin(marked)); }
    void Run(const char* command) { frame.Commands().Run(Latin(command)); }
    QString Marked() { return frame.Marked(); }

    /// Runs a command that wraps: with nothing selected, and over a selection. written has a "|" between what
    /// goes in front and what goes behind. Both are expected in a colour while colouring is on, and in that
    /// of the text around them while it is off.
    void ExpectWraps(const char* command, const QString& written, int color = tagColor);
    /// Runs a command on a selection of 10 MB of troublesome text and expects what it makes of that: work for
    /// each line or tag would take minutes. Input boxes are answered by an "x".
    void ExpectOnLongSelection(const char* command,
                               const std::function<QString(const QString& selection)>& expected);

    TestFrame frame;

  private:
    bool colored_ = true;
};
