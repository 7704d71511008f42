// The catalogue, row by row.
#include "styles/sheet/Catalogue.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

struct Expected {
    const char* name;
    const char* prompt;
    const char* title;
    std::vector<const char*> values;
};

#define SIXTEEN                                                                                              \
    {                                                                                                        \
        "aqua", "black", "blue", "fuchsia", "gray", "green", "lime", "maroon", "navy", "olive", "purple",    \
            "red", "silver", "teal", "white", "yellow"                                                       \
    }

const std::vector<Expected> expected = {
    {"--FONT--", "", "", {}},
    {"font-family", "", "", {}},
    {"font-style", "", "", {"normal", "italic", "oblique"}},
    {"font-variant", "", "", {"normal", "small-caps"}},
    {"font-weight",
     "",
     "",
     {"normal", "bold", "bolder", "lighter", "100", "200", "300", "400", "500", "600", "700", "800", "900"}},
    {"font-size",
     "",
     "",
     {"xx-small", "x-small", "small", "medium", "large", "x-large", "xx-large", "larger", "smaller"}},
    {"font", "Add your own value(s):", "FONT", {}},
    {"--COLOR & BACKGROUND--", "", "", {}},
    {"Color", "", "", SIXTEEN},
    {"background-color", "", "", SIXTEEN},
    {"background-image", "Type in a URL if not 'none':", "background-image", {"none"}},
    {"background-repeat", "", "", {"repeat", "repeat-x", "repeat-y", "no-repeat"}},
    {"background-attachment", "", "", {"scroll", "fixed"}},
    {"background-position", "", "", {"top", "center", "bottom", "left", "center", "right"}},
    {"background", "Type in a URL if not 'none':", "background", {}},
    {"--TEXT--", "", "", {}},
    {"word-spacing", "", "", {"normal"}},
    {"letter-spacing", "", "", {"normal"}},
    {"text-decoration", "", "", {"none", "underline", "overline", "line-through", "blink"}},
    {"vertical-align",
     "",
     "",
     {"baseline", "sub", "super", "top", "text-top", "middle", "bottom", "text-bottom"}},
    {"text-transform", "", "", {"none", "capitalize", "uppercase", "lowercase"}},
    {"text-align", "", "", {"left", "right", "center", "justify"}},
    {"text-indent", "Add your own value(s):", "text-indent", {}},
    {"line-height", "Type in a number or percentage if not 'normal':", "line-height", {"normal"}},
    {"--BOX--", "", "", {}},
    {"margin-top", "Type in a length or percentage if not 'auto':", "margin-top", {"auto"}},
    {"margin-right", "Type in a length or percentage if not 'auto':", "margin-right", {"auto"}},
    {"margin-bottom", "Type in a length or percentage if not 'auto':", "margin-bottom", {"auto"}},
    {"margin-left", "Type in a length or percentage if not 'auto':", "margin-left", {"auto"}},
    {"margin", "Add your own value(s):", "margin", {}},
    {"padding-top", "Type in a length or percentage if not '0':", "padding-top", {"0"}},
    {"padding-right", "Type in a length or percentage if not '0':", "padding-right", {"0"}},
    {"padding-bottom", "Type in a length or percentage if not '0':", "padding-bottom", {"0"}},
    {"padding-left", "Type in a length or percentage if not '0':", "padding-left", {"0"}},
    {"padding", "Type in a length or percentage if not '0':", "padding", {"0"}},
    {"border-top-width", "", "", {"medium", "thin", "thick"}},
    {"border-right-width", "", "", {"medium", "thin", "thick"}},
    {"border-bottom-width", "", "", {"medium", "thin", "thick"}},
    {"border-left-width", "", "", {"medium", "thin", "thick"}},
    {"border-width", "Add your own value(s):", "border-width", {}},
    {"border-color", "", "", SIXTEEN},
    {"border-style",
     "",
     "",
     {"none", "dotted", "dashed", "solid", "double", "groove", "ridge", "inset", "outset"}},
    {"border-top", "Add your own value(s):", "border-top", {}},
    {"border-right", "Add your own value(s):", "border-right", {}},
    {"border-bottom", "Add your own value(s):", "border-bottom", {}},
    {"border-left", "Add your own value(s):", "border-left", {}},
    {"border", "Add your own value(s):", "border", {}},
    {"width", "Type in a length or percentage if not 'auto':", "width", {"auto"}},
    {"height", "Type in a length or percentage if not 'auto':", "height", {"auto"}},
    {"float", "", "", {"none", "left", "right"}},
    {"clear", "", "", {"none", "left", "right", "both"}},
    {"--CLASSIFICATION--", "", "", {}},
    {"display", "", "", {"block", "inline", "list-item", "none"}},
    {"white-space", "", "", {"normal", "pre", "nowrap"}},
    {"list-style-type",
     "",
     "",
     {"disc", "circle", "square", "decimal", "lower-roman", "upper-roman", "lower-alpha", "upper-alpha",
      "none"}},
    {"list-style-image", "Type in a URL if not 'none':", "list-style-image", {"none"}},
    {"list-style-position", "", "", {"outside", "inside"}},
    {"list-style", "Add your own value(s):", "list-style", {}},
    {"--POSITIONING--", "", "", {}},
    {"position", "", "", {"static", "absolute", "relative"}},
    {"left", "Type in a length or percentage if not 'auto':", "left", {"auto"}},
    {"top", "Type in a length or percentage if not 'auto':", "top", {"auto"}},
    {"width", "Type in a length or percentage if not 'auto':", "width", {"auto"}},
    {"height ", "Type in a length or percentage if not 'auto':", "height", {"auto"}},
    {"clip", "Type in a shape if not 'auto':", "clip", {"auto"}},
    {"overflow", "", "", {"visible", "hidden", "scroll", "auto"}},
    {"z-index", "Type in a integer if not 'auto':", "z-index", {"auto"}},
    {"visibility", "", "", {"inherit", "visible", "hidden"}},
};

