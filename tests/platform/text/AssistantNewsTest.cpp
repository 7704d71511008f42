// What assistive technology is told, and in which order.
#include "platform/text/AssistantNews.h"

#include <gtest/gtest.h>
#include <QAccessible>

namespace {

using namespace Qt::StringLiterals;

TEST(AssistantNews, ChangesAreToldOnceInTheirOrderAndTheCaretBehindThem) {
    QObject control;
    AssistantNews news(control);
    EXPECT_FALSE(news.Wanted()) << "no one listens in a test";
    QStringList told;
    news.hears = [&](QAccessibleEvent& event) {
        EXPECT_EQ(event.object(), &control);
        if (event.type() == QAccessible::TextInserted)
            told << u"+"_s + static_cast<QAccessibleTextInsertEvent&>(event).textInserted();
        else if (event.type() == QAccessible::TextRemoved)
            told << u"-"_s + static_cast<QAccessibleTextRemoveEvent&>(event).textRemoved();
        else if (event.type() == QAccessible::TextCaretMoved)
            told << QString::number(static_cast<QAccessibleTextCursorEvent&>(event).cursorPosition());
        else
            told << u"selection"_s;
    };
    EXPECT_TRUE(news.Wanted());
    news.Removed(0, u"a"_s);
    news.Inserted(0, u"b"_s);
    EXPECT_TRUE(told.isEmpty());
    news.TellChanges();
    news.TellCaret(2, 3, 5);
    EXPECT_EQ(told, QStringList({u"-a"_s, u"+b"_s, u"selection"_s, u"5"_s}));
    news.TellChanges();
    EXPECT_EQ(told.size(), 4);
}

} // namespace
