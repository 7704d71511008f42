// What the text control costs by the length of its text: a key, a search or a page the same in every text, a
// whole assignment and its undo linear.
#include "platform/RichTextBox.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int shortest = 10'000;
constexpr int longest = 10'000'000;

/// A coloured page with a tag for every twenty characters; every hundredth line has letters of two and three
/// bytes.
QString Page(benchmark::IterationCount size, bool ascii) {
    const QString plain =
        QStringLiteral("\\cf1 Some words, \\cf2 <B>\\cf1 bold ones\\cf2 </B>\\cf1 and more.\\par ");
    const QString foreign =
        QString::fromUtf8("\\cf1 Schöne Wörter für 5 € – \\cf2 <B>\\cf1 ja\\cf2 </B>\\par ");
    QString rtf = QStringLiteral("{{\\colortbl ;\\red0\\green0\\blue0;\\red0\\green0\\blue255;}");
    rtf.reserve(2 * size);
    // Of 73 characters of RTF, 47 are text.
    const auto lines = size / 47 + 1;
    for (benchmark::IterationCount i = 0; i < lines; ++i) {
        rtf += !ascii && i % 100 == 0 ? foreign : plain;
    }
    return rtf + QLatin1Char('}');
}

/// A control of that many characters, shown, with its caret in the middle. Lines do not wrap: that goes on in
/// the background for a while after a text came in, and would be measured with each key.
class Filled {
  public:
    explicit Filled(benchmark::IterationCount size, bool ascii = true) {
        box.resize(800, 600);
        box.SetRightMargin(65000);
        box.show();
        box.SetSelRTF(Page(size, ascii));
        box.EmptyUndoBuffer();
        box.SetSelStart(box.LineStart(box.TextLength() / 2) + 5);
        QObject::connect(&box, &RichTextBox::SCN_PAINTED, &box, [this] { ++paints; });
        while (paints == 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    RichTextBox box;
    int paints = 0;
};

void Press(RichTextBox& box, int key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&box, &press);
    QCoreApplication::processEvents();
}

void TypeKey(benchmark::State& state, bool ascii) {
    Filled filled(state.range(0), ascii);
    const int before = filled.paints;
    for ([[maybe_unused]] auto step : state) {
        Press(filled.box, Qt::Key_X, QStringLiteral("x"));
        Press(filled.box, Qt::Key_Backspace, QStringLiteral("\b"));
    }
    if (filled.paints - before < 2 * state.iterations())
        state.SkipWithError("not every key was painted");
    state.SetItemsProcessed(2 * state.iterations());
    state.SetComplexityN(state.range(0));
}
void KeyUntilPainted(benchmark::State& state) {
    TypeKey(state, true);
}
BENCHMARK(KeyUntilPainted)->RangeMultiplier(10)->Range(shortest, longest)->Complexity(benchmark::o1);
void KeyUntilPaintedWithAccents(benchmark::State& state) {
    TypeKey(state, false);
}
BENCHMARK(KeyUntilPaintedWithAccents)
    ->RangeMultiplier(10)
    ->Range(shortest, longest)
    ->Complexity(benchmark::o1);

void AssignRtf(benchmark::State& state) {
    const QString rtf = Page(state.range(0), false);
    for ([[maybe_unused]] auto step : state) {
        RichTextBox box;
        box.SetSelRTF(rtf);
        benchmark::DoNotOptimize(box.TextLength());
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(AssignRtf)
    ->RangeMultiplier(10)
    ->Range(shortest, longest)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void ReplaceAllAndUndo(benchmark::State& state) {
    Filled filled(state.range(0), false);
    for ([[maybe_unused]] auto step : state) {
        filled.box.SetText(QStringLiteral("x"));
        filled.box.Send(RichTextBox::Message::Undo);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ReplaceAllAndUndo)
    ->RangeMultiplier(10)
    ->Range(shortest, longest)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void FindAtTheEnd(benchmark::State& state) {
    Filled filled(state.range(0), false);
    filled.box.SetSelStart(filled.box.TextLength());
    filled.box.SetSelText(QStringLiteral("</HTML>"));
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(filled.box.Find(QStringLiteral("</html>"), 0));
    state.SetBytesProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(FindAtTheEnd)
    ->RangeMultiplier(10)
    ->Range(shortest, longest)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

/// A key that looks for the tag it stands in must not wait where a long text has none.
void LookBackForATag(benchmark::State& state) {
    RichTextBox box;
    box.SetText(QStringLiteral("some words and no bracket\r\n").repeated(state.range(0) / 27));
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(box.FindBackward(u'<', box.TextLength()));
    state.SetBytesProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(LookBackForATag)
    ->RangeMultiplier(10)
    ->Range(shortest, longest)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

/// Takes the tags out one by one, as a person's own command does: a search, a selection, an assignment for
/// each.
void TakeTagsOut(benchmark::State& state) {
    for ([[maybe_unused]] auto step : state) {
        state.PauseTiming();
        Filled filled(state.range(0), false);
        const RichTextBox::PaintHold hold(filled.box);
        state.ResumeTiming();
        int at = 0;
        while ((at = filled.box.Find(QStringLiteral("<"), at)) >= 0) {
            const int end = filled.box.Find(QStringLiteral(">"), at);
            filled.box.SetSelStart(at);
            filled.box.SetSelLength(end - at + 1);
            filled.box.SetSelText(QString());
        }
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(TakeTagsOut)
    ->RangeMultiplier(10)
    ->Range(shortest, 1'000'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void DrawOnePage(benchmark::State& state) {
    Filled filled(state.range(0), false);
    QImage sheet(1000, 1400, QImage::Format_RGB32);
    QPainter painter(&sheet);
    const int middle = filled.box.SelStart();
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(filled.box.FormatRange(true, painter, QRectF(0, 0, 1000, 1400), middle));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(DrawOnePage)
    ->RangeMultiplier(10)
    ->Range(shortest, longest)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::o1);

} // namespace
