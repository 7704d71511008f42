// The entries of a help file's contents and of its index, as the compiler takes them.
#pragma once

#include <QString>
#include <vector>

struct HelpEntry {
    QString name;
    QString page; ///< "index.html", with "#place" where it is one in it; empty for a mere heading
    std::vector<HelpEntry> children = {};
    bool operator==(const HelpEntry&) const = default;
};

/// Reads a sitemap: lists of objects with a name and a page, a list behind an entry holding its children.
/// What is no object is passed over, and lists that never close end with the text.
std::vector<HelpEntry> HelpEntriesOf(const QString& sitemap);
