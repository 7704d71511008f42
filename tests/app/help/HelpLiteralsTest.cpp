// What the help says that a dialog writes is what it writes.
#include "app/help/HelpBook.h"
#include "app/help/HelpFile.h"
#include "builders/applets/AppletTags.h"
#include "builders/applets/EmbedTag.h"
#include "builders/forms/FormTags.h"
#include "builders/frames/FrameTags.h"
#include "builders/links/ImageTag.h"
#include "builders/links/LinkTag.h"
#include "builders/lists/ListText.h"
#include "builders/page/BodyTag.h"
#include "builders/page/ColumnTags.h"
#include "builders/page/FontTag.h"
#include "builders/page/RuleTag.h"
#include "builders/tables/TableTag.h"
#include "styles/layers/LayerText.h"
#include "styles/sheet/Rule.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr TagCase upper = TagCase::AsWritten;

QString Around(const TagPair& tags, const QString& selection = {}) {
    return tags.open + selection + tags.close;
}

QString TableOfTwoCells() {
    CellTags cells(2, 1);
    cells.Set(0, 0, CellTag({.text = u"One"_s}, upper));
    cells.Set(1, 0, CellTag({.text = u"Two"_s, .align = u"CENTER"_s}, upper));
    return Around(TableTag({.rows = u"1"_s, .columns = u"2"_s, .borderWidth = u"1"_s}, cells, upper));
}

struct Literal {
    const char* page;
    QString text;
};

std::vector<Literal> TagsOfPages() {
    return {
        {"frmBody",
         BodyTag({u"#FFFFFF"_s, u"#000000"_s, u"#0000FF"_s, u"#800080"_s, u"#FF0000"_s, u"images/back.gif"_s},
                 upper)},
        {"frmBody", BodyTag({}, upper)},
        {"frmHRInput", RuleTag({u"50"_s, true, u"2"_s, u"CENTER"_s, true}, upper)},
        {"frmHRInput", RuleTag({}, upper)},
        {"frmHRInput", RuleTag({.percent = true}, upper)},
        {"frmFont",
         Around(FontTag({u"3"_s, u"#FF0000"_s, WithFace(u"Arial"_s, u"Verdana"_s)}, upper), u"words"_s)},
        {"frmMulti", Around(MultiColumnTag({u"2"_s, u"10"_s, u"600"_s}, upper), u"words"_s)},
        {"frmSpacer", SpacerTag({.kind = SpacerKind::Horizontal, .size = u"20"_s}, upper)},
        {"frmSpacer", SpacerTag({.kind = SpacerKind::Vertical, .size = u"20"_s}, upper)},
        {"frmSpacer", SpacerTag({SpacerKind::Block, u""_s, u"40"_s, u"20"_s, u"LEFT"_s}, upper)},
        {"frmSpacer", SpacerTag({}, upper)},
        {"frmEmbed", EmbedTag({.width = u"320"_s, .height = u"240"_s, .url = u"tune.mid"_s}, upper)},
        {"frmParam", ParamTag({u"speed"_s, u"10"_s}, upper)},
        {"frmJava", AppletTag({.code = u"Clock.class"_s, .width = u"200"_s, .height = u"100"_s}, upper).open},
        {"frmBulletList", ListText(ListKind::Bullets, {u"One"_s, u"Two"_s}, upper)},
        {"frmBulletList", ListText(ListKind::Numbers, {u"One"_s, u"Two"_s}, upper)},
        {"frmBulletList", ListText(ListKind::Definitions, {u"One"_s, u"Two"_s}, upper)},
        {"frmGraphicLink",
         ImageTag({.url = u"boat.png"_s, .alt = u"A boat"_s, .width = u"480"_s, .height = u"200"_s}, upper)},
        {"frmGraphicLink", ImageTag({.linkMe = u"page.html"_s}, upper).section(u'>', 0, 0) + u'>'},
        {"frmLinks", LinkTag({.url = u"walks.html"_s, .anchor = u"beck"_s, .target = u"main"_s}, upper).open},
        {"frmLinks", LinkTag({.protocol = u"mailto:"_s, .url = u"house@example.org"_s}, upper).open},
        {"frmLinks", LinkTag({}, upper).open},
        {"frmTable", TableOfTwoCells()},
        {"frmGridInput", CellTag({.text = u"text"_s, .align = u"CENTER"_s, .color = u"FF0000"_s}, upper)},
        {"frmForm", FormTag({.action = u"/cgi-bin/ask"_s, .method = u"POST"_s}, upper).open},
        {"frmForm", TextTag(u"TEXT"_s, {.name = u"who"_s, .size = u"30"_s}, upper)},
        {"frmForm", Around(TextAreaTag({.name = u"words"_s, .cols = u"40"_s, .rows = u"5"_s}, upper))},
        {"frmForm", RadioTag(u"RADIO"_s, {.name = u"room"_s, .value = u"blue"_s, .checked = true}, upper)},
        {"frmForm", Around(SelectTag({.name = u"x"_s, .items = {u"a"_s, u"b"_s}}, upper))},
        {"frmForm", SubmitTag(u"SUBMIT"_s, {.value = u"Send"_s}, upper)},
        {"frmForm", HiddenTag({u"page"_s, u"1"_s}, upper)},
        {"VisFrame", Around(FramesetTag({FrameDirection::Across,
                                         {u"30"_s, u"70"_s},
                                         true,
                                         u"0"_s,
                                         {FrameTag({.src = u"menu.html"_s, .name = u"menu"_s}, upper),
                                          FrameTag({.src = u"start.html"_s, .name = u"main"_s}, upper)}},
                                        upper))},
        {"frmFrame", FrameTag({.borderColor = u"FF0000"_s}, upper).section(u"<FRAME"_s, 1).chopped(1)},
        {"frmCSS",
         Rule(u"H1"_s, {Declaration(u"Color"_s, u"red"_s), Declaration(u"font-size"_s, u"large"_s)})},
        {"frmDHTML", LayerTag({u"box"_s, u""_s, u"inherit"_s, u"auto"_s}, upper).open.trimmed()},
        {"frmDHTML",
         ClassText({.name = u"box"_s, .position = u"absolute"_s, .top = u"10"_s, .left = u"20"_s}, upper)},
    };
}

QString Escaped(QString text) {
    return text.replace(u'&', u"&amp;"_s).replace(u'<', u"&lt;"_s).replace(u'>', u"&gt;"_s);
}

TEST(HelpLiterals, EveryTagStandsOnItsPageAsItIsWritten) {
    const HelpBook book(BuiltHelpFile());
    if (!book.IsOpen())
        GTEST_SKIP() << "no compiler for the help file here";
    for (const Literal& literal : TagsOfPages()) {
        const QString page = QString::fromUtf8(
            book.Read(QString::fromLatin1(literal.page) + u".html"_s).value_or(QByteArray()));
        // A text of several lines stands in lines of its own, or told as one.
        const QString lines = Escaped(literal.text).remove(u'\r');
        EXPECT_TRUE(page.contains(lines) || page.contains(QString(lines).replace(u'\n', u' ')))
            << literal.page << ": " << literal.text.toStdString();
    }
}

} // namespace
