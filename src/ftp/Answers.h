// What the client reads out of a server's answers.
#pragma once

#include <curl/curl.h>
#include <QByteArray>
#include <QList>

/// The folder that the last answer 257 names in double quotes, one that is doubled being a quote of its name;
/// empty where none does, or the name holds control characters.
QByteArray FolderIn(const QList<QByteArray>& answers);

/// Tells answers from other text: a line of one begins with a number of three digits, or goes on until a line
/// begins with that number again and a blank.
class AnswerForm {
  public:
    /// Whether the next line can be part of an answer.
    bool Takes(const QByteArray& line);

  private:
    QByteArray end_; ///< what ends the answer of several lines that is under way; empty between answers
};

/// A transfer failed because the server does not take a connection from outside.
bool RefusesPassive(CURLcode code, const QList<QByteArray>& answers);
