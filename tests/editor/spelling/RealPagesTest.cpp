// The spelling of real pages, with the words that are found told. TARNWICK_PAGES names the folders of pages.
#include "editor/spelling/SpellFrame.h"

#include "platform/values/Cp1252.h"

#include <QCryptographicHash>

namespace {

using namespace Qt::StringLiterals;

struct PageRow {
    const char* name;
    /// Other versions of the packages have other words: only this page and this dictionary are told.
    const char* digest;
    int checked;
    const char* found; ///< each word once, in the order of the page
};

const char* const dictionaryDigest = "829a043cf078d1e8";

const PageRow rows[] = {
    {"Roadmap.html", "37d797a4f3c5d0ff", 1195,
     "Roadmap zsh Zsh newuser autoload Uz ZLE bindkey HISTFILE HISTSIZE SAVEHIST UTF hostnames scp compctl "
     "compsys customizable behaviour globbing Korn autoloaded promptinit zcalc zargs xargs zmv"},
    {"DOM.html", "a5cc3792b3f6c8cf", 234,
     "Verdana Arial Helvetica ChangeLog XSLT Namespaces stylesheet libxslt DSig xmlsec Solaris MacOsX lxml "
     "Tcl xml Paolo Casarini Veillard"},
};

QString PathOf(const char* name) {
    for (const QString& folder : qEnvironmentVariable("TARNWICK_PAGES").split(u':', Qt::SkipEmptyParts))
        if (const QString path = folder + u'/' + QString::fromLatin1(name); QFileInfo(path).isFile())
            return path;
    return {};
}

QByteArray DigestOf(const QString& path) {
    return QCryptographicHash::hash(ReadFile(path), QCryptographicHash::Sha256).toHex().left(16);
}

TEST(RealPages, TheseWordsAreFound) {
    const QString english = u"/usr/share/hunspell/en_US"_s;
    if (DigestOf(english + u".dic"_s) != dictionaryDigest)
        GTEST_SKIP() << "another dictionary: " << DigestOf(english + u".dic"_s).toStdString();
    int pages = 0;
    for (const PageRow& row : rows) {
        const QString path = PathOf(row.name);
        if (path.isEmpty() || DigestOf(path) != row.digest) {
            std::cout << row.name << ' ' << DigestOf(path).toStdString() << '\n';
            continue;
        }
        SpellFrame frame;
        frame.checker->StandardDic = english;
        const QString text = Cp1252::FromBytes(ReadFile(path));
        frame.SetText(text);
        QStringList found;
        QObject::connect(frame.checker, &SpellChecker::WordFound, frame.window.get(), [&] {
            found << frame.Box().SelText();
            EXPECT_EQ(frame.Box().SelText(), frame.checker->MisspelledWord());
        });
        frame.Start();
        while (frame.Run().Running()) {
            ASSERT_TRUE(QTest::qWaitFor([&] { return frame.Asking() || !frame.Run().Running(); }, 30'000));
            if (frame.Asking())
                frame.Give({"cmdIgnoreAll"});
        }
        EXPECT_EQ(found.join(u' '), QString::fromLatin1(row.found)) << row.name;
        EXPECT_EQ(frame.checker->WordsChecked(), row.checked) << row.name;
        EXPECT_EQ(frame.Box().Text(), text) << row.name;
        ++pages;
    }
    if (pages == 0)
        GTEST_SKIP() << "none of these pages in TARNWICK_PAGES";
}

} // namespace
