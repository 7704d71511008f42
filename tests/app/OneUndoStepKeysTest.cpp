// One act of the user is one undo step: what keys, lists, the clipboard and the mouse write.
#include "app/Acts.h"

#include "editor/frame/Forms.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QListWidget>
#include <QMimeData>

namespace {

using namespace Qt::StringLiterals;

class OneUndoStepOfKeys : public ActsTest {
  protected:
    void Commit(const QString& text, int replaceFrom = 0, int replaceLength = 0) {
        QInputMethodEvent event;
        event.setCommitString(text, replaceFrom, replaceLength);
        QCoreApplication::sendEvent(&Box(), &event);
    }
    void Drop(const QString& text) {
        QMimeData data;
        data.setText(text);
        const QPoint at = Box().CharacterRect(2).center();
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(Box().viewport(), &enter);
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(Box().viewport(), &drop);
    }
    /// Brings up the list of a tag's attributes: it is filled at the blank, before it shows.
    QListWidget& List(const char* tag) {
        Put(QString::fromLatin1(tag));
        Key(Qt::Key_Escape);
        Type(u" "_s);
        auto* list = Form("frmDropDown").findChild<QListWidget*>(u"ListView1"_s);
        EXPECT_GT(list->count(), 0);
        return *list;
    }
};

TEST_F(OneUndoStepOfKeys, Typing) {
    for (const QString& marked : {u"<P>ab|cd<B>"_s, u"<P>a[bc]d<B>"_s, u"<P[>\r\n<]B>"_s}) {
        const struct {
            const char* name;
            std::function<void()> act;
        } rows[] = {
            {"letter", [&] { Type(u"x"_s); }},
            {"converted letter", [&] { Type(u"é"_s); }},
            {"character from outside", [&] { Type(u"☃"_s); }},
            {"Enter", [&] { Key(Qt::Key_Return); }},
            {"Tab", [&] { Key(Qt::Key_Tab); }},
            {"Backspace", [&] { Key(Qt::Key_Backspace); }},
            {"Delete", [&] { Key(Qt::Key_Delete); }},
            {"word back", [&] { Key(Qt::Key_Backspace, Qt::ControlModifier); }},
            {"word forward", [&] { Key(Qt::Key_Delete, Qt::ControlModifier); }},
            {"composed letters", [&] { Commit(u"nét☃é"_s); }},
            {"composed in place of others", [&] { Commit(u"é"_s, -1, 1); }},
        };
        for (const auto& row : rows) {
            SCOPED_TRACE(marked.toStdString());
            Put(marked);
            ExpectOneStep(row.name, row.act);
        }
    }
}

TEST_F(OneUndoStepOfKeys, ATagThatItsBracketCloses) {
    for (const QString& marked : {u"a <B|<I>"_s, u"a <B [x ]<I>"_s})
        for (const bool colored : {true, false}) {
            Settings().WriteFlag(Keys::ColoredTags, colored);
            Put(marked);
            ExpectOneStep("closing bracket", [&] { Type(u">"_s); });
            EXPECT_EQ(Box().Text(), marked.contains(u'|') ? u"a <B<I>"_s : u"a <B x <I>"_s);
        }
}

TEST_F(OneUndoStepOfKeys, PicksFromTheLists) {
    QListWidget* list = &List("<BODY|");
    ExpectOneStep("attribute", [&] { Key(Qt::Key_Return); });
    list = &List("<BODY|");
    ExpectOneStep("attribute, by mouse", [&] { Q_EMIT list->itemDoubleClicked(list->item(0)); });
    List("<P|");
    Key(Qt::Key_Return);
    ASSERT_TRUE(Box().Text().endsWith(u"=\"\""_s)) << Box().Text().toStdString();
    ExpectOneStep("value", [&] { Key(Qt::Key_Return); });
}

TEST_F(OneUndoStepOfKeys, AColorOfTheUsersOwnFromAList) {
    QListWidget& attributes = List("<BODY|");
    for (int row = 0; row < attributes.count(); ++row)
        if (attributes.item(row)->text().startsWith(u"BGCOLOR"_s, Qt::CaseInsensitive))
            attributes.setCurrentRow(row);
    Key(Qt::Key_Return);
    auto* values = Form("frmDropDown").findChild<QListWidget*>(u"ListView1"_s);
    for (int row = 0; row < values->count(); ++row)
        if (values->item(row)->data(Qt::UserRole).toString() == u"custom"_s)
            values->setCurrentRow(row);
    ExpectOneStep("colour", [&] { Key(Qt::Key_Return); });
    Key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_TRUE(Box().Text().contains(u"\"#FF0000\""_s)) << Box().Text().toStdString();
}

TEST_F(OneUndoStepOfKeys, ClipboardAndDrop) {
    for (const QString& marked : {u"a<B>b|cd"_s, u"a<B>[bc\r\n]d"_s}) {
        QGuiApplication::clipboard()->setText(u"x\ny ☃"_s);
        Put(marked);
        ExpectOneStep("paste", [&] { Key(Qt::Key_V, Qt::ControlModifier); });
        Put(marked);
        ExpectOneStep("drop", [&] { Drop(u"x\ny ☃"_s); });
    }
    Put(u"a<B>[bc\r\n]d"_s);
    ExpectOneStep("cut", [&] { Key(Qt::Key_X, Qt::ControlModifier); });
}

} // namespace
