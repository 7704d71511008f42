#include "styles/sheet/Catalogue.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr auto colors =
    "aqua black blue fuchsia gray green lime maroon navy olive purple red silver teal white yellow";
constexpr auto own = "Add your own value(s):";
constexpr auto url = "Type in a URL if not 'none':";
constexpr auto length = "Type in a length or percentage if not 'auto':";
constexpr auto padding = "Type in a length or percentage if not '0':";
constexpr auto widths = "medium thin thick";

// The spellings reach the sheet: Color has its capital, and the height of positioning its blank.
constexpr PropertyRow catalogue[] = {
    {.name = "--FONT--"},
    {.name = "font-family", .families = true},
    {.name = "font-style", .values = "normal italic oblique"},
    {.name = "font-variant", .values = "normal small-caps"},
    {.name = "font-weight", .values = "normal bold bolder lighter 100 200 300 400 500 600 700 800 900"},
    {.name = "font-size", .values = "xx-small x-small small medium large x-large xx-large larger smaller"},
    {.name = "font", .prompt = own, .title = "FONT"},

    {.name = "--COLOR & BACKGROUND--"},
    {.name = "Color", .values = colors},
    {.name = "background-color", .values = colors},
    {.name = "background-image", .prompt = url, .values = "none"},
    {.name = "background-repeat", .values = "repeat repeat-x repeat-y no-repeat"},
    {.name = "background-attachment", .values = "scroll fixed"},
    {.name = "background-position", .values = "top center bottom left center right"},
    {.name = "background", .prompt = url},

    {.name = "--TEXT--"},
    {.name = "word-spacing", .values = "normal"},
    {.name = "letter-spacing", .values = "normal"},
    {.name = "text-decoration", .values = "none underline overline line-through blink"},
    {.name = "vertical-align", .values = "baseline sub super top text-top middle bottom text-bottom"},
    {.name = "text-transform", .values = "none capitalize uppercase lowercase"},
    {.name = "text-align", .values = "left right center justify"},
    {.name = "text-indent", .prompt = own},
    {.name = "line-height", .prompt = "Type in a number or percentage if not 'normal':", .values = "normal"},

    {.name = "--BOX--"},
    {.name = "margin-top", .prompt = length, .values = "auto"},
    {.name = "margin-right", .prompt = length, .values = "auto"},
    {.name = "margin-bottom", .prompt = length, .values = "auto"},
    {.name = "margin-left", .prompt = length, .values = "auto"},
    {.name = "margin", .prompt = own},
    {.name = "padding-top", .prompt = padding, .values = "0"},
    {.name = "padding-right", .prompt = padding, .values = "0"},
    {.name = "padding-bottom", .prompt = padding, .values = "0"},
    {.name = "padding-left", .prompt = padding, .values = "0"},
    {.name = "padding", .prompt = padding, .values = "0"},
    {.name = "border-top-width", .values = widths},
    {.name = "border-right-width", .values = widths},
    {.name = "border-bottom-width", .values = widths},
    {.name = "border-left-width", .values = widths},
    {.name = "border-width", .prompt = own},
    {.name = "border-color", .values = colors},
    {.name = "border-style", .values = "none dotted dashed solid double groove ridge inset outset"},
    {.name = "border-top", .prompt = own},
    {.name = "border-right", .prompt = own},
    {.name = "border-bottom", .prompt = own},
    {.name = "border-left", .prompt = own},
    {.name = "border", .prompt = own},
    {.name = "width", .prompt = length, .values = "auto"},
    {.name = "height", .prompt = length, .values = "auto"},
    {.name = "float", .values = "none left right"},
    {.name = "clear", .values = "none left right both"},

    {.name = "--CLASSIFICATION--"},
    {.name = "display", .values = "block inline list-item none"},
    {.name = "white-space", .values = "normal pre nowrap"},
    {.name = "list-style-type",
     .values = "disc circle square decimal lower-roman upper-roman lower-alpha upper-alpha none"},
    {.name = "list-style-image", .prompt = url, .values = "none"},
    {.name = "list-style-position", .values = "outside inside"},
    {.name = "list-style", .prompt = own},

    {.name = "--POSITIONING--"},
    {.name = "position", .values = "static absolute relative"},
    {.name = "left", .prompt = length, .values = "auto"},
    {.name = "top", .prompt = length, .values = "auto"},
    {.name = "width", .prompt = length, .values = "auto"},
    {.name = "height ", .prompt = length, .values = "auto", .title = "height"},
    {.name = "clip", .prompt = "Type in a shape if not 'auto':", .values = "auto"},
    {.name = "overflow", .values = "visible hidden scroll auto"},
    {.name = "z-index", .prompt = "Type in a integer if not 'auto':", .values = "auto"},
    {.name = "visibility", .values = "inherit visible hidden"},
};

} // namespace

QStringList StyleElements() {
    return QStringLiteral(
               "H1 H2 H3 H4 H5 H6 BODY FORM UL LI IMG BR CENTER P HR STRONG I U PRE DIV A:link A:visited "
               "A:active")
        .split(u' ');
}

QString PropertyRow::Title() const {
    return QString::fromLatin1(*title ? title : name);
}

QStringList PropertyRow::Values() const {
    return QString::fromLatin1(values).split(u' ', Qt::SkipEmptyParts);
}

std::span<const PropertyRow> PropertyCatalogue() {
    return catalogue;
}

const PropertyRow* FindProperty(const QString& name) {
    const auto* found = std::ranges::find_if(
        catalogue, [&name](const PropertyRow& row) { return name == QLatin1String(row.name); });
    return found == std::end(catalogue) ? nullptr : found;
}
