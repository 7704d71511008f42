#include "builders/EmbedTag.h"

#include "builders/TagRows.h"

namespace {

Row Embed(EmbedFields fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[=](TagCase tagCase) { return EmbedTag(fields, tagCase); }, asWritten, lowered};
}

TEST(EmbedTag, QuotesTheSourceAlone) {
    Check({
        Embed({}, u"<EMBED>", u"<embed>"),
        Embed({.width = T(u"1"), .height = T(u"2"), .palette = T(u"BACKGROUND"), .url = T(u"My x.mid")},
              u"<EMBED WIDTH=1 HEIGHT=2 PALETTE=BACKGROUND SRC=\"My x.mid\">",
              u"<embed width=1 height=2 palette=BACKGROUND src=\"My x.mid\">"),
    });
}

} // namespace
