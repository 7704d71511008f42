// What a file dialog answers.
#include "platform/desktop/FileRequest.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(FileAnswer, PathsAreTheFolderAndEachName) {
    const struct {
        FileAnswer answer;
        QStringList paths;
    } rows[] = {
        {{}, {}},
        {{u"/site/"_s, {}}, {}},
        {{u"/site/"_s, {u""_s}}, {}},
        {{u"/site/"_s, {u"a.htm"_s}}, {u"/site/a.htm"_s}},
        {{u"/site"_s, {u"a.htm"_s}}, {u"/site/a.htm"_s}},
        {{u"/"_s, {u"a.htm"_s}}, {u"/a.htm"_s}},
        {{u"/site/"_s, {u"a.htm"_s, u"p/b.htm"_s}}, {u"/site/a.htm"_s, u"/site/p/b.htm"_s}},
        {{u"C:\\site\\"_s, {u"a.htm"_s, u"b.htm"_s}}, {u"C:\\site\\a.htm"_s, u"C:\\site\\b.htm"_s}},
        {{u"C:\\site"_s, {u"a.htm"_s}}, {u"C:\\site\\a.htm"_s}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE((row.answer.folder + u'|' + row.answer.names.join(u'|')).toStdString());
        EXPECT_EQ(row.answer.Paths(), row.paths);
        EXPECT_EQ(row.answer.Path(), row.paths.value(0));
        EXPECT_EQ(row.answer.Cancelled(), row.paths.isEmpty());
    }
}
