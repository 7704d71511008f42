// What opening, colouring and saving cost by the size of the page, until the control has nothing left to do,
// and how much memory opening takes at its peak. Ends with 1 where the cost of a byte grows with the page,
// where a page with a third of its characters beyond ASCII costs much more than one of ASCII, or the memory
// is more than 16 bytes a byte.
#include "app/documents/FileCommands.h"
#include "app/documents/OpenDocument.h"
#include "editor/color/ColorizeText.h"
#include "RunBenchmarks.h"
#include "support/FreshUser.h"
#include "support/TestFrame.h"
#include "UntilIdle.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <ctime>
#include <QApplication>
#include <QFile>
#include <QProcess>

namespace {

constexpr qint64 kilobyte = 1'000;
constexpr qint64 megabyte = 1'000'000;
constexpr double bytesOfMemoryAByte = 16;
constexpr double longestToShortest = 2;
constexpr double foreignToAscii = 1.5;

/// What pages are made of: words with a tag for every twenty bytes, lines without a tag, scripts full of
/// braces.
const QByteArray words("<P>Some words to read, then a few <B>bold</B> ones, a line's end,\r\n"
                       "and a way <A HREF=\"next.html\">on to the next</A> page.</P>\r\n");
const QByteArray lines("a line\r\n");
/// A third of their characters is beyond ASCII.
const QByteArray
    foreignWords("<P>Несколько слов, then a few <B>πολλές</B> ones, a line's end,\r\n"
                 "and żółty way <A HREF=\"next.html\">на другую страницу 日本語</A> page.</P>\r\n");
const QByteArray braces("<B>{ {a\\b} }</B>\n");

QString PageFile(qint64 size, const QByteArray& row = words) {
    const QString path = TestFolder() + QStringLiteral("/page%1-%2.html").arg(size).arg(qHash(row));
    QFile file(path);
    if (file.exists() || !file.open(QIODevice::WriteOnly))
        return path;
    QByteArray page;
    page.reserve(size + row.size());
    while (page.size() < size)
        page += row;
    file.write(page);
    return path;
}

/// Seconds of one run, the program's own time: others share the machine.
double CpuSeconds() {
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

class SavingFrame final : public TestFrame {
  public:
    SavingFrame() { FillFileCommands(*this); }
};

double OpenOnce(SavingFrame& frame, const QString& path) {
    const double start = CpuSeconds();
    OpenDocumentFile(frame, path);
    RunUntilIdle();
    const double taken = CpuSeconds() - start;
    frame.CloseDocument();
    return taken;
}

void OpenAndColour(benchmark::State& state) {
    SavingFrame frame;
    const QString path = PageFile(state.range(0));
    for ([[maybe_unused]] auto step : state) {
        OpenDocumentFile(frame, path);
        RunUntilIdle();
        state.PauseTiming();
        frame.CloseDocument();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(OpenAndColour)
    ->Arg(10 * kilobyte)
    ->Arg(100 * kilobyte)
    ->Arg(megabyte)
    ->Arg(10 * megabyte)
    ->Arg(50 * megabyte)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void Save(benchmark::State& state) {
    SavingFrame frame;
    const QString path = PageFile(state.range(0));
    OpenDocumentFile(frame, path);
    frame.active->SetCaption(TestFolder() + QStringLiteral("/saved.html"));
    frame.active->OnDisk() = {};
    for ([[maybe_unused]] auto step : state)
        mnuSave_Click(frame);
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(Save)
    ->Arg(100 * kilobyte)
    ->Arg(megabyte)
    ->Arg(10 * megabyte)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN)
    ->UseRealTime();

/// What the options do to the page in front of them when their colours are taken over.
void Recolour(benchmark::State& state) {
    SavingFrame frame;
    OpenDocumentFile(frame, PageFile(state.range(0)));
    for ([[maybe_unused]] auto step : state) {
        QString text = frame.Box().Text();
        frame.Box().SetText(QString());
        ColorizeText(frame, std::move(text), KeepDocument::No, CaretToTop::Yes);
        frame.Box().EmptyUndoBuffer();
    }
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(Recolour)
    ->Arg(100 * kilobyte)
    ->Arg(megabyte)
    ->Arg(10 * megabyte)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

/// The most memory that this process ever held, in bytes.
double PeakMemory() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() * 1024;
    }
    return 0;
}

/// The peak memory of a fresh process that opens a page of that size and nothing else.
double PeakMemoryOf(qint64 size) {
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--open"), PageFile(size)});
    child.waitForFinished(-1);
    return child.readAllStandardOutput().trimmed().toDouble();
}

int OpenAndTellMemory(const QString& path) {
    SavingFrame frame;
    OpenDocumentFile(frame, path);
    QCoreApplication::processEvents();
    std::printf("%.0f\n", PeakMemory());
    return frame.Box().TextLength() > 0 ? 0 : 1;
}

bool MemoryIsLean() {
    const double alone = PeakMemoryOf(kilobyte);
    bool lean = true;
    for (const qint64 size : {megabyte, 10 * megabyte, 50 * megabyte}) {
        const double perByte = (PeakMemoryOf(size) - alone) / static_cast<double>(size);
        std::printf("peak memory, %3lld MB: %5.1f bytes a byte above the %.0f MB of a small page\n",
                    static_cast<long long>(size / megabyte), perByte, alone / 1e6);
        lean = lean && perByte <= bytesOfMemoryAByte;
    }
    return lean;
}

/// A byte of a page fifty times as large costs about the same, whatever the page is made of.
bool CostIsLinear(const char* what, const QByteArray& row) {
    SavingFrame frame;
    const auto perByte = [&](qint64 size) {
        const QString path = PageFile(size, row);
        double best = OpenOnce(frame, path);
        for (int run = 0; run < 2; ++run)
            best = std::min(best, OpenOnce(frame, path));
        return best / static_cast<double>(size);
    };
    const double small = perByte(megabyte);
    const double large = perByte(50 * megabyte);
    std::printf("opening %s: %.1f ns a byte at 1 MB, %.1f at 50 MB\n", what, small * 1e9, large * 1e9);
    return large <= longestToShortest * small;
}

/// The cost of a page in UTF-8 against that of one of ASCII that is as large.
bool ForeignWordsAreCheap() {
    SavingFrame frame;
    constexpr qint64 size = 10 * megabyte;
    const QString paths[] = {PageFile(size, words), PageFile(size, foreignWords)};
    double best[] = {OpenOnce(frame, paths[0]), OpenOnce(frame, paths[1])};
    for (int run = 0; run < 2; ++run) {
        for (int i = 0; i < 2; ++i)
            best[i] = std::min(best[i], OpenOnce(frame, paths[i]));
    }
    std::printf("opening 10 MB: %.0f ms of ASCII, %.0f ms with a third beyond it\n", best[0] * 1e3,
                best[1] * 1e3);
    return best[1] <= foreignToAscii * best[0];
}

} // namespace

int main(int argc, char** argv) {
    PrepareBenchmarks();
    const QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--open") == 0)
        return OpenAndTellMemory(QFile::decodeName(argv[2]));
    const bool shapesHold = RunBenchmarks(argc, argv) == 0;
    const bool linear[] = {CostIsLinear("words", words), CostIsLinear("lines", lines),
                           CostIsLinear("braces", braces), CostIsLinear("foreign words", foreignWords)};
    const bool cheap = ForeignWordsAreCheap();
    const bool lean = MemoryIsLean();
    return shapesHold && linear[0] && linear[1] && linear[2] && linear[3] && cheap && lean ? 0 : 1;
}
