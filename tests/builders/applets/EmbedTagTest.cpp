#include "builders/applets/EmbedTag.h"

#include "dialogs/TagRows.h"

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

TEST(EmbedFieldsOf, EachWordFillsItsField) {
    const std::pair<const char16_t*, EmbedFields> rows[] = {
        {u"<width=\"a\" more>", {.width = T(u"\"a\"")}},
        {u"<HEIGHT=\"a\" more>", {.height = T(u"\"a\"")}},
        {u"<palette=\"a\" more>", {.palette = T(u"\"a\"")}},
        {u"< SRC=\"a b\"more>", {.url = T(u"a b")}},
        {u"<embed src=\"x.mid\" palette=foreground width=10>",
         {.width = T(u"10"), .palette = T(u"foreground"), .url = T(u"x.mid")}},
        {u"<embed src=x.mid>", {}},
        {u"", {}},
    };
    for (const auto& [tag, fields] : rows)
        EXPECT_EQ(EmbedFieldsOf(T(tag)), fields) << T(tag).toStdString();
}

TEST(EmbedFieldsOf, WhatIsWrittenIsReadBack) {
    const EmbedFields fields{
        .width = T(u"1"), .height = T(u"2"), .palette = T(u"BACKGROUND"), .url = T(u"My x.mid")};
    for (const TagCase tagCase : {TagCase::AsWritten, TagCase::Lower})
        EXPECT_EQ(EmbedFieldsOf(EmbedTag(fields, tagCase)), fields);
}

} // namespace
