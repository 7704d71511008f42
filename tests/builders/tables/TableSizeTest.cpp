#include "builders/tables/TableSize.h"

#include "dialogs/TagRows.h"

namespace {

struct SizeRow {
    const char16_t* text;
    std::optional<int> size;
    int written;
    bool belowOne;
};

TEST(TableSize, OfEveryTextThatAFieldCanHold) {
    const SizeRow rows[] = {
        {u"2", 2, 2, false},
        {u" 7 ", 7, 7, false},
        {u"99", 99, 99, false},
        {u"1", 1, 1, false},
        {u"1e2", 100, 100, false},
        // Halves go to the even number in the grid; what is written goes on until it is not below.
        {u"2.5", 2, 3, false},
        {u"3.5", 4, 4, false},
        {u"1.2", 1, 2, false},
        {u"0.7", 1, 1, true},
        {u"0.2", 0, 1, true},
        {u"0", 0, 0, true},
        {u"-5", -5, 0, true},
        {u"-0.5", 0, 0, true},
        // No number, or one only at the start.
        {u"", std::nullopt, 0, true},
        {u"   ", std::nullopt, 0, true},
        {u"abc", std::nullopt, 0, true},
        {u"12abc", std::nullopt, 12, false},
        {u"99,999", std::nullopt, 99, false},
        {u"nan", std::nullopt, 0, true},
        {u"inf", std::nullopt, 0, true},
        // Too large for a size.
        {u"32767", 32767, 32767, false},
        {u"32767.4", 32767, 0, false},
        {u"32767.5", std::nullopt, 0, false},
        {u"32768", std::nullopt, 0, false},
        {u"99999", std::nullopt, 0, false},
        {u"-32768", std::nullopt, 0, true},
        {u"1e30", std::nullopt, 0, false},
        {u"1e400", std::nullopt, 0, true},
        {u"99999999999999999999", std::nullopt, 0, false},
    };
    for (const SizeRow& row : rows) {
        const QString text = T(row.text);
        EXPECT_EQ(TableSize(text), row.size) << text.toStdString();
        EXPECT_EQ(WrittenCount(text), row.written) << text.toStdString();
        EXPECT_EQ(IsBelowOne(text), row.belowOne) << text.toStdString();
    }
}

} // namespace
