// A user's folders full of files of all kinds, and nothing of the machine's within reach.
#pragma once

#include "app/events/Dice.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

/// Below the test's own folder: pages and pictures, a home folder, a folder for temporary files, and the only
/// folder in which programs are found. What the program starts comes to a stand-in that ends at once.
class Playground {
  public:
    /// A new user, with settings that the dice choose.
    explicit Playground(Dice& dice);
    /// What the process is told of its surroundings is as it was before.
    ~Playground();
    Playground(const Playground&) = delete;
    Playground& operator=(const Playground&) = delete;

    /// One of the files that are there now, or one that is not.
    QString AnyFile(Dice& dice) const;
    /// Whether a path lies within.
    static bool Holds(const QString& path);
    static QString Root();
    static QString Temporary();
    static QString Browser();

  private:
    void MakeFiles() const;
    void MakeSettings(Dice& dice) const;
    void SetVariable(const char* variable, const QString& value);

    std::vector<std::pair<const char*, QByteArray>> before_; ///< a null text for one that was not set
    QString folderBefore_;
};

/// What a person may type or paste, troublesome pieces above all. Without separators it names no file of
/// another folder.
QString AnyText(Dice& dice, bool separators = true);
