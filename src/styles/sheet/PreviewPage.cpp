#include "styles/sheet/PreviewPage.h"

#include "styles/sheet/Catalogue.h"

// The pseudo-classes of links stand in the tags' own names: the sample has no real link.
QString StyleSample(const QString& element) {
    if (!StyleElements().contains(element))
        return QString();
    const QString open = u'<' + element + QStringLiteral(">Style ") + element;
    const bool empty = element == u"IMG" || element == u"BR" || element == u"HR";
    return empty ? open : open + QStringLiteral("</") + element + u'>';
}

QString PreviewPage(const QString& element, const QString& rule) {
    return QStringLiteral("<HTML><HEAD><STYLE type=text/css><!--") + rule +
           QStringLiteral("--></STYLE></HEAD><BODY>") + StyleSample(element) +
           QStringLiteral("</BODY></HTML>");
}
