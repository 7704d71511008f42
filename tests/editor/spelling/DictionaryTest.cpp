// Dictionaries as they are found on disks: whole, missing, damaged, in other encodings.
#include "editor/spelling/Dictionary.h"

#include "editor/spelling/DictionaryFiles.h"
#include "editor/spelling/WordList.h"

#include "support/Files.h"
#include "support/FreshUser.h"
#include "support/NoPlainFile.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace Qt::StringLiterals;

class DictionaryTest : public testing::Test {
  protected:
    DictionaryTest() { FreshUser(); }
    ~DictionaryTest() override {
        for (const auto& [name, value] : kept_)
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }

    static QString Path(const char* name) { return TestFolder() + u'/' + QString::fromLatin1(name); }
    static void Write(const char* name, const QByteArray& content) { WriteFile(Path(name), content); }
    static void WritePair(const char* aff, const char* dic, const QByteArray& words = "2\nalpha\nbeta\n",
                          const QByteArray& rules = "SET UTF-8\nTRY abc\n") {
        Write(aff, rules);
        Write(dic, words);
    }
    /// The system's dictionaries, and no others, lie in a folder of the test.
    void MoveSystem() {
        for (const char* name : {"XDG_DATA_DIRS", "XDG_DATA_HOME"}) {
            kept_.emplace_back(name, qgetenv(name));
            qputenv(name, QFile::encodeName(TestFolder() + u"/system"_s));
        }
    }
    static QString Known(Dictionary* dictionary, const QStringList& words) {
        if (!dictionary)
            return u"(none)"_s;
        QStringList known;
        for (const QString& word : words)
            if (dictionary->Knows(word))
                known << word;
        return known.join(u' ');
    }
    static std::unique_ptr<Dictionary> Best(const QString& standard) {
        return Dictionary::LoadBest(standard, QString());
    }

  private:
    std::vector<std::pair<const char*, QByteArray>> kept_;
};

TEST_F(DictionaryTest, ThatOfTheSystemIsEnglish) {
    const auto dictionary = Best(Path("american.vtd"));
    EXPECT_EQ(Known(dictionary.get(), {u"color"_s, u"teh"_s, u"Paris"_s, u"paris"_s, u"don't"_s}),
              u"color Paris don't"_s);
    EXPECT_TRUE(dictionary->Suggestions(u"recieve"_s).contains(u"receive"_s));
    EXPECT_EQ(dictionary->Suggestions(QString(60, u'q')), QStringList());
}

TEST_F(DictionaryTest, APairIsNamedByEitherFileOrWithout) {
    WritePair("mine.aff", "mine.dic");
    for (const char* name : {"mine", "mine.dic", "mine.aff"})
        EXPECT_EQ(Known(Best(Path(name)).get(), {u"alpha"_s, u"beta"_s, u"color"_s}), u"alpha beta"_s)
            << name;
}

TEST_F(DictionaryTest, APlainListOfWordsIsOne) {
    for (const QByteArray& list : {QByteArray("alpha\nbeta\n"), QByteArray("alpha\r\nbeta"),
                                   QByteArray("alpha\rbeta"), QByteArray("\n  alpha \n\nbeta\t12\n---\n")}) {
        Write("american.vtd", list);
        const auto dictionary = Best(Path("american.vtd"));
        EXPECT_EQ(Known(dictionary.get(), {u"alpha"_s, u"Beta"_s, u"color"_s}), u"alpha Beta"_s)
            << list.toStdString();
        EXPECT_EQ(dictionary->Suggestions(u"alpah"_s), QStringList{u"alpha"_s});
    }
}

TEST_F(DictionaryTest, AListMayHaveLettersOfEitherEncoding) {
    Write("list", "caf\xc3\xa9\n");
    EXPECT_EQ(Known(Best(Path("list")).get(), {u"café"_s, u"cafe"_s}), u"café"_s);
    Write("list", "caf\xe9\n");
    EXPECT_EQ(Known(Best(Path("list")).get(), {u"café"_s, u"cafe"_s}), u"café"_s);
}

TEST_F(DictionaryTest, APairMayHaveAnyEncoding) {
    const struct {
        const char* rules;
        const char* words;
        QString known;
        QString misspelled;
    } rows[] = {
        {"SET ISO8859-1\n", "1\ncaf\xe9\n", u"café"_s, u"caféé"_s},
        {"SET ISO8859-2\nTRY \xbe\n", "1\n\xbe\xf3\xb3ty\n", u"žółty"_s, u"žółtyy"_s},
        {"SET KOI8-R\n", "1\n\xc4\xcf\xcd\n", u"дом"_s, u"домм"_s},
        {"SET microsoft-cp1251\n", "1\n\xe4\xee\xec\n", u"дом"_s, u"домм"_s},
        {"SET UTF-8\n", "1\nдом\n", u"дом"_s, u"домм"_s},
    };
    for (const auto& row : rows) {
        WritePair("other.aff", "other.dic", row.words, row.rules);
        const auto dictionary = Best(Path("other"));
        // A letter that the encoding does not have belongs to no word.
        EXPECT_EQ(Known(dictionary.get(), {row.known, row.misspelled, u"日本"_s, u"☃"_s}), row.known)
            << row.rules;
        EXPECT_EQ(dictionary->Suggestions(row.misspelled), QStringList{row.known}) << row.rules;
        EXPECT_EQ(dictionary->Suggestions(u"日本"_s), QStringList());
    }
}

