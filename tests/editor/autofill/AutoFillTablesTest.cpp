// Every row of every auto-fill list: what it shows, what it writes, its picture.
#include "editor/autofill/AutoFillTables.h"

#include "editor/autofill/DropDownIcons.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <QStringList>

namespace {

/// A list as its rows would be written: "NAME=" writes NAME="", `NAME"` writes NAME"", "NAME" writes NAME.
struct ListRow {
    const char* tags;
    AutoFillRows (*filler)();
    const char* rows;
};

const ListRow attributeLists[] = {
    {"img", ListImgAttributes,
     "HEIGHT= WIDTH= ALIGN= BORDER= ALT= SRC= HSPACE= VSPACE= USEMAP= ISMAP= CLASS= CONTROLS\" DYNSRC= LOOP= "
     "LOOPDELAY= "
     "START= STYLE= ID="},
    {"a", ListAAttributes, "CLASS= HREF= ID= NAME= STYLE= TARGET= TITLE="},
    {"body", ListBodyAttributes,
     "ALINK= BACKGROUND= BGCOLOR= BGPROPERTIES CLASS= ID= LEFTMARGIN= LINK= STYLE= TEXT= TOPMARGIN= VLINK="},
    {"div p", ListBlockAttributes, "ALIGN= CLASS= ID= STYLE= TITLE="},
    {"font", ListFontAttributes, "COLOR= CLASS= ID= STYLE= TITLE= FACE= SIZE="},
    {"form", ListFormAttributes, "ACTION= CLASS= ENCTYPE= ID= METHOD= STYLE= TARGET= TITLE="},
    {"frame", ListFrameAttributes,
     "BORDERCOLOR= FRAMEBORDER= CLASS= FRAMESPACING= ID= MARGINHEIGHT= MARGINWIDTH= NAME= NORESIZE "
     "SCROLLING= SRC= STYLE= "
     "TITLE="},
    {"frameset", ListFramesetAttributes,
     "BORDERCOLOR= BORDER= CLASS= COLS= FRAMEBORDER= FRAMESPACING= ID= ROWS= STYLE= TITLE="},
    {"param", ListParamAttributes, "NAME= TYPE= ID= VALUETYPE= VALUE="},
    {"table", ListTableAttributes,
     "BACKGROUND= BGCOLOR= ALIGN= BORDER= BORDERCOLOR= BORDERCOLORDARK= BORDERCOLORLIGHT= CELLPADDING= "
     "CELLSPACING= CLEAR= "
     "CLASS= COLS= FRAME= NOWRAP RULES= TITLE= STYLE= ID= VALIGN= WIDTH="},
    {"td th", ListCellAttributes,
     "BACKGROUND= BGCOLOR= ALIGN= ROWSPAN= BORDERCOLOR= BORDERCOLORDARK= BORDERCOLORLIGHT= CLASS= COLSPAN= "
     "HEIGHT= NOWRAP\" "
     "TITLE= STYLE= ID= VALIGN= WIDTH="},
    {"tr", ListRowAttributes,
     "BGCOLOR= ALIGN= BORDERCOLOR= BORDERCOLORDARK= BORDERCOLORLIGHT= CLASS= NOWRAP\" TITLE= STYLE= ID= "
     "VALIGN="},
};

QString TextOf(QString row) {
    return row.remove(u'=').remove(u'"');
}

QString KeyOf(const QString& row) {
    if (row.endsWith(u'='))
        return row + QStringLiteral("\"\"");
    if (row.endsWith(u'"'))
        return row + u'"';
    return row;
}

QStringList Words(const char* words) {
    return QString::fromLatin1(words).split(u' ');
}

TEST(AutoFillTables, EveryAttributeRow) {
    for (const ListRow& list : attributeLists) {
        const AutoFillRows rows = list.filler();
        const QStringList expected = Words(list.rows);
        ASSERT_EQ(rows.size(), expected.size()) << list.tags;
        for (int i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i].Text, TextOf(expected[i])) << list.tags;
            EXPECT_EQ(rows[i].Key, KeyOf(expected[i])) << list.tags;
            EXPECT_FALSE(ImageList1(rows[i].SmallIcon).isNull()) << list.tags << i;
        }
    }
}

TEST(AutoFillTables, EveryTagHasItsList) {
    for (const ListRow& list : attributeLists) {
        for (const QString& tag : Words(list.tags)) {
            const AutoFillRows rows = AttributeRows(tag);
            const QStringList expected = Words(list.rows);
            ASSERT_EQ(rows.size(), expected.size()) << tag.toStdString();
            for (int i = 0; i < rows.size(); ++i)
                EXPECT_EQ(rows[i].Key, KeyOf(expected[i])) << tag.toStdString();
        }
    }
}

