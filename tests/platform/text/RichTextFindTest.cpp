// Searching: the four forms of the call, case, whole words, and where the selection is afterwards.
#include "platform/text/RichTextFixture.h"

namespace {

using RichTextFindTest = RichTextFixture;
using namespace Qt::StringLiterals;

constexpr int wholeWord = RichTextBox::WholeWord;
constexpr int matchCase = RichTextBox::MatchCase;

struct FindRow {
    const char* name;
    QString text;
    QString wanted;
    std::optional<int> start;
    std::optional<int> end;
    int options;
    int found;
};

void PrintTo(const FindRow& row, std::ostream* out) {
    *out << row.name;
}

class RichTextFindRows : public RichTextFixture, public testing::WithParamInterface<FindRow> {};

TEST_P(RichTextFindRows, Finds) {
    const FindRow& row = GetParam();
    box.SetText(row.text);
    EXPECT_EQ(box.Find(row.wanted, row.start, row.end, row.options), row.found);
    EXPECT_EQ(box.SelLength(), row.found < 0 ? 0 : row.wanted.size());
    if (row.found >= 0) {
        EXPECT_EQ(box.SelStart(), row.found);
        EXPECT_EQ(box.SelText().toLower(), row.wanted.toLower());
    }
}

constexpr std::optional<int> none = std::nullopt;

const FindRow findRows[] = {
    {"the first one", u"a b a"_s, u"a"_s, none, none, 0, 0},
    {"from a start, which counts", u"a b a"_s, u"a"_s, 1, none, 0, 4},
    {"at the start itself", u"a b a"_s, u"a"_s, 4, none, 0, 4},
    {"nothing behind the start", u"a b a"_s, u"b"_s, 3, none, 0, -1},
    {"a match lies in the range whole", u"xxabc"_s, u"abc"_s, 0, 4, 0, -1},
    {"a match may end at the range's end", u"xxabc"_s, u"abc"_s, 0, 5, 0, 2},
    {"an end before the start finds nothing", u"aaaa"_s, u"a"_s, 3, 1, 0, -1},
    {"an end at the start finds nothing", u"aaaa"_s, u"a"_s, 2, 2, 0, -1},
    {"a start behind the text", u"aaaa"_s, u"a"_s, 99, none, 0, -1},
    {"a start before the text", u"aaaa"_s, u"a"_s, -1, none, 0, 0},
    {"an end at the text's start", u"aaaa"_s, u"a"_s, 0, 0, 0, -1},
    {"an end before the text", u"aaaa"_s, u"a"_s, none, -1, 0, -1},
    {"an end behind the text", u"xxa"_s, u"a"_s, 0, 99, 0, 2},
    {"an empty text is never found", u"abc"_s, QString(), none, none, 0, -1},
    {"longer than the text", u"abc"_s, u"abcd"_s, none, none, 0, -1},
    {"case is ignored", u"xx<BODY>"_s, u"<body"_s, none, none, 0, 2},
    {"case counts when asked", u"Body body"_s, u"body"_s, none, none, matchCase, 5},
    {"case of letters with accents", u"xÉÀÞŠŒŽŸ"_s, u"éàþšœžÿ"_s, none, none, 0, 1},
    {"and the other way round", u"xéàþšœžÿ"_s, u"ÉÀÞŠŒŽŸ"_s, none, none, 0, 1},
    {"signs have no case", u"×÷@[`{"_s, u"÷"_s, none, none, 0, 1},
    {"sharp s has none either", u"SSß"_s, u"ß"_s, none, none, 0, 2},
    {"a position counts characters", u"éé€x"_s, u"X"_s, none, none, 0, 3},
    {"start and end count characters", u"é€é€é"_s, u"é"_s, 1, 3, 0, 2},
    {"line ends can be looked for", u"a\r\nb\r\n"_s, u"\r\nB"_s, none, none, 0, 1},
    {"a lone line end", u"a\r\nb"_s, u"\n"_s, none, none, 0, 2},
    {"a match across partial ones", u"aab"_s, u"ab"_s, none, none, 0, 1},
    {"whole word", u"cats cat"_s, u"cat"_s, none, none, wholeWord, 5},
    {"whole word at both ends of the text", u"cat"_s, u"CAT"_s, none, none, wholeWord, 0},
    {"whole word behind a run of its letters", u"aaa a"_s, u"a"_s, none, none, wholeWord, 4},
    {"letters with accents make words", u"caté écat cat"_s, u"cat"_s, none, none, wholeWord, 10},
    {"digits and underscores make words", u"cat1 _cat cat"_s, u"cat"_s, none, none, wholeWord, 10},
    {"a tag is a word between letters", u"a<B>b"_s, u"<b>"_s, none, none, wholeWord, 1},
    {"whole word is not sought at a range's edge alone", u"cats"_s, u"cat"_s, 0, 3, wholeWord, -1},
    {"both options", u"Cat cats cat"_s, u"cat"_s, none, none, wholeWord | matchCase, 9},
    {"an option of no meaning", u"xA"_s, u"a"_s, none, none, 8, 1},
};

INSTANTIATE_TEST_SUITE_P(Rows, RichTextFindRows, testing::ValuesIn(findRows));

TEST_F(RichTextFindTest, WithoutARangeItSearchesTheSelection) {
    box.SetText(u"b a b a b"_s);
    Select(2, 3);
    EXPECT_EQ(box.Find(u"b"_s), 4);
    Select(1, 3);
    EXPECT_EQ(box.Find(u"b"_s), -1);
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 3) << "a failure leaves the selection alone";
}