TEST_F(DictionaryTest, WhatIsMissingOrDamagedLeavesTheSystems) {
    const QByteArray binary("VTD\0\1\2", 6);
    Write("binary", binary);
    Write("empty", "");
    Write("numbers", "1\n2\n3\n");
    WritePair("nocount.aff", "nocount.dic", binary);
    WritePair("nul.aff", "nul.dic", QByteArray("1\nalpha\0\n", 9));
    WritePair("badaff.aff", "badaff.dic", binary, binary);
    WritePair("encoding.aff", "encoding.dic", "\x80\0", "SET NO-SUCH\n");
    Write("lone.aff", "SET UTF-8\n");
    QStringList paths{QString(), u"relative"_s, Path("nothing"), TestFolder()};
    for (const char* name :
         {"binary", "empty", "numbers", "nocount", "nul.dic", "badaff", "encoding", "lone", "lone.aff"})
        paths << Path(name);
    for (const QString& path : paths + NoPlainFiles())
        EXPECT_EQ(Known(Best(path).get(), {u"color"_s, u"alphaa"_s}), u"color"_s) << path.toStdString();
}

TEST_F(DictionaryTest, AnUnknownEncodingLeavesTheWordsAsAList) {
    WritePair("odd.aff", "odd.dic", "1\nalphaa\n", "SET NO-SUCH\n");
    EXPECT_EQ(Known(Best(Path("odd.dic")).get(), {u"color"_s, u"alphaa"_s}), u"alphaa"_s);
    EXPECT_EQ(Known(Best(Path("odd")).get(), {u"color"_s, u"alphaa"_s}), u"color"_s);
}

TEST_F(DictionaryTest, TheWordsOfAPairAloneAreAList) {
    Write("lone.dic", "2\nalpha/S\nbeta\n");
    EXPECT_EQ(Known(Best(Path("lone.dic")).get(), {u"alpha"_s, u"beta"_s, u"alphas"_s}), u"alpha beta"_s);
}

TEST_F(DictionaryTest, WhereNothingIsToBeHadThereIsNone) {
    MoveSystem();
    EXPECT_FALSE(Best(Path("american.vtd")));
    WritePair("system/hunspell/en_US.aff", "system/hunspell/en_US.dic", QByteArray(2000, '\0'));
    EXPECT_FALSE(Best(Path("american.vtd")));
    WritePair("system/myspell/dicts/en_US.aff", "system/myspell/dicts/en_US.dic");
    EXPECT_EQ(Known(Best(Path("american.vtd")).get(), {u"alpha"_s, u"color"_s}), u"alpha"_s);
    WritePair("system/hunspell/en_US.aff", "system/hunspell/en_US.dic", "1\ngamma\n");
    EXPECT_EQ(Known(Best(Path("american.vtd")).get(), {u"alpha"_s, u"gamma"_s}), u"gamma"_s);
}

TEST_F(DictionaryTest, TheCustomWordsCountToo) {
    WritePair("mine.aff", "mine.dic");
    Write("custom.vtc", "Tarnwick\r\ncaf\xc3\xa9\n");
    const auto dictionary = Dictionary::LoadBest(Path("mine"), Path("custom.vtc"));
    EXPECT_EQ(Known(dictionary.get(), {u"alpha"_s, u"Tarnwick"_s, u"TARNWICK"_s, u"café"_s, u"gamma"_s}),
              u"alpha Tarnwick TARNWICK café"_s);
    dictionary->Add(u"gamma"_s);
    EXPECT_TRUE(dictionary->Knows(u"gamma"_s));
    EXPECT_EQ(dictionary->Suggestions(u"gammaa"_s), QStringList{u"gamma"_s});
}

TEST_F(DictionaryTest, AddsAWordToAListWhole) {
    const QString path = Path("custom.vtc");
    ASSERT_TRUE(WordList::Add(path, u"Tarnwick"_s));
    ASSERT_TRUE(WordList::Add(path, u"café"_s));
    EXPECT_EQ(ReadFile(path), "Tarnwick\ncaf\xc3\xa9\n");
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(path), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600u);
    // What was there stays: lines without an end, ends of another kind, bytes of code page 1252.
    Write("custom.vtc", "one\r\ncaf\xe9");
    ASSERT_TRUE(WordList::Add(path, u"two"_s));
    EXPECT_EQ(ReadFile(path), "one\r\ncaf\xc3\xa9\ntwo\n");
}

TEST_F(DictionaryTest, AddsNothingToWhatIsNoList) {
    const QByteArray binary("old\0list", 8);
    Write("custom.vtc", binary);
    EXPECT_FALSE(WordList::Add(Path("custom.vtc"), u"word"_s));
    EXPECT_EQ(ReadFile(Path("custom.vtc")), binary);
    EXPECT_FALSE(WordList::Add(Path("custom.vtc/below"), u"word"_s));
    EXPECT_FALSE(WordList::Add(TestFolder(), u"word"_s));
    EXPECT_FALSE(WordList::Add(QString(), u"word"_s));
    for (const QString& path : NoPlainFiles())
        EXPECT_FALSE(WordList::Add(path, u"word"_s)) << path.toStdString();
}

} // namespace