TEST(AutoFillTables, OtherTagsHaveNone) {
    for (const char* tag : {"", "h1", "IMG", "br", "span", "/table", "!--", "imgs", "tablex"})
        EXPECT_TRUE(AttributeRows(QString::fromLatin1(tag)).isEmpty()) << tag;
}

TEST(AutoFillTables, MarksOfTheImageList) {
    for (const AutoFillRow& row : ListImgAttributes()) {
        const bool file = row.Text == QStringLiteral("SRC") || row.Text == QStringLiteral("DYNSRC");
        EXPECT_EQ(row.Icon, file ? 3 : 1) << row.Text.toStdString();
        EXPECT_EQ(row.SmallIcon, row.Icon) << row.Text.toStdString();
    }
}

TEST(AutoFillTables, Colors) {
    struct Row {
        const char* key;
        const char* text;
        int icon;
        int smallIcon;
    };
    const Row expected[] = {
        {"custom", " custom...", 19, 19}, {"aqua", "aqua", 20, 20},     {"black", "black", 6, 6},
        {"blue", "blue", 7, 7},           {"fuchsia", "fuchsia", 8, 8}, {"grey", "grey", 10, 10},
        {"green", "green", 9, 9},         {"lime", "lime", 11, 11},     {"maroon", "maroon", 12, 12},
        {"navy", "navy", 13, 13},         {"olive", "olive", 14, 14},   {"purple", "purple", 15, 16},
        {"red", "red", 16, 16},           {"silver", "silver", 17, 17}, {"teal", "teal", 18, 18},
        {"white", "white", 19, 19},       {"yellow", "yellow", 5, 5}};
    const AutoFillRows rows = ListColorValues();
    ASSERT_EQ(rows.size(), 17);
    for (int i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].Key, QString::fromLatin1(expected[i].key));
        EXPECT_EQ(rows[i].Text, QString::fromLatin1(expected[i].text));
        EXPECT_EQ(rows[i].Icon, expected[i].icon) << expected[i].key;
        EXPECT_EQ(rows[i].SmallIcon, expected[i].smallIcon) << expected[i].key;
    }
}

TEST(AutoFillTables, Alignments) {
    const QStringList expected = Words("ABSBOTTOM ABSMIDDLE BASELINE BOTTOM LEFT MIDDLE RIGHT TOP TEXTTOP");
    const AutoFillRows rows = ListAlignValues();
    ASSERT_EQ(rows.size(), expected.size());
    for (int i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].Text, expected[i]);
        EXPECT_EQ(rows[i].Key, expected[i]);
        EXPECT_EQ(rows[i].Icon, 4);
        EXPECT_EQ(rows[i].SmallIcon, 4);
    }
}

TEST(AutoFillTables, AttributesWithValues) {
    for (const char* name : {"bgcolor", "alink", "link", "text", "vlink", "color", "bordercolor",
                             "bordercolordark", "bordercolorlight"})
        EXPECT_EQ(ValueRows(QString::fromLatin1(name)).size(), 17) << name;
    EXPECT_EQ(ValueRows(QStringLiteral("align")).size(), 9);
    for (const char* name : {"", "valign", "height", "ALIGN", "COLOR", "background", "title"})
        EXPECT_TRUE(ValueRows(QString::fromLatin1(name)).isEmpty()) << name;
}

TEST(DropDownIcons, SwatchesShowTheirColors) {
    // A swatch has the colour of the row that names it; only purple's row shows another's.
    for (const AutoFillRow& row : ListColorValues()) {
        if (row.Key == QStringLiteral("custom"))
            continue;
        // The row "grey" is spelled as the web spells "gray".
        const QString name = row.Key == QStringLiteral("grey") ? QStringLiteral("gray") : row.Key;
        EXPECT_EQ(SwatchColor(row.Icon), QColor(name)) << name.toStdString();
    }
}

TEST(DropDownIcons, AreDrawnAtEachPixelRatio) {
    for (const int index : {1, 3, 4}) {
        EXPECT_FALSE(ImageList1(index).isNull()) << index;
    }
    for (const int index : {0, 2, -1, 21, 100})
        EXPECT_TRUE(ImageList1(index).isNull()) << index;
    for (int index = 5; index <= 20; ++index) {
        for (const qreal ratio : {1.0, 1.5, 2.0, 3.0}) {
            const QPixmap pixmap = ImageList1(index).pixmap(QSize(16, 16), ratio);
            const int side = qRound(16 * ratio);
            ASSERT_EQ(pixmap.size(), QSize(side, side)) << index << " at " << ratio;
            const QImage image = pixmap.toImage();
            EXPECT_EQ(image.pixelColor(side / 2, side / 2), SwatchColor(index)) << index << " at " << ratio;
            EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << index << " at " << ratio;
        }
    }
}

} // namespace
