#include "editor/autofill/AutoFillTables.h"

#include <initializer_list>
#include <QHash>

namespace {

/// What a row writes behind the attribute's name.
enum class Writes {
    Quotes,    ///< NAME=""
    OddQuotes, ///< NAME"": it leaves an odd pair of quotes in the tag
    Nothing    ///< NAME: the attribute stands by itself
};

enum Mark { Plain = 1, File = 3, Alignment = 4 };

struct Attribute {
    Attribute(const char* attributeName, Mark attributeMark = Plain)
        : name(attributeName), mark(attributeMark) {}
    Attribute(const char* attributeName, Writes attributeWrites)
        : name(attributeName), writes(attributeWrites) {}

    const char* name;
    Mark mark = Plain;
    Writes writes = Writes::Quotes;
};

QString KeyOf(const QString& name, Writes writes) {
    switch (writes) {
    case Writes::Quotes:
        return name + QStringLiteral("=\"\"");
    case Writes::OddQuotes:
        return name + QStringLiteral("\"\"");
    case Writes::Nothing:
        break;
    }
    return name;
}

AutoFillRows Attributes(std::initializer_list<Attribute> attributes) {
    AutoFillRows rows;
    rows.reserve(static_cast<qsizetype>(attributes.size()));
    for (const Attribute& attribute : attributes) {
        const QString name = QString::fromLatin1(attribute.name);
        rows.append({KeyOf(name, attribute.writes), name, attribute.mark, attribute.mark});
    }
    return rows;
}

} // namespace

AutoFillRows ListImgAttributes() {
    return Attributes({"HEIGHT",
                       "WIDTH",
                       "ALIGN",
                       "BORDER",
                       "ALT",
                       {"SRC", File},
                       "HSPACE",
                       "VSPACE",
                       "USEMAP",
                       "ISMAP",
                       "CLASS",
                       {"CONTROLS", Writes::OddQuotes},
                       {"DYNSRC", File},
                       "LOOP",
                       "LOOPDELAY",
                       "START",
                       "STYLE",
                       "ID"});
}

AutoFillRows ListAAttributes() {
    return Attributes({"CLASS", {"HREF", File}, "ID", "NAME", "STYLE", "TARGET", "TITLE"});
}

AutoFillRows ListBodyAttributes() {
    return Attributes({"ALINK",
                       {"BACKGROUND", File},
                       "BGCOLOR",
                       {"BGPROPERTIES", Writes::Nothing},
                       "CLASS",
                       "ID",
                       "LEFTMARGIN",
                       "LINK",
                       "STYLE",
                       "TEXT",
                       "TOPMARGIN",
                       "VLINK"});
}

AutoFillRows ListBlockAttributes() {
    return Attributes({"ALIGN", "CLASS", "ID", "STYLE", "TITLE"});
}

AutoFillRows ListFontAttributes() {
    return Attributes({"COLOR", "CLASS", "ID", "STYLE", "TITLE", "FACE", "SIZE"});
}

AutoFillRows ListFormAttributes() {
    return Attributes({{"ACTION", File}, "CLASS", "ENCTYPE", "ID", "METHOD", "STYLE", "TARGET", "TITLE"});
}

AutoFillRows ListFrameAttributes() {
    return Attributes({"BORDERCOLOR",
                       "FRAMEBORDER",
                       "CLASS",
                       "FRAMESPACING",
                       "ID",
                       "MARGINHEIGHT",
                       "MARGINWIDTH",
                       "NAME",
                       {"NORESIZE", Writes::Nothing},
                       "SCROLLING",
                       {"SRC", File},
                       "STYLE",
                       "TITLE"});
}

AutoFillRows ListFramesetAttributes() {
    return Attributes({"BORDERCOLOR", "BORDER", "CLASS", "COLS", "FRAMEBORDER", "FRAMESPACING", "ID", "ROWS",
                       "STYLE", "TITLE"});
}

AutoFillRows ListParamAttributes() {
    return Attributes({"NAME", "TYPE", "ID", "VALUETYPE", "VALUE"});
}

