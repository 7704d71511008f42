#include "styles/layers/LayerText.h"

#include "dialogs/TagRows.h"

namespace {

LayerClass Box() {
    return {.name = T(u"box"), .position = T(u"absolute"), .top = T(u"10"), .left = T(u"20")};
}

TEST(LayerText, AClassEndsWithItsBraceOnTheLastLine) {
    Check({
        {[](TagCase tagCase) { return ClassText(Box(), tagCase); },
         u".box {POSITION: absolute;\r\nTOP: 10;\r\nLEFT: 20;}",
         u".box {POSITION: absolute;\r\nTOP: 10;\r\nLEFT: 20;}"},
        {[](TagCase tagCase) {
             LayerClass box = Box();
             box.right = T(u"5px");
             return ClassText(box, tagCase);
         },
         u".box {POSITION: absolute;\r\nTOP: 10;\r\nLEFT: 20;\r\nRIGHT: 5px;}",
         u".box {POSITION: absolute;\r\nTOP: 10;\r\nLEFT: 20;\r\nRIGHT: 5px;}"},
        {[](TagCase tagCase) {
             LayerClass box = Box();
             box.addStyle = true;
             return ClassText(box, tagCase);
         },
         u"<STYLE TYPE=\"text/css\">\r\n.box {POSITION: absolute;\r\nTOP: 10;\r\nLEFT: 20;}\r\n</STYLE>\r\n",
         u"<style type=\"text/css\">\r\n.box {POSITION: absolute;\r\nTOP: 10;\r\nLEFT: 20;}\r\n</style>\r\n"},
        {[](TagCase tagCase) {
             return ClassText(
                 {.name = T(u"A B}"), .position = T(u"Typed"), .top = T(u"\""), .left = T(u"<x>")}, tagCase);
         },
         u".A B} {POSITION: Typed;\r\nTOP: \";\r\nLEFT: <x>;}",
         u".A B} {POSITION: Typed;\r\nTOP: \";\r\nLEFT: <x>;}"},
    });
}

TEST(LayerText, AsksForTheFirstFieldThatIsEmpty) {
    const struct {
        LayerClass layer;
        const char16_t* message;
    } rows[] = {
        {{}, u"Please give the layer a name."},
        {{.top = T(u"1"), .left = T(u"1")}, u"Please give the layer a name."},
        {{.name = T(u"a")}, u"Please enter a value for 'TOP'."},
        {{.name = T(u"a"), .left = T(u"1")}, u"Please enter a value for 'TOP'."},
        {{.name = T(u"a"), .top = T(u"1")}, u"Please enter a value for 'LEFT'."},
        {{.name = T(u" "), .top = T(u" "), .left = T(u" ")}, u""},
        {{.name = T(u"a"), .top = T(u"1"), .left = T(u"1")}, u""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(MissingIn(row.layer), T(row.message));
}

TEST(LayerText, ALayerAlwaysHoldsBothStyles) {
    Check({
        {[](TagCase tagCase) {
             return Shown(LayerTag(
                 {.className = T(u"Box"), .visibility = T(u"inherit"), .zIndex = T(u"auto")}, tagCase));
         },
         u"<DIV CLASS=\"Box\" STYLE=\"visibility: inherit; z-index: auto\">\r\n|\r\n</DIV>",
         u"<div class=\"Box\" style=\"visibility: inherit; z-index: auto\">\r\n|\r\n</div>"},
        {[](TagCase tagCase) {
             return Shown(LayerTag(
                 {.className = T(u"box"), .id = T(u"One"), .visibility = T(u"HIDDEN"), .zIndex = T(u"500")},
                 tagCase));
         },
         u"<DIV CLASS=\"box\" ID=\"One\" STYLE=\"visibility: HIDDEN; z-index: 500\">\r\n|\r\n</DIV>",
         u"<div class=\"box\" id=\"One\" style=\"visibility: HIDDEN; z-index: 500\">\r\n|\r\n</div>"},
        {[](TagCase tagCase) { return Shown(LayerTag({}, tagCase)); },
         u"<DIV STYLE=\"visibility: ; z-index: \">\r\n|\r\n</DIV>",
         u"<div style=\"visibility: ; z-index: \">\r\n|\r\n</div>"},
    });
}

} // namespace
