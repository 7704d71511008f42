// Filters of the file dialogs, from text to Qt's form.
#include "platform/desktop/FileFilters.h"

#include "support/Text.h"

#include <gtest/gtest.h>

TEST(FileFilters, PairsInOrder) {
    struct Row {
        const char* filter;
        QStringList expected;
    };
    const Row rows[] = {
        {"", {}},
        {"All Files (*.*)|*.*|", {QStringLiteral("All Files (*.*) (*)")}},
        {"All files (*.*)|*.*", {QStringLiteral("All files (*.*) (*)")}},
        {"HTML Files (*.htm);(*.html)|*.htm;*.html|Text Files (*.txt)|*.txt|",
         {QStringLiteral("HTML Files (*.htm);(*.html) (*.htm *.html)"),
          QStringLiteral("Text Files (*.txt) (*.txt)")}},
        {"Name alone", {QStringLiteral("Name alone (*)")}},
        {"Spaced| *.a ; *.b |", {QStringLiteral("Spaced (*.a *.b)")}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(NameFilters(QString::fromLatin1(row.filter)), row.expected) << row.filter;
}
