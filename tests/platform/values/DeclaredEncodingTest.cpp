#include "platform/values/DeclaredEncoding.h"

#include <gtest/gtest.h>

namespace {

TEST(DeclaredEncoding, AnyOfTheUsualSpellings) {
    for (const char* head : {
             "<meta charset=utf-8>",
             "<meta charset=\"utf-8\">",
             "<META CHARSET='UTF-8'>",
             "<meta charset = utf8 />",
             "<meta charset=\"unicode-1-1-utf-8\">",
             "<meta name=a charset=utf-8>",
             "<meta\r\n  charset=utf-8>",
             "<html><head><meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">",
             "<meta content='text/html;charset=UTF-8' http-equiv=content-type>",
             "<meta content='text/html; charset = utf-8'>",
             "<meta name=author content=me><meta charset=utf-8>",
             "<!-- x --><meta charset=utf-8>",
             "<!-- <meta charset=iso-8859-2> --><meta charset=utf-8>",
             "<?xml version=\"1.0\" encoding=\"utf-8\"?>",
             "<?xml version='1.0' encoding='UTF-8' standalone='no'?><html>",
             "@charset \"utf-8\";\r\nbody {}",
         })
        EXPECT_TRUE(DeclaresUtf8(head)) << head;
}

TEST(DeclaredEncoding, NothingElse) {
    for (const char* head : {
             "",
             "<p>charset=utf-8",
             "<meta charset=utf-16>",
             "<meta charset=utf-80>",
             "<meta charset=iso-8859-1>",
             "<meta charset=iso-8859-2><meta charset=utf-8>",
             "<meta charset=>",
             "<meta>charset=utf-8",
             "<metal charset=utf-8>",
             "<!-- <meta charset=utf-8> -->",
             "<!-- <meta charset=utf-8>",
             " <?xml version=\"1.0\" encoding=\"utf-8\"?>",
             "<?xml version=\"1.0\"?>",
             "p {} @charset \"utf-8\";",
         })
        EXPECT_FALSE(DeclaresUtf8(head)) << head;
}

TEST(DeclaredEncoding, TheNameInAMetaTag) {
    EXPECT_EQ(CharsetOfMetaTag("<meta charset=ISO-8859-2>"), QStringLiteral("iso-8859-2"));
    EXPECT_EQ(CharsetOfMetaTag("<p>"), QString());
}

} // namespace
