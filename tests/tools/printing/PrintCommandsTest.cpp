// The print command from the question for copies to the last page, on a printer of pictures and into PDF
// files.
#include "tools/printing/PrintCommands.h"
#include "tools/printing/FakeDevice.h"
#include "tools/printing/PrintJob.h"

#include "dialogs/DialogState.h"
#include "editor/color/ColorizeText.h"
#include "platform/values/Cp1252.h"
#include "support/Files.h"
#include "support/FreshUser.h"
#include "support/SourceFolder.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QDirIterator>
#include <QFont>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

namespace {

using namespace Qt::StringLiterals;

class PrintTest : public testing::Test {
  protected:
    PrintTest() {
        FillPrintCommands(frame);
        UsePrinter();
    }
    void UsePrinter() {
        frame.State<PrintDevices>().Default = [this] { return std::make_unique<FakeDevice>(record); };
    }
    void UsePdf(const QString& path) {
        frame.State<PrintDevices>().Default = [] { return nullptr; };
        frame.prompts.saveAnswers = {path.isEmpty() ? ScriptedPrompts::Cancelled()
                                                    : ScriptedPrompts::Picked(path)};
    }
    void Start(const char* copies) {
        frame.prompts.asked.clear();
        frame.prompts.inputAnswers = {QString::fromLatin1(copies)};
        frame.commands.Run(u"mnuPrint"_s);
    }
    void Print(const char* copies = "1") {
        Start(copies);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !PrintJob::Of(frame); }, 60'000));
    }
    QString Calls() const { return record.calls.join(u' '); }
    static QString Run(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(60'000)) << program.toStdString();
        EXPECT_EQ(process.exitCode(), 0) << program.toStdString();
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    static bool HasPoppler() { return !QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty(); }
    static int PagesOf(const QString& pdf) {
        static const QRegularExpression pages(u"Pages:\\s+(\\d+)"_s);
        return pages.match(Run(u"pdfinfo"_s, {pdf})).captured(1).toInt();
    }

    TestFrame frame;
    PrintRecord record;
};

TEST_F(PrintTest, AsksForTheNumberOfCopies) {
    frame.SetText(u"text"_s);
    Print();
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.prompts.asked[0].kind, Asked::Input);
    EXPECT_EQ(frame.prompts.asked[0].text, u"Number of copies:"_s);
    EXPECT_EQ(frame.prompts.asked[0].title, u"Print"_s);
}

TEST_F(PrintTest, EachCopyIsAJobOfItsOwn) {
    frame.SetText(u"text"_s);
    Print("2");
    EXPECT_EQ(Calls(), u"start end start end close"_s);
    EXPECT_EQ(record.pages.size(), 2u);
    EXPECT_EQ(record.pages[0], record.pages[1]);
}

TEST_F(PrintTest, BelowOneCopyNothingIsPrintedAndNothingSaid) {
    frame.SetText(u"text"_s);
    for (const char* copies : {"0", "-1", "abc", "", "70000", "-70000"}) {
        Start(copies);
        EXPECT_FALSE(PrintJob::Of(frame)) << copies;
        EXPECT_EQ(frame.prompts.asked.size(), 1) << copies;
    }
    EXPECT_EQ(Calls(), QString());
}

TEST_F(PrintTest, WithoutADocumentThereIsNothingToPrint) {
    frame.CloseDocument();
    Start("1");
    ASSERT_EQ(frame.prompts.asked.size(), 2);
    EXPECT_EQ(frame.prompts.asked[1].text, u"There is nothing to print."_s);
    EXPECT_EQ(frame.prompts.asked[1].title, u"Print"_s);
    EXPECT_EQ(frame.prompts.asked[1].icon, MsgIcon::Critical);
    frame.prompts.asked.clear();
    Start("0");
    EXPECT_EQ(frame.prompts.asked.size(), 1) << "the copies are looked at first";
    EXPECT_EQ(Calls(), QString());
}

TEST_F(PrintTest, ATextThatFitsOnePageHasNoOther) {
    for (const char* text : {"", "\r\n", "text", "text\r\n"}) {
        record = {};
        frame.SetText(QString::fromLatin1(text));
        Print();
        EXPECT_EQ(Calls(), u"start end close"_s) << text;
    }
}

TEST_F(PrintTest, APageThatIsFullHasNoOtherEither) {
    QString text;
    QString calls;
    for (int lines = 1; calls != u"start page end close"; ++lines) {
        ASSERT_LT(lines, 100);
        calls.clear();
        record = {};
        text += (text.isEmpty() ? u"x"_s : u"\r\nx"_s);
        frame.SetText(text);
        Print();
        calls = Calls();
    }
    // One line less fills the page to its end, with and without a line end behind it.
    text.chop(3);
    for (const QString& full : {text, text + u"\r\n"_s}) {
        record = {};
        frame.SetText(full);
        Print();
        EXPECT_EQ(Calls(), u"start end close"_s);
    }
}

TEST_F(PrintTest, DrawsInColorWithinTheMargins) {
    frame.SetText(u"WWWWWWWW<B>WWWWWWWW</B>"_s.repeated(40));
    frame.Box().SetSelStart(8);
    frame.Box().SetSelLength(3);
    frame.Box().SetSelColor(0x0000ff);
    Print();
    ASSERT_FALSE(record.pages.empty());
    const QImage& page = record.pages[0];
    // One inch from the paper's edges, less what the device leaves free: 48 and 24 pixels of 96 an inch.
    const QRect inside(96 - 48, 96 - 24, 384 - 2 * 96, 288 - 2 * 96);
    QRect drawn;
    bool red = false;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            if (const QColor color = page.pixelColor(x, y); color != Qt::white) {
                drawn |= QRect(x, y, 1, 1);
                red = red || (color.red() > 200 && color.green() < 60 && color.blue() < 60);
            }
    EXPECT_TRUE(red);
    EXPECT_TRUE(inside.adjusted(-2, -2, 2, 2).contains(drawn))
        << drawn.x() << ' ' << drawn.y() << ' ' << drawn.width() << ' ' << drawn.height();
    EXPECT_GT(drawn.width(), inside.width() / 2);
}

TEST_F(PrintTest, TellsThePageAndEscStops) {
    frame.SetText(u"line\r\n"_s.repeated(3000));
    Start("1");
    ASSERT_TRUE(QTest::qWaitFor([this] { return record.pages.size() == 3; }));
    EXPECT_TRUE(frame.statuses.contains(u"Printing page 3, Esc stops . . . "_s));
    QTest::keyClick(&frame.Box(), Qt::Key_Escape);
    EXPECT_TRUE(Calls().endsWith(u" abort"_s));
    EXPECT_FALSE(PrintJob::Of(frame));
    EXPECT_EQ(frame.statuses.last(), QString());
    EXPECT_EQ(frame.prompts.asked.size(), 1) << "nothing is said";
    // Another print may follow at once.
    record = {};
    frame.SetText(u"text"_s);
    Print();
    EXPECT_EQ(Calls(), u"start end close"_s);
}

TEST_F(PrintTest, WhatIsEditedMeanwhileIsNotPrinted) {
    frame.SetText(u"line\r\n"_s.repeated(200));
    Print();
    const std::vector<QImage> whole = record.pages;
    record = {};
    Start("1");
    ASSERT_TRUE(QTest::qWaitFor([this] { return record.pages.size() == 1; }));
    frame.CloseDocument();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !PrintJob::Of(frame); }));
    EXPECT_EQ(record.pages, whole);
}

