// The links of a document, found by a plain scan for the word "href": no HTML is read, and what the scan
// takes for a link may be none.
#pragma once

#include <QString>
#include <QStringView>
#include <vector>

/// What a link is shown as: the numbers of the tree's pictures.
enum class LinkImage { Files = 1, Page = 2, Web = 3, Mail = 4, Ftp = 5 };

struct PageLink {
    QString key; ///< the link itself, or where it has no scheme the address it leads to
    QString text;
    LinkImage image;
    bool operator==(const PageLink&) const = default;
};

/// A value that the scan found, and where: positions count from 1.
struct AttributeValue {
    bool found = false;
    qsizetype position = 0; ///< of its first character, from which the next scan goes on; below 2 with none
    qsizetype end = 0;      ///< of its last character
    QString value = {};
};

/// Finds a name from a position on, in any place and in just this case, and the value between the next two
/// double quotes, wherever those lie. A value that ends in no file name gets a "/" behind it.
AttributeValue FindAttributeValue(QStringView name, QStringView text, qsizetype position);

/// Where links without a scheme lead: the folder of a page, and the part of it that a leading "/" stands for.
struct LinkBase {
    explicit LinkBase(const QString& page);
    /// The address of a link without a scheme.
    QString Address(const QString& link) const;

    QString base;
    QString root;
};

/// The links of a page of that path, in lower case, in the order in which they are found. Of those with one
/// key there is the first only; there is none whose key is the path. One pass over the text.
std::vector<PageLink> ExtractLinks(const QString& page, const QString& text);
