// What the text control costs by the length of its text, with lines wrapped and until it is idle: a key, a
// search or a page the same in every text, a whole assignment and its undo linear, a key linear in the length
// of its line.
#include "platform/text/RichTextBox.h"
#include "UntilIdle.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int shortest = 10'000;
constexpr int longest = 10'000'000;

/// Letters of two and three bytes: none, some in every hundredth line, or a third of all.
enum class Beyond { None, Some, Third };

/// A coloured page with a tag for every twenty characters.
QString Page(benchmark::IterationCount size, Beyond beyond) {
    const QString plain =
        QStringLiteral("\\cf1 Some words, \\cf2 <B>\\cf1 bold ones\\cf2 </B>\\cf1 and more.\\par ");
    const QString third =
        QString::fromUtf8("\\cf1 Вот слова, \\cf2 <B>\\cf1 żółte\\cf2 </B>\\cf1 and 日本語.\\par ");
    const QString foreign =
        QString::fromUtf8("\\cf1 Schöne Wörter für 5 € – \\cf2 <B>\\cf1 ja\\cf2 </B>\\par ");
    QString rtf = QStringLiteral("{{\\colortbl ;\\red0\\green0\\blue0;\\red0\\green0\\blue255;}");
    rtf.reserve(2 * size);
    // Of 73 characters of RTF, 47 are text.
    const auto lines = size / 47 + 1;
    for (benchmark::IterationCount i = 0; i < lines; ++i) {
        rtf += beyond == Beyond::Third ? third : beyond == Beyond::Some && i % 100 == 0 ? foreign : plain;
    }
    return rtf + QLatin1Char('}');
}

/// A control of that many characters, shown, wrapped and idle, with its caret in the middle.
class Filled {
  public:
    explicit Filled(benchmark::IterationCount size, Beyond beyond = Beyond::None) {
        box.SetHolds(CharacterSet::Unicode);
        box.resize(800, 600);
        box.show();
        box.SetSelRTF(Page(size, beyond));
        box.EmptyUndoBuffer();
        box.SetSelStart(box.LineStart(box.TextLength() / 2) + 5);
        QObject::connect(&box, &RichTextBox::SCN_PAINTED, &box, [this] { ++paints; });
        while (paints == 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        RunUntilIdle();
    }

    RichTextBox box;
    int paints = 0;
};

void Press(RichTextBox& box, int key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&box, &press);
    QCoreApplication::processEvents();
}

void TypeKey(benchmark::State& state, Beyond beyond) {
    Filled filled(state.range(0), beyond);
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
    TypeKey(state, Beyond::None);
}
BENCHMARK(KeyUntilPainted)->RangeMultiplier(10)->Range(shortest, longest)->Complexity(benchmark::o1);
void KeyUntilPaintedWithAccents(benchmark::State& state) {
    TypeKey(state, Beyond::Some);
}
void KeyUntilPaintedWithAThirdBeyondAscii(benchmark::State& state) {
    TypeKey(state, Beyond::Third);
}
BENCHMARK(KeyUntilPaintedWithAThirdBeyondAscii)
    ->RangeMultiplier(10)
    ->Range(shortest, longest)
    ->Complexity(benchmark::o1);
BENCHMARK(KeyUntilPaintedWithAccents)
    ->RangeMultiplier(10)
    ->Range(shortest, longest)
    ->Complexity(benchmark::o1);

/// A key in the middle while all lines wait to be wrapped anew, up to where it is painted.
void KeyWhileWrapping(benchmark::State& state) {
    Filled filled(state.range(0));
    const auto press = [&](int key, const QString& text) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(&filled.box, &event);
        // Paints, but leaves the timer alone that wraps.
        QCoreApplication::sendPostedEvents();
    };
    int painted = 0;
    for ([[maybe_unused]] auto step : state) {
        state.PauseTiming();
        filled.box.SetRightMargin(1);
        filled.box.SetRightMargin(0);
        filled.box.viewport()->repaint();
        const int before = filled.paints;
        state.ResumeTiming();
        press(Qt::Key_X, QStringLiteral("x"));
        press(Qt::Key_Backspace, QStringLiteral("\b"));
        painted += filled.paints - before;
    }
    if (painted < 2 * state.iterations())
        state.SkipWithError("not every key was painted");
    state.SetItemsProcessed(2 * state.iterations());
    state.SetComplexityN(state.range(0));
}
BENCHMARK(KeyWhileWrapping)->RangeMultiplier(10)->Range(shortest, longest)->Complexity(benchmark::o1);

/// Brings a text into a control on the screen and wraps it.
void WrapUntilIdle(benchmark::State& state, const QString& text) {
    for ([[maybe_unused]] auto step : state) {
        RichTextBox box;
        box.resize(800, 600);
        box.show();
        box.SetText(text);
        RunUntilIdle();
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}
void WrapLines(benchmark::State& state) {
    const QString line = QStringLiteral("<td>A few words for each line, and a &quot;tag&quot;</td>\r\n");
    WrapUntilIdle(state, line.repeated(state.range(0) / line.size()));
}
BENCHMARK(WrapLines)
    ->RangeMultiplier(10)
    ->Range(shortest, longest)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
void WrapOneLine(benchmark::State& state) {
    WrapUntilIdle(state, QString(state.range(0), u'<'));
}
BENCHMARK(WrapOneLine)
    ->RangeMultiplier(10)
    ->Range(shortest, longest)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

/// A key in a text that is all one line, made of a few words, of tags, or of what never ends a word.
void KeyInOneLine(benchmark::State& state, const QString& piece) {
    RichTextBox box;
    box.resize(800, 600);
    box.show();
    box.SetText(piece.repeated(state.range(0) / piece.size()));
    box.SetSelStart(box.TextLength() / 2);
    RunUntilIdle();
    for ([[maybe_unused]] auto step : state) {
        Press(box, Qt::Key_X, QStringLiteral("x"));
        Press(box, Qt::Key_Backspace, QStringLiteral("\b"));
    }
    state.SetItemsProcessed(2 * state.iterations());
    state.SetComplexityN(state.range(0));
}
void KeyInALineOfWords(benchmark::State& state) {
    KeyInOneLine(state, QStringLiteral("some words and no end of the line "));
}
void KeyInALineOfTags(benchmark::State& state) {
    KeyInOneLine(state, QStringLiteral("<p align=\"left\"><a href=\"x/y.html\"></a></p>"));
}
void KeyInALineOfBrackets(benchmark::State& state) {
    KeyInOneLine(state, QStringLiteral("<"));
}
void LineLengths(benchmark::internal::Benchmark* benchmark) {
    for (const int64_t length : {shortest, 10 * shortest, 100 * shortest})
        benchmark->Arg(length);
    benchmark->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);
}
BENCHMARK(KeyInALineOfWords)->Apply(LineLengths);
BENCHMARK(KeyInALineOfTags)->Apply(LineLengths);
BENCHMARK(KeyInALineOfBrackets)->Apply(LineLengths);

void AssignRtf(benchmark::State& state) {
    const QString rtf = Page(state.range(0), Beyond::None);
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
    Filled filled(state.range(0), Beyond::Some);
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
    Filled filled(state.range(0), Beyond::Some);
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

/// Takes the tags out one by one, as a person's own command does: a search, a selection, an assignment for
/// each.
void TakeTagsOut(benchmark::State& state) {
    for ([[maybe_unused]] auto step : state) {
        state.PauseTiming();
        Filled filled(state.range(0), Beyond::Some);
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
    Filled filled(state.range(0), Beyond::Some);
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
