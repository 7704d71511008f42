// The values that the program carries from the store and back: their order, and the rules that all keep.
#include "app/run/CarriedValues.h"

#include "app/RealFrame.h"

#include <algorithm>

namespace {

class CarriedValuesTest : public FrameTest {
  protected:
    QStringList Order(auto step) const {
        QStringList keys;
        for (const CarriedValue& row : values.Rows())
            if (std::invoke(step, row))
                keys << row.key.key;
        return keys;
    }
    QStringList Read(ReadAt step) const {
        return Order([step](const CarriedValue& row) { return row.readAt == step; });
    }
    QStringList Written(WrittenAt step) const {
        return Order([step](const CarriedValue& row) { return row.writtenAt == step; });
    }
    static QStringList Words(const char* words) { return QString::fromLatin1(words).split(u' '); }
    static QStringList Numbered(const QStringList& names, int count) {
        QStringList keys;
        for (int n = 0; n < count; ++n)
            for (const QString& name : names)
                keys << name.arg(n);
        return keys;
    }

    ProgramRun run;
    CarriedValues values{*run.frame};
    const QStringList colors = Numbered({QStringLiteral("EdTextColor%1")}, 6);
    const QStringList recent = Numbered({QStringLiteral("MenuArray(%1)")}, 8);
    const QStringList buttons = Numbered(
        {QStringLiteral("FirstBut(%1)"), QStringLiteral("SecondBut(%1)"), QStringLiteral("ButCap(%1)")}, 30);
};

TEST_F(CarriedValuesTest, AreReadInTheirOrder) {
    EXPECT_EQ(Read(ReadAt::UseAutoFill), Words("UseAutoFill"));
    EXPECT_EQ(Read(ReadAt::Geometry), Words("MainFormHeight MainFormWidth MainFormLeft MainFormTop"));
    EXPECT_EQ(Read(ReadAt::Dictionaries), Words("StandardDic CustomDic"));
    EXPECT_EQ(Read(ReadAt::EditorValues),
              Words("FirstTimeAgain") + colors +
                  Words("UserTemplate LinkColor TemplateWindowState Background2 ReloadFlag TheOpenFile"));
    EXPECT_EQ(Read(ReadAt::LastDir), Words("LastDir"));
    EXPECT_EQ(Read(ReadAt::ProgramValues), Words("MainWindowState Web FTP LocalPreview LocalFTP"));
    EXPECT_EQ(Read(ReadAt::Lists), recent + buttons);
}

TEST_F(CarriedValuesTest, AreWrittenInTheirOrder) {
    EXPECT_EQ(Written(WrittenAt::Never), Words("UseAutoFill Web FTP LocalPreview LocalFTP"));
    EXPECT_EQ(Written(WrittenAt::RunCount), Words("FirstTimeAgain"));
    EXPECT_EQ(Written(WrittenAt::Dictionaries), Words("StandardDic CustomDic"));
    EXPECT_EQ(Written(WrittenAt::TextColors), colors);
    EXPECT_EQ(Written(WrittenAt::LinkColor) + Written(WrittenAt::EditorValues),
              Words("LinkColor UserTemplate TemplateWindowState Background2 ReloadFlag TheOpenFile LastDir"));
    EXPECT_EQ(Written(WrittenAt::Geometry), Words("MainFormHeight MainFormWidth MainFormLeft MainFormTop"));
    EXPECT_EQ(Written(WrittenAt::WindowState), Words("MainWindowState"));
    EXPECT_EQ(Written(WrittenAt::RecentFiles), recent);
    EXPECT_EQ(Written(WrittenAt::UserButtons), buttons);
}

// Of a fresh user: a value that is written without having been read is its key's default.
TEST_F(CarriedValuesTest, StartFromTheirDefaults) {
    // These four come from elsewhere; UseAutoFill is kept as a flag and stored as a number.
    const QStringList others = Words("FirstTimeAgain LastDir StandardDic CustomDic UseAutoFill");
    int compared = 0;
    for (const CarriedValue& row : values.Rows()) {
        if (others.contains(row.key.key))
            continue;
        Write(row.key, "changed");
        row.write(*run.frame);
        EXPECT_EQ(run.store.Read(row.key), row.key.standard) << row.key.key.toStdString();
        ++compared;
    }
    EXPECT_TRUE(run.Editor().UseAutoFill);
    EXPECT_EQ(compared, 119);
}

TEST_F(CarriedValuesTest, KeepTheirPreviousValueWhereATextDoesNotConvert) {
    const struct {
        SettingsKey key;
        const char* good;
        const char* bad;
    } rows[] = {
        {Keys::UseAutoFill, "False", "maybe"},
        {Keys::MainFormHeight, "7500", "high"},
        {Keys::MainFormWidth, "9000", ""},
        {Keys::MainFormLeft, "-450", "4 5"},
        {Keys::MainFormTop, "300", "top"},
        {Keys::EdTextColor[0], "\\red1\\green2\\blue3", "\\red1\\green2\\blue"},
        {Keys::EdTextColor[5], "\\red1\\green2\\blue3", "}"},
        {Keys::Background2, "255", "2147483648"},
        {Keys::ReloadFlag, "True", "perhaps"},
        {Keys::LocalPreview, "False", ""},
        {Keys::LocalFTP, "False", "off"},
    };
    for (const auto& row : rows) {
        const auto carried = std::ranges::find_if(
            values.Rows(), [&row](const CarriedValue& value) { return value.key.key == row.key.key; });
        ASSERT_NE(carried, values.Rows().end());
        for (const char* stored : {row.good, row.bad}) {
            run.store.Write(row.key, QString::fromLatin1(stored));
            carried->read(*run.frame);
        }
        carried->write(*run.frame);
        EXPECT_EQ(run.store.Read(row.key), QString::fromLatin1(row.good)) << row.bad;
    }
}

} // namespace
