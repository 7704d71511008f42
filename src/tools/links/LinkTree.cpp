#include "tools/links/LinkTree.h"

#include "dialogs/Icons.h"
#include "tools/links/LinkScan.h"

#include <QTreeWidget>

namespace {

const char* DrawingOf(LinkImage image) {
    switch (image) {
    case LinkImage::Files:
        return "tree-files";
    case LinkImage::Page:
        return "tree-page";
    case LinkImage::Web:
        return "tree-web";
    case LinkImage::Mail:
        return "tree-mail";
    case LinkImage::Ftp:
        return "tree-ftp";
    }
    return "";
}

QTreeWidgetItem* Node(const QString& text, const QIcon& icon) {
    auto* node = new QTreeWidgetItem(QStringList{text});
    node->setIcon(0, icon);
    return node;
}

} // namespace

QIcon LinkIcon(LinkImage image) {
    return LineIcon(QString::fromLatin1(DrawingOf(image)));
}

void FillLinkTree(QTreeWidget& tree, const QString& page, const QString& text) {
    const QString rootKey = QStringLiteral("Web Files");
    tree.clear();
    QTreeWidgetItem* root = Node(rootKey, LinkIcon(LinkImage::Files));
    tree.addTopLevelItem(root);
    QTreeWidgetItem* document = root;
    if (page != rootKey) {
        document = Node(page, LinkIcon(LinkImage::Page));
        root->addChild(document);
    }
    // One icon each, which keeps what it drew.
    const QIcon icons[] = {LinkIcon(LinkImage::Page), LinkIcon(LinkImage::Web), LinkIcon(LinkImage::Mail),
                           LinkIcon(LinkImage::Ftp)};
    QList<QTreeWidgetItem*> links;
    for (const PageLink& link : ExtractLinks(page, text))
        links << Node(link.text, icons[static_cast<int>(link.image) - static_cast<int>(LinkImage::Page)]);
    document->addChildren(links);
    root->setExpanded(true);
    document->setExpanded(true);
}
