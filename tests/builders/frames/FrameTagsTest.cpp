#include "builders/frames/FrameTags.h"

#include "dialogs/TagRows.h"

namespace {

Row OneFrame(FrameFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return FrameTag(fields, tagCase); }, asWritten, lowered};
}

Row Frameset(FramesetFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return Shown(FramesetTag(fields, tagCase)); }, asWritten, lowered};
}

TEST(FrameTags, AFrame) {
    Check({
        OneFrame({}, u"<FRAME>", u"<frame>"),
        OneFrame({.src = T(u"A.htm")}, u"<FRAME SRC=\"A.htm\">", u"<frame src=\"A.htm\">"),
        OneFrame({.name = T(u"Left")}, u"<FRAME NAME=\"Left\">", u"<frame name=\"Left\">"),
        OneFrame({.marginWidth = T(u"-1")}, u"<FRAME MARGINWIDTH=\"-1\">", u"<frame marginwidth=\"-1\">"),
        OneFrame({.marginHeight = T(u"2.5")}, u"<FRAME MARGINHEIGHT=\"2.5\">",
                 u"<frame marginheight=\"2.5\">"),
        OneFrame({.scrolling = Scrolling::Yes}, u"<FRAME SCROLLING=\"YES\">", u"<frame scrolling=\"yes\">"),
        OneFrame({.scrolling = Scrolling::No}, u"<FRAME SCROLLING=\"NO\">", u"<frame scrolling=\"no\">"),
        OneFrame({.scrolling = Scrolling::Auto}, u"<FRAME>", u"<frame>"),
        OneFrame({.noResize = true}, u"<FRAME NORESIZE>", u"<frame noresize>"),
        OneFrame({.noBorder = true}, u"<FRAME FRAMEBORDER=\"NO\">", u"<frame frameborder=\"no\">"),
        OneFrame({.borderColor = T(u"FF0000")}, u"<FRAME BORDERCOLOR=#=FF0000>",
                 u"<frame bordercolor=#=FF0000>"),
        OneFrame(
            {.src = T(u"s"),
             .name = T(u"n"),
             .marginWidth = T(u"1"),
             .marginHeight = T(u"2"),
             .scrolling = Scrolling::No,
             .noResize = true,
             .noBorder = true,
             .borderColor = T(u"00FF00")},
            u"<FRAME SRC=\"s\" NAME=\"n\" MARGINWIDTH=\"1\" MARGINHEIGHT=\"2\" SCROLLING=\"NO\" NORESIZE "
            u"FRAMEBORDER=\"NO\" BORDERCOLOR=#=00FF00>",
            u"<frame src=\"s\" name=\"n\" marginwidth=\"1\" marginheight=\"2\" scrolling=\"no\" noresize "
            u"frameborder=\"no\" bordercolor=#=00FF00>"),
    });
}

TEST(FrameTags, AFramesetWithItsSizesEitherWay) {
    const QStringList halves = {T(u"50"), T(u"50"), T(u""), T(u""), T(u""), T(u"")};
    Check({
        Frameset({.direction = FrameDirection::Across, .sizes = halves, .percent = true},
                 u"<FRAMESET COLS=\"50%,50%\">\r\n|</FRAMESET>",
                 u"<frameset cols=\"50%,50%\">\r\n|</frameset>"),
        Frameset({.direction = FrameDirection::Up, .sizes = halves, .percent = true},
                 u"<FRAMESET ROWS=\"50%,50%\">\r\n|</FRAMESET>",
                 u"<frameset rows=\"50%,50%\">\r\n|</frameset>"),
        // The numbers as they were typed, and a "%" behind whatever was.
        Frameset({.direction = FrameDirection::Across, .sizes = {T(u"120"), T(u"80")}},
                 u"<FRAMESET COLS=\"120,80\">\r\n|</FRAMESET>",
                 u"<frameset cols=\"120,80\">\r\n|</frameset>"),
        Frameset({.direction = FrameDirection::Across, .sizes = {T(u"20"), T(u"*")}, .percent = true},
                 u"<FRAMESET COLS=\"20%,*%\">\r\n|</FRAMESET>",
                 u"<frameset cols=\"20%,*%\">\r\n|</frameset>"),
        // An emptied box is left out, wherever it stands.
        Frameset({.direction = FrameDirection::Across,
                  .sizes = {T(u""), T(u"33"), T(u""), T(u"-1")},
                  .percent = true},
                 u"<FRAMESET COLS=\"33%,-1%\">\r\n|</FRAMESET>",
                 u"<frameset cols=\"33%,-1%\">\r\n|</frameset>"),
        Frameset({.direction = FrameDirection::Up, .sizes = {T(u""), T(u"")}, .percent = true},
                 u"<FRAMESET ROWS=\"\">\r\n|</FRAMESET>", u"<frameset rows=\"\">\r\n|</frameset>"),
    });
}

TEST(FrameTags, WithoutADirectionTheQuoteStandsAlone) {
    Check({
        Frameset({}, u"<FRAMESET\">\r\n|</FRAMESET>", u"<frameset\">\r\n|</frameset>"),
        Frameset({.sizes = {T(u"50")}, .percent = true, .border = T(u"3")},
                 u"<FRAMESET\" BORDER=3>\r\n|</FRAMESET>", u"<frameset\" border=3>\r\n|</frameset>"),
    });
}

TEST(FrameTags, FramesStandOneALineAndAnUneditedOneIsAnEmptyLine) {
    Check({
        Frameset({.direction = FrameDirection::Across,
                  .sizes = {T(u"50"), T(u"50")},
                  .percent = true,
                  .border = T(u"0"),
                  .frames = {T(u"<FRAME SRC=\"a.htm\" NAME=\"left\">"), T(u"")}},
                 u"<FRAMESET COLS=\"50%,50%\" BORDER=0>\r\n<FRAME SRC=\"a.htm\" "
                 u"NAME=\"left\">\r\n\r\n|</FRAMESET>",
                 u"<frameset cols=\"50%,50%\" border=0>\r\n<FRAME SRC=\"a.htm\" "
                 u"NAME=\"left\">\r\n\r\n|</frameset>"),
        Frameset({.border = T(u"Thin one"), .frames = {T(u""), T(u"<frame>"), T(u"")}},
                 u"<FRAMESET\" BORDER=Thin one>\r\n\r\n<frame>\r\n\r\n|</FRAMESET>",
                 u"<frameset\" border=Thin one>\r\n\r\n<frame>\r\n\r\n|</frameset>"),
    });
}

} // namespace
