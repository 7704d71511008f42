#include "styles/layers/LayerText.h"

#include "editor/color/BuildAttribute.h"

namespace {

const QString lineEnd = QStringLiteral("\r\n");

QString Bare(const QString& words, TagCase tagCase) {
    return BuildAttribute(TagPart::Word(words), tagCase).text;
}

} // namespace

QString MissingIn(const LayerClass& layer) {
    if (layer.name.isEmpty())
        return QStringLiteral("Please give the layer a name.");
    if (layer.top.isEmpty())
        return QStringLiteral("Please enter a value for 'TOP'.");
    if (layer.left.isEmpty())
        return QStringLiteral("Please enter a value for 'LEFT'.");
    return QString();
}

QString ClassText(const LayerClass& layer, TagCase tagCase) {
    QString text = u'.' + layer.name + QStringLiteral(" {POSITION: ") + layer.position +
                   QStringLiteral(";\r\nTOP: ") + layer.top + QStringLiteral(";\r\nLEFT: ") + layer.left +
                   u';';
    if (!layer.right.isEmpty())
        text += QStringLiteral("\r\nRIGHT: ") + layer.right + u';';
    text += u'}';
    if (!layer.addStyle)
        return text;
    return u'<' + Bare(QStringLiteral("STYLE TYPE="), tagCase) + QStringLiteral("\"text/css\">\r\n") + text +
           lineEnd + Bare(QStringLiteral("</STYLE>"), tagCase) + lineEnd;
}

TagPair LayerTag(const Layer& layer, TagCase tagCase) {
    const QString open =
        Bare(QStringLiteral("<DIV"), tagCase) +
        BuildAttribute(TagPart::Quoted(QStringLiteral("CLASS"), layer.className), tagCase).text +
        BuildAttribute(TagPart::Quoted(QStringLiteral("ID"), layer.id), tagCase).text +
        Bare(QStringLiteral(" STYLE="), tagCase) + QStringLiteral("\"visibility: ") + layer.visibility +
        QStringLiteral("; z-index: ") + layer.zIndex + QStringLiteral("\">\r\n");
    return {open, lineEnd + Bare(QStringLiteral("</DIV>"), tagCase)};
}
