// A field that holds the path of a file.
#include "dialogs/PathField.h"

#include "support/Files.h"
#include "support/FreshUser.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QCheckBox>
#include <QLineEdit>

namespace {

QString T(QStringView text) {
    return text.toString();
}

const QString SaveFirst =
    QStringLiteral("I am unable to complete this operation properly.\r\n"
                   "You must save this document before selecting the relative path to an file.\r\n"
                   "If the document is properly saved, please report this error to the maintainers.");

/// What a field receives for a target while a document is the active one.
QString RelativeTo(TestFrame& frame, const QString& document, const QString& target) {
    frame.active->caption = document;
    return FieldPath(frame, target, {.forwardSlash = false}).value_or(T(u"(nothing)"));
}

} // namespace

TEST(FieldPath, AsksToSaveFirstAndGivesWhatItHasAllTheSame) {
    TestFrame frame;
    const QString file = TestFolder() + QStringLiteral("/b.gif");
    WriteFile(file);
    EXPECT_EQ(RelativeTo(frame, QString(), file), file.mid(1));
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    const Asked& box = frame.prompts.asked.first();
    EXPECT_EQ(box.text, SaveFirst);
    EXPECT_EQ(box.title, QString());
    EXPECT_EQ(box.icon, MsgIcon::Information);
    EXPECT_EQ(box.buttons, MsgButtons::OK);
    EXPECT_EQ(box.owner, frame.Window());
    QWidget owner;
    FieldPath(frame, file, {}, &owner);
    EXPECT_EQ(frame.prompts.asked.last().owner, &owner);
}

TEST(FieldPath, SavedDocumentsNeedNoBox) {
    TestFrame frame;
    WriteFile(TestFolder() + QStringLiteral("/pages/a.htm"));
    WriteFile(TestFolder() + QStringLiteral("/Img/b.gif"));
    EXPECT_EQ(RelativeTo(frame, TestFolder() + QStringLiteral("/pages/a.htm"),
                         TestFolder() + QStringLiteral("/img/B.gif")),
              T(u"../Img/b.gif"));
    EXPECT_EQ(RelativeTo(frame, T(u"C:\\site\\pages\\a.htm"), T(u"C:\\site\\img\\b.gif")),
              T(u"..\\img\\b.gif"));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST(FieldPath, AnEmptyTargetGetsTheBoxLikeADocumentWithoutAPath) {
    TestFrame frame;
    EXPECT_EQ(RelativeTo(frame, T(u"C:\\site\\pages\\a.htm"), QString()), T(u"../../"));
    EXPECT_EQ(RelativeTo(frame, QString(), T(u"C:\\site\\b.gif")), T(u"site\\b.gif"));
    ASSERT_EQ(frame.prompts.asked.size(), 2);
    EXPECT_EQ(frame.prompts.asked[0].text, frame.prompts.asked[1].text);
    EXPECT_EQ(frame.prompts.asked[0].title, frame.prompts.asked[1].title);
    EXPECT_EQ(frame.prompts.asked[0].icon, frame.prompts.asked[1].icon);
}

TEST(FieldPath, AbsoluteOrRelativeThenSlashes) {
    TestFrame frame;
    struct Row {
        QStringView caption;
        QStringView path;
        bool absolute;
        bool forwardSlash;
        QStringView field;
    };
    const Row rows[] = {
        {u"C:\\site\\p\\a.htm", u"C:\\site\\img\\b.gif", false, true, u"../img/b.gif"},
        {u"C:\\site\\p\\a.htm", u"C:\\site\\img\\b.gif", false, false, u"..\\img\\b.gif"},
        {u"C:\\site\\p\\a.htm", u"C:\\site\\img\\b.gif", true, true, u"C:/site/img/b.gif"},
        {u"C:\\site\\p\\a.htm", u"C:\\site\\img\\b.gif", true, false, u"C:\\site\\img\\b.gif"},
    };
    for (const Row& row : rows) {
        frame.active->caption = row.caption.toString();
        QLineEdit field(QStringLiteral("old"));
        PickIntoField(frame, field, row.path.toString(), {row.absolute, row.forwardSlash});
        EXPECT_EQ(field.text(), row.field.toString());
        EXPECT_EQ(FieldPath(frame, row.path.toString(), {row.absolute, row.forwardSlash}),
                  row.field.toString());
    }
}

TEST(FieldPath, NeverSavedDocumentShowsTheBoxAndFillsTheFieldAllTheSame) {
    TestFrame frame;
    QLineEdit field(QStringLiteral("old"));
    PickIntoField(frame, field, QStringLiteral("C:\\site\\b.gif"), {});
    EXPECT_EQ(field.text(), QStringLiteral("site/b.gif"));
    ASSERT_EQ(frame.prompts.Messages().size(), 1);
    EXPECT_TRUE(frame.prompts.Messages().first().startsWith(QStringLiteral("I am unable to complete")));
}

TEST(FieldPath, WithoutADocumentOnlyAFullPathComes) {
    TestFrame frame;
    frame.CloseDocument();
    QLineEdit field(QStringLiteral("old"));
    PickIntoField(frame, field, QStringLiteral("C:\\site\\b.gif"), {});
    EXPECT_EQ(field.text(), QStringLiteral("old"));
    PickIntoField(frame, field, QStringLiteral("C:\\site\\b.gif"), {.absolute = true});
    EXPECT_EQ(field.text(), QStringLiteral("C:/site/b.gif"));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST(ForwardSlash, ClickConvertsTheWholeTextOfTheFields) {
    QCheckBox box;
    box.setChecked(true);
    QLineEdit first(QStringLiteral("http://x/y"));
    QLineEdit second(QStringLiteral("a\\b"));
    ConvertSlashesOnClick(box, {&first, &second});
    EXPECT_EQ(second.text(), QStringLiteral("a\\b")) << "not before a click";
    box.click();
    EXPECT_EQ(first.text(), QStringLiteral("http:\\\\x\\y"));
    EXPECT_EQ(second.text(), QStringLiteral("a\\b"));
    box.click();
    EXPECT_EQ(first.text(), QStringLiteral("http://x/y"));
    EXPECT_EQ(second.text(), QStringLiteral("a/b"));
}
