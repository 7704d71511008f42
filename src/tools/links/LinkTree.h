// The tree of a page's links.
#pragma once

#include <QIcon>
#include <QString>

class QTreeWidget;
enum class LinkImage;

/// The picture of a node, drawn in the colours of the palette.
QIcon LinkIcon(LinkImage image);

/// Fills a tree anew: its root, the page of that path below it, and below that the links of its text. A page
/// of the root's own name is the root.
void FillLinkTree(QTreeWidget& tree, const QString& page, const QString& text);
