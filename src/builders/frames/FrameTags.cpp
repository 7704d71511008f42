#include "builders/frames/FrameTags.h"

#include "dialogs/BuildTag.h"

namespace {

const QString lineEnd = QStringLiteral("\r\n");

/// The attribute's start, up to its opening quote.
QString SizesStart(FrameDirection direction) {
    switch (direction) {
    case FrameDirection::Across:
        return QStringLiteral(" COLS=\"");
    case FrameDirection::Up:
        return QStringLiteral(" ROWS=\"");
    case FrameDirection::None:
        break;
    }
    return QString();
}

QString SizeList(const FramesetFields& fields) {
    QStringList list;
    if (fields.direction != FrameDirection::None)
        for (const QString& size : fields.sizes)
            if (!size.isEmpty())
                list << (fields.percent ? size + u'%' : size);
    return list.join(u',');
}

} // namespace

QString FrameTag(const FrameFields& fields, TagCase tagCase) {
    return BuildTag(QStringLiteral("<FRAME"),
                    {TagPart::Quoted(QStringLiteral("SRC"), fields.src),
                     TagPart::Quoted(QStringLiteral("NAME"), fields.name),
                     TagPart::Quoted(QStringLiteral("MARGINWIDTH"), fields.marginWidth),
                     TagPart::Quoted(QStringLiteral("MARGINHEIGHT"), fields.marginHeight),
                     TagPart::Word(QStringLiteral(" SCROLLING=\"YES\""), fields.scrolling == Scrolling::Yes),
                     TagPart::Word(QStringLiteral(" SCROLLING=\"NO\""), fields.scrolling == Scrolling::No),
                     TagPart::Word(QStringLiteral(" NORESIZE"), fields.noResize),
                     TagPart::Word(QStringLiteral(" FRAMEBORDER=\"NO\""), fields.noBorder),
                     TagPart::Plain(QStringLiteral("BORDERCOLOR=#"), fields.borderColor)},
                    tagCase);
}

TagPair FramesetTag(const FramesetFields& fields, TagCase tagCase) {
    QString open = InCase(QStringLiteral("<FRAMESET") + SizesStart(fields.direction), tagCase);
    open += SizeList(fields) + u'"';
    if (!fields.border.isEmpty())
        open += InCase(QStringLiteral(" BORDER="), tagCase) + fields.border;
    open += u'>';
    for (const QString& frame : fields.frames)
        open += lineEnd + frame;
    return {open + lineEnd, InCase(QStringLiteral("</FRAMESET>"), tagCase)};
}