AutoFillRows ListTableAttributes() {
    return Attributes({{"BACKGROUND", File},
                       "BGCOLOR",
                       "ALIGN",
                       "BORDER",
                       "BORDERCOLOR",
                       "BORDERCOLORDARK",
                       "BORDERCOLORLIGHT",
                       "CELLPADDING",
                       "CELLSPACING",
                       "CLEAR",
                       "CLASS",
                       "COLS",
                       "FRAME",
                       {"NOWRAP", Writes::Nothing},
                       "RULES",
                       "TITLE",
                       "STYLE",
                       "ID",
                       "VALIGN",
                       "WIDTH"});
}

AutoFillRows ListCellAttributes() {
    return Attributes({{"BACKGROUND", File},
                       "BGCOLOR",
                       "ALIGN",
                       "ROWSPAN",
                       "BORDERCOLOR",
                       "BORDERCOLORDARK",
                       "BORDERCOLORLIGHT",
                       "CLASS",
                       "COLSPAN",
                       "HEIGHT",
                       {"NOWRAP", Writes::OddQuotes},
                       "TITLE",
                       "STYLE",
                       "ID",
                       "VALIGN",
                       "WIDTH"});
}

AutoFillRows ListRowAttributes() {
    return Attributes({"BGCOLOR",
                       "ALIGN",
                       "BORDERCOLOR",
                       "BORDERCOLORDARK",
                       "BORDERCOLORLIGHT",
                       "CLASS",
                       {"NOWRAP", Writes::OddQuotes},
                       "TITLE",
                       "STYLE",
                       "ID",
                       "VALIGN"});
}

AutoFillRows ListColorValues() {
    struct Color {
        const char* name;
        int icon;
    };
    AutoFillRows rows{{QStringLiteral("custom"), QStringLiteral(" custom..."), 19, 19}};
    for (const auto& [name, icon] :
         {Color{"aqua", 20}, Color{"black", 6}, Color{"blue", 7}, Color{"fuchsia", 8}, Color{"grey", 10},
          Color{"green", 9}, Color{"lime", 11}, Color{"maroon", 12}, Color{"navy", 13}, Color{"olive", 14},
          Color{"purple", 15}, Color{"red", 16}, Color{"silver", 17}, Color{"teal", 18}, Color{"white", 19},
          Color{"yellow", 5}}) {
        const QString text = QString::fromLatin1(name);
        // Purple has always shown the swatch of the row below it.
        rows.append({text, text, icon, icon == 15 ? 16 : icon});
    }
    return rows;
}

AutoFillRows ListAlignValues() {
    AutoFillRows rows;
    for (const char* name :
         {"ABSBOTTOM", "ABSMIDDLE", "BASELINE", "BOTTOM", "LEFT", "MIDDLE", "RIGHT", "TOP", "TEXTTOP"}) {
        const QString text = QString::fromLatin1(name);
        rows.append({text, text, Alignment, Alignment});
    }
    return rows;
}

AutoFillRows AttributeRows(const QString& tag) {
    using Filler = AutoFillRows (*)();
    static const QHash<QString, Filler> fillers{
        {QStringLiteral("img"), ListImgAttributes},           {QStringLiteral("a"), ListAAttributes},
        {QStringLiteral("body"), ListBodyAttributes},         {QStringLiteral("div"), ListBlockAttributes},
        {QStringLiteral("p"), ListBlockAttributes},           {QStringLiteral("font"), ListFontAttributes},
        {QStringLiteral("form"), ListFormAttributes},         {QStringLiteral("frame"), ListFrameAttributes},
        {QStringLiteral("frameset"), ListFramesetAttributes}, {QStringLiteral("param"), ListParamAttributes},
        {QStringLiteral("table"), ListTableAttributes},       {QStringLiteral("td"), ListCellAttributes},
        {QStringLiteral("th"), ListCellAttributes},           {QStringLiteral("tr"), ListRowAttributes},
    };
    const Filler filler = fillers.value(tag, nullptr);
    return filler ? filler() : AutoFillRows();
}

AutoFillRows ValueRows(const QString& attribute) {
    for (const char* name : {"bgcolor", "alink", "link", "text", "vlink", "color", "bordercolor",
                             "bordercolordark", "bordercolorlight"}) {
        if (attribute == QLatin1String(name))
            return ListColorValues();
    }
    if (attribute == QLatin1String("align"))
        return ListAlignValues();
    return {};
}
