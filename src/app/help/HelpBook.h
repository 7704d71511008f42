// The program's help: its pages, their contents and index, and the search through them.
#pragma once

#include "app/help/ChmFile.h"
#include "app/help/HelpEntries.h"

/// A page that a search found.
struct HelpHit {
    QString page;
    QString title;
    bool operator==(const HelpHit&) const = default;
};

class HelpBook {
  public:
    explicit HelpBook(const QString& path) : file_(path) {}

    bool IsOpen() const { return file_.IsOpen(); }
    /// A page or picture by its name ("index.html"), nothing where there is none.
    std::optional<QByteArray> Read(const QString& name) const { return file_.Read(u'/' + name); }
    bool Has(const QString& page) const { return Read(page).has_value(); }
    /// The tree of its contents.
    std::vector<HelpEntry> Contents() const;
    /// Its keywords, in the order of the alphabet.
    std::vector<HelpEntry> Keywords() const;
    /// The page of a keyword, in any case; empty where there is none.
    QString PageOf(const QString& keyword) const;
    /// The pages that hold all words of a line, those first whose title does; none for a line without words.
    std::vector<HelpHit> Search(const QString& words) const;

  private:
    std::vector<HelpEntry> EntriesIn(QLatin1String ending) const;

    ChmFile file_;
};

/// The title of a page, and its text without tags, blanks and line ends made one blank each.
QString HelpTitleOf(const QString& page);
QString HelpTextOf(const QString& page);

/// The first of some folders that holds the help file, as its path; empty where none does.
QString FindHelpFile(const QStringList& folders);
/// Where the help file may lie: in the program's folder, beside the program, or where it was installed.
QStringList HelpFolders();
