// The words that a language has, and what a writer may have meant by one that it has not.
#pragma once

#include <memory>
#include <QSet>
#include <QString>
#include <QStringList>

class DictionaryText;
class Hunspell;
struct DictionaryFiles;

/// May be made and used in any thread, in one at a time. Loading and suggesting take longer than a person who
/// types should be kept waiting.
class Dictionary {
  public:
    /// Nothing where the files hold no dictionary that can be used.
    static std::unique_ptr<Dictionary> Load(const DictionaryFiles& files);
    /// The first one that can be used of those that a path and the system offer (FindDictionaries), with the
    /// words of a list, if it can be read, as further ones. Nothing where there is none.
    static std::unique_ptr<Dictionary> LoadBest(const QString& standard, const QString& custom);
    ~Dictionary();

    /// Whether it holds a word, in plain letters, in this case of letters.
    bool Knows(const QString& word);
    /// The best first; often none.
    QStringList Suggestions(const QString& word);
    /// One word more, for as long as this lives.
    void Add(const QString& word);

  private:
    Dictionary(std::unique_ptr<Hunspell> engine, std::unique_ptr<DictionaryText> text);

    std::unique_ptr<Hunspell> engine_;
    std::unique_ptr<DictionaryText> text_;
    QSet<QString> seen_; ///< words known to be known: a page has most of its words many times
};