TEST_F(PrintTest, ASecondPrintWaitsForTheFirst) {
    frame.SetText(u"line\r\n"_s.repeated(200));
    Start("1");
    frame.prompts.asked.clear();
    frame.commands.Run(u"mnuPrint"_s);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !PrintJob::Of(frame); }));
}

TEST_F(PrintTest, APrinterThatGoesAwayIsToldByItsNumber) {
    const struct {
        const char* failsAt;
        const char* calls;
        const char* box;
    } rows[] = {
        {"start1", "start abort", "An error ocurred - 482"},
        {"page2", "start page page abort", "An error ocurred - 482"},
        {"start2", "start page page page end start abort", "An error ocurred - 482"},
        {"end1", "start page page page end abort", "An error ocurred - 482"},
        {"close1", "start page page page end start page page page end close abort", "An error ocurred - 75"},
    };
    frame.SetText(u"line\r\n"_s.repeated(20));
    for (const auto& row : rows) {
        record = {};
        record.failsAt = QString::fromLatin1(row.failsAt);
        Print("2");
        EXPECT_EQ(Calls(), QString::fromLatin1(row.calls)) << row.failsAt;
        EXPECT_EQ(frame.prompts.Messages(), QStringList{QString::fromLatin1(row.box)}) << row.failsAt;
        EXPECT_EQ(frame.prompts.asked.last().icon, MsgIcon::None);
        EXPECT_EQ(frame.statuses.last(), QString());
    }
}