TEST(Catalogue, HasTheseElements) {
    EXPECT_EQ(StyleElements(),
              (QStringList{"H1", "H2", "H3",  "H4",  "H5",     "H6",        "BODY",    "FORM",
                           "UL", "LI", "IMG", "BR",  "CENTER", "P",         "HR",      "STRONG",
                           "I",  "U",  "PRE", "DIV", "A:link", "A:visited", "A:active"}));
}

TEST(Catalogue, HasTheseRows) {
    const auto rows = PropertyCatalogue();
    ASSERT_EQ(rows.size(), expected.size());
    ASSERT_EQ(rows.size(), 68U);
    int headings = 0;
    for (size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(expected[i].name);
        EXPECT_STREQ(rows[i].name, expected[i].name);
        EXPECT_STREQ(rows[i].prompt, expected[i].prompt);
        if (rows[i].Asks()) {
            EXPECT_EQ(rows[i].Title(), QString::fromLatin1(expected[i].title));
        }
        QStringList values;
        for (const char* value : expected[i].values)
            values << QString::fromLatin1(value);
        EXPECT_EQ(rows[i].Values(), values);
        EXPECT_EQ(rows[i].families, QLatin1String(rows[i].name) == u"font-family");
        headings += QLatin1String(rows[i].name).startsWith(u"--") ? 1 : 0;
    }
    EXPECT_EQ(headings, 6);
}

TEST(Catalogue, FindsTheFirstRowOfExactlyThatName) {
    const auto rows = PropertyCatalogue();
    EXPECT_EQ(FindProperty(QStringLiteral("width")), &rows[47]);
    EXPECT_STREQ(FindProperty(QStringLiteral("height"))->name, "height");
    EXPECT_STREQ(FindProperty(QStringLiteral("height "))->name, "height ");
    for (const char* name : {"color", "COLOR", "Width", " width", "width ", "", "--font--", "no such"})
        EXPECT_EQ(FindProperty(QString::fromLatin1(name)), nullptr) << name;
}

} // namespace