TEST_F(RichTextFindTest, WithAnEndAloneItSearchesFromTheCaret) {
    box.SetText(u"a b a b a"_s);
    box.SetSelStart(1);
    EXPECT_EQ(box.Find(u"a"_s, std::nullopt, 9), 4);
    box.SetSelStart(5);
    EXPECT_EQ(box.Find(u"a"_s, std::nullopt, 8), -1);
    Select(1, 2);
    EXPECT_EQ(box.Find(u"a"_s, std::nullopt, 9), 4) << "from the start of a selection, and beyond its end";
    Select(1, 2);
    EXPECT_EQ(box.Find(u"a"_s, 0), 0) << "with a start no selection counts";
}

TEST_F(RichTextFindTest, FoundInEveryPlaceOfALongText) {
    // The text is read in pieces of growing size; no place between two of them may be missed.
    const int length = 5000;
    const auto isNearASeam = [](int at) {
        return (at > 490 && at < 530) || (at > 1510 && at < 1550) || (at > 4470 && at < 4500);
    };
    for (int at = 0; at < length; at += isNearASeam(at + 1) ? 1 : 13) {
        QString text(length, u'x');
        text.replace(at, 3, u"aéb"_s);
        box.SetText(text);
        ASSERT_EQ(box.Find(u"AÉB"_s), at);
        ASSERT_EQ(box.Find(u"aéb"_s, 0, std::nullopt, matchCase), at);
        ASSERT_EQ(box.FindForward(u'é', 0), at + 1);
    }
}

TEST_F(RichTextFindTest, ATextLongerThanAPieceIsFoundToo) {
    const QString wanted = u"<b>"_s + QString(1500, u'y') + u"É"_s;
    box.SetText(QString(3000, u'x') + wanted + QString(3000, u'x'));
    EXPECT_EQ(box.Find(wanted.toLower()), 3000);
    EXPECT_EQ(box.SelText(), wanted);
    EXPECT_EQ(box.Find(wanted + u"!"_s, 0), -1);
}