TEST_F(PrintTest, AFrameThatGoesEndsThePrint) {
    auto other = std::make_unique<TestFrame>();
    FillPrintCommands(*other);
    other->State<PrintDevices>().Default = [this] { return std::make_unique<FakeDevice>(record); };
    other->SetText(u"line\r\n"_s.repeated(3000));
    other->prompts.inputAnswers = {u"1"_s};
    other->commands.Run(u"mnuPrint"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return record.pages.size() == 2; }));
    other.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(record.pages.size(), 2u);
    EXPECT_TRUE(Calls().endsWith(u" abort"_s));
}

TEST_F(PrintTest, WithoutAPrinterAPdfFileIsAskedFor) {
    frame.State<DialogState>().LastDir = u"/folder"_s;
    UsePdf(QString());
    frame.SetText(u"text"_s);
    const struct {
        const char* caption;
        const char* name;
    } rows[] = {{"", ""},
                {"/site/index.html", "index.pdf"},
                {"/site/.htaccess", ".htaccess.pdf"},
                {"C:\\a\\b", "b.pdf"}};
    for (const auto& row : rows) {
        UsePdf(QString());
        frame.active->SetCaption(QString::fromLatin1(row.caption));
        Start("1");
        ASSERT_EQ(frame.prompts.asked.size(), 2);
        const Asked& asked = frame.prompts.asked[1];
        EXPECT_EQ(asked.kind, Asked::Save);
        EXPECT_EQ(asked.request.fileName, QString::fromLatin1(row.name));
        EXPECT_EQ(asked.request.defaultExtension, u"pdf"_s);
        EXPECT_EQ(asked.request.folder, u"/folder"_s);
        EXPECT_FALSE(PrintJob::Of(frame)) << "Cancel ends it silently";
    }
}

TEST_F(PrintTest, APdfHasTheTextOfThePage) {
    if (!HasPoppler())
        GTEST_SKIP() << "no pdftotext";
    const QString pdf = TestFolder() + u"/out.pdf"_s;
    frame.SetText(u"<p>One caf\u00e9 &amp; two</p>\r\n\r\n<b>three</b>\r\n"_s);
    UsePdf(pdf);
    Print();
    EXPECT_EQ(PagesOf(pdf), 1);
    EXPECT_EQ(Run(u"pdftotext"_s, {pdf, u"-"_s}).simplified(),
              u"<p>One caf\u00e9 &amp; two</p> <b>three</b>"_s);
    EXPECT_EQ(frame.prompts.asked.size(), 2) << "no box follows";
    // Copies stand one behind the other in the one file.
    UsePdf(pdf);
    Print("3");
    EXPECT_EQ(PagesOf(pdf), 3);
}

/// Words on a page in reading order; where a line was broken does not count, nor how wide a blank is.
QString Joined(QString text) {
    static const QRegularExpression blanks(u"[\\s\u00a0]+"_s);
    return text.remove(blanks);
}

