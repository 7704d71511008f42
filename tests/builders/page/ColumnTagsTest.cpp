#include "builders/page/ColumnTags.h"

#include "dialogs/TagRows.h"

namespace {

Row Columns(const char16_t* cols, const char16_t* gutter, const char16_t* width, const char16_t* asWritten,
            const char16_t* lowered) {
    return {[=](TagCase tagCase) {
                return Shown(
                    MultiColumnTag({.cols = T(cols), .gutter = T(gutter), .width = T(width)}, tagCase));
            },
            asWritten, lowered};
}

TEST(MultiColumnTag, WritesItsAttributesInOrder) {
    Check({
        Columns(u"", u"", u"", u"<MULTICOL>|</MULTICOL>", u"<multicol>|</multicol>"),
        Columns(u"2", u"8", u"90%", u"<MULTICOL COLS=2 GUTTER=8 WIDTH=90%>|</MULTICOL>",
                u"<multicol cols=2 gutter=8 width=90%>|</multicol>"),
    });
}

Row Spacer(SpacerKind kind, const char16_t* asWritten, const char16_t* lowered) {
    return {
        [=](TagCase tagCase) {
            return SpacerTag(
                {.kind = kind, .size = T(u"5"), .width = T(u"10"), .height = T(u"20"), .align = T(u"LEFT")},
                tagCase);
        },
        asWritten, lowered};
}

TEST(SpacerTag, WritesTheFieldsOfItsKindAlone) {
    Check({
        Spacer(SpacerKind::None, u"<SPACER TYPE=>", u"<spacer type=>"),
        Spacer(SpacerKind::Horizontal, u"<SPACER TYPE=HORIZONTAL SIZE=5>",
               u"<spacer type=horizontal size=5>"),
        Spacer(SpacerKind::Vertical, u"<SPACER TYPE=VERTICAL SIZE=5>", u"<spacer type=vertical size=5>"),
        Spacer(SpacerKind::Block, u"<SPACER TYPE=BLOCK WIDTH=10 HEIGHT=20 ALIGN=LEFT>",
               u"<spacer type=block width=10 height=20 align=LEFT>"),
        {[](TagCase tagCase) { return SpacerTag({.kind = SpacerKind::Block}, tagCase); },
         u"<SPACER TYPE=BLOCK>", u"<spacer type=block>"},
    });
}

} // namespace