TEST_F(RichTextFindTest, ForwardLooksForOneCharacterAndSelectsNothing) {
    box.SetText(u"<é<>"_s);
    box.SetSelStart(1);
    Signalled();
    EXPECT_EQ(box.FindForward(u'<', 0), 0);
    EXPECT_EQ(box.FindForward(u'<', 1), 2);
    EXPECT_EQ(box.FindForward(u'<', 3), -1);
    EXPECT_EQ(box.FindForward(u'É', 0), -1) << "case counts";
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(Signalled(), QStringList());
}

TEST_F(RichTextFindTest, EachMatchIsReplacedInTheColourOfItsFirstCharacter) {
    Put(u"xab-AB-ab"_s, u"rgbrgbkkk"_s);
    EXPECT_EQ(box.ReplaceEach(u"ab"_s, u"123"_s, 0, 0), 3);
    EXPECT_EQ(box.Text(), u"x123-123-123"_s);
    EXPECT_EQ(Colors(), u"rgggrgggkkkk"_s);
    EXPECT_EQ(box.SelStart(), 12);
    EXPECT_EQ(box.SelLength(), 0);
    EXPECT_EQ(Signalled(), (QStringList{u"Change"_s, u"SelChange"_s}));
    Undo();
    EXPECT_EQ(box.Text(), u"xab-AB-ab"_s);
    EXPECT_EQ(Colors(), u"rgbrgbkkk"_s);
    EXPECT_FALSE(CanUndo());
}

TEST_F(RichTextFindTest, MatchesAreReplacedFromAPlaceOn) {
    box.SetText(u"éa aa aaa"_s);
    EXPECT_EQ(box.ReplaceEach(u"a"_s, QString(), 2, 1), 3);
    EXPECT_EQ(box.Text(), u"éa a a"_s);
    EXPECT_EQ(box.ReplaceEach(u"É"_s, u"e"_s, 0, 0, matchCase), 0);
    EXPECT_EQ(box.ReplaceEach(QString(), u"e"_s, 0, 0), 0);
    EXPECT_EQ(box.ReplaceEach(u"a"_s, u"e"_s, 99, 0), 0);
    EXPECT_EQ(box.Text(), u"éa a a"_s);
}

TEST_F(RichTextFindTest, WhereNothingIsReplacedNothingChanges) {
    box.SetText(u"abc"_s);
    Select(1, 1);
    Signalled();
    EXPECT_EQ(box.ReplaceEach(u"x"_s, u"y"_s, 0, 0), 0);
    EXPECT_EQ(box.SelText(), u"b"_s);
    EXPECT_EQ(Signalled(), QStringList());
}

TEST_F(RichTextFindTest, AReplacementTakesInWhatTheDocumentHolds) {
    box.SetText(u"aba"_s);
    EXPECT_EQ(box.ReplaceEach(u"a"_s, u"é☃"_s, 0, 0), 2);
    EXPECT_EQ(box.Text(), u"é&#9731;bé&#9731;"_s);
    box.SetHolds(CharacterSet::Unicode);
    EXPECT_EQ(box.ReplaceEach(u"b"_s, u"☃"_s, 0, 0), 1);
    EXPECT_EQ(box.Text(), u"é&#9731;☃é&#9731;"_s);
}

TEST_F(RichTextFindTest, ATextFromOutsideIsToldAsItWouldComeIn) {
    EXPECT_EQ(box.Incorporated(u"a\nb\rc\r\nd☃"_s), u"a\r\nb\r\nc\r\nd&#9731;"_s);
    box.SetText(u"x\ny"_s);
    EXPECT_EQ(box.Incorporated(u"a\r\nb"_s), u"a\nb"_s);
    EXPECT_EQ(box.Text(), u"x\ny"_s);
}

TEST_F(RichTextFindTest, FindTellsOfTheSelection) {
    box.SetText(u"abc"_s);
    Signalled();
    box.Find(u"b"_s);
    EXPECT_EQ(Signalled(), QStringList{u"SelChange"_s});
    box.Find(u"zzz"_s, 0);
    EXPECT_EQ(Signalled(), QStringList());
}

} // namespace