TEST_F(PrintTest, PagesOfTextBeyondTheCodePageComeOutWhole) {
    if (!HasPoppler())
        GTEST_SKIP() << "no pdftotext";
    const QString pdf = TestFolder() + u"/out.pdf"_s;
    QString text;
    for (int line = 1; line <= 150; ++line)
        text += u"<p>\u03bb\u03cc\u03b3\u03bf\u03c2 \U0001d538 %1</p>\r\n"_s.arg(line);
    frame.Box().SetHolds(CharacterSet::Unicode);
    frame.SetText(text);
    UsePdf(pdf);
    Print();
    EXPECT_GT(PagesOf(pdf), 2);
    // Which fonts have the letter of two units, and whether it comes back, is the machine's; the page ends
    // are found by its units all the same.
    const auto withoutIt = [](const QString& from) { return Joined(from).remove(u"\U0001d538"_s); };
    EXPECT_EQ(withoutIt(Run(u"pdftotext"_s, {u"-raw"_s, pdf, u"-"_s})), withoutIt(text));
}

TEST_F(PrintTest, ThePagesOfTheExampleSiteComeOutWhole) {
    if (!HasPoppler())
        GTEST_SKIP() << "no pdftotext";
    QDirIterator files(SourceFolder() + u"/examples/site"_s, {u"*.html"_s, u"*.htm"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    int pages = 0;
    while (files.hasNext()) {
        const QString path = files.next();
        SCOPED_TRACE(path.toStdString());
        QString text = Cp1252::FromBytes(ReadFile(path));
        const QString source = text;
        frame.Box().SetText(QString());
        ColorizeText(frame, text, KeepDocument::No, CaretToTop::Yes);
        const QString pdf = TestFolder() + u"/site.pdf"_s;
        UsePdf(pdf);
        Print();
        EXPECT_EQ(Joined(Run(u"pdftotext"_s, {u"-raw"_s, pdf, u"-"_s})), Joined(source));
        // No page is empty.
        const int count = PagesOf(pdf);
        for (int page = 1; page <= count; ++page) {
            const QString number = QString::number(page);
            EXPECT_FALSE(
                Run(u"pdftotext"_s, {u"-f"_s, number, u"-l"_s, number, pdf, u"-"_s}).trimmed().isEmpty())
                << page;
        }
        ++pages;
    }
    EXPECT_GT(pages, 2);
}

TEST_F(PrintTest, ThePagesHaveTheColorsOfTheText) {
    if (QStandardPaths::findExecutable(u"pdftoppm"_s).isEmpty())
        GTEST_SKIP() << "no pdftoppm";
    const QString pdf = TestFolder() + u"/colors.pdf"_s;
    QString text = u"MMMM<B>MMMM</B><A HREF=x>MMM</A><IMG SRC=MMMM><!-- MMM -->"_s;
    ColorizeText(frame, text, KeepDocument::No, CaretToTop::Yes);
    frame.Box().SetFont(QFont(u"DejaVu Sans"_s, 36, QFont::Bold));
    UsePdf(pdf);
    Print();
    Run(u"pdftoppm"_s, {u"-r"_s, u"60"_s, u"-png"_s, u"-singlefile"_s, pdf, TestFolder() + u"/colors"_s});
    const QImage page(TestFolder() + u"/colors.png"_s);
    ASSERT_FALSE(page.isNull());
    for (const QColor& color :
         {QColor(0, 0, 0), QColor(0, 0, 255), QColor(0, 128, 0), QColor(255, 0, 0), QColor(128, 128, 128)}) {
        int dots = 0;
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x)
                dots += page.pixelColor(x, y) == color ? 1 : 0;
        EXPECT_GT(dots, 50) << color.name().toStdString();
    }
}

TEST_F(PrintTest, AStoppedOrFailedPdfLeavesTheOldFile) {
    const QString pdf = TestFolder() + u"/old.pdf"_s;
    WriteFile(pdf, "old");
    frame.SetText(u"line\r\n"_s.repeated(100'000));
    UsePdf(pdf);
    Start("1");
    ASSERT_TRUE(QTest::qWaitFor([this] { return frame.statuses.size() > 2; }));
    QTest::keyClick(&frame.Box(), Qt::Key_Escape);
    EXPECT_FALSE(PrintJob::Of(frame));
    EXPECT_EQ(ReadFile(pdf), "old");
    frame.SetText(u"text"_s);
    UsePdf(pdf + u"/below.pdf"_s);
    Print();
    EXPECT_EQ(frame.prompts.Messages(), QStringList{u"An error ocurred - 75"_s});
    EXPECT_EQ(ReadFile(pdf), "old");
}

} // namespace
