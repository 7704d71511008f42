#include "styles/sheet/Catalogue.h"
#include "styles/sheet/SheetTest.h"

namespace {

class ElementListTest : public SheetTest {
  protected:
    void Answer(const char16_t* answer) { frame.prompts.inputAnswers = {T(answer)}; }
    void ExpectAsked() {
        ASSERT_EQ(frame.prompts.asked.size(), 1);
        const Asked& asked = frame.prompts.asked.first();
        EXPECT_EQ(asked.kind, Asked::Input);
        EXPECT_EQ(asked.title, T(u"Add Element"));
        EXPECT_EQ(asked.text,
                  T(u"(Note: class names should begin with a period & IDs should begin with '#')"));
        EXPECT_EQ(asked.owner, form);
    }
};

TEST_F(ElementListTest, BeginsWithItsElementsAndTheFirstSelected) {
    EXPECT_EQ(Rows(Elements()), StyleElements());
    EXPECT_EQ(Elements().SelectedText(), T(u"H1"));
}

TEST_F(ElementListTest, AddsARowAtTheEndAsItWasTyped) {
    for (const char16_t* element : {u".x", u"#y", u"plain", u" TD B ", u"H1"}) {
        frame.prompts.asked.clear();
        Answer(element);
        Tool(u"tb_Add");
        ExpectAsked();
        EXPECT_EQ(Rows(Elements()).last(), T(element));
    }
    EXPECT_EQ(Elements().topLevelItemCount(), 28);
    EXPECT_EQ(Elements().SelectedText(), T(u"H1")) << "the selected element stays";
}

TEST_F(ElementListTest, AnEmptyAnswerAddsAndRenamesNothing) {
    for (const char16_t* tool : {u"tb_Add", u"tb_Rename"}) {
        frame.prompts.asked.clear();
        Answer(u"");
        Tool(tool);
        ExpectAsked();
        EXPECT_EQ(Rows(Elements()), StyleElements());
    }
}

TEST_F(ElementListTest, RenamesTheSelectedRow) {
    ChooseElement(u"P");
    Answer(u".note");
    Tool(u"tb_Rename");
    ExpectAsked();
    QStringList rows = StyleElements();
    rows.replace(rows.indexOf(T(u"P")), T(u".note"));
    EXPECT_EQ(Rows(Elements()), rows);
    EXPECT_EQ(Elements().SelectedText(), T(u".note"));
}

TEST_F(ElementListTest, RemovesTheSelectedRowUnaskedAndSelectsTheNext) {
    ChooseElement(u"H2");
    Tool(u"tb_Remove");
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_EQ(Elements().topLevelItemCount(), 22);
    EXPECT_EQ(Find(Elements(), u"H2"), -1);
    EXPECT_EQ(Elements().SelectedText(), T(u"H3"));
    ChooseElement(u"A:active");
    Tool(u"tb_Remove");
    EXPECT_EQ(Elements().SelectedText(), T(u"A:visited"));
}

TEST_F(ElementListTest, EmptiedToTheLastRowItGoesOn) {
    for (int row = 0; row < 23; ++row)
        Tool(u"tb_Remove");
    EXPECT_EQ(Elements().topLevelItemCount(), 0);
    EXPECT_EQ(Elements().SelectedText(), QString());
    Tool(u"tb_Remove");
    Tool(u"tb_Rename");
    EXPECT_TRUE(frame.prompts.asked.isEmpty()) << "there is nothing to rename";
    Press(T(u"cmdAddSheet"));
    EXPECT_EQ(Sheet().Text(), T(u" {  }\r\n"));
    Answer(u".x");
    Tool(u"tb_Add");
    EXPECT_EQ(Rows(Elements()), QStringList{T(u".x")});
    EXPECT_EQ(Elements().SelectedText(), T(u".x"));
}

TEST_F(ElementListTest, NothingSelectedIsNothingRenamedOrRemoved) {
    Elements().clearSelection();
    Tool(u"tb_Remove");
    Tool(u"tb_Rename");
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_EQ(Rows(Elements()), StyleElements());
}

} // namespace
