// What the copies of changed documents cost the thread that the user types in: a key costs the same with them
// as without, and taking the bytes of a document no more than a few plain copies of as many.
#include "app/recovery/Recovery.h"
#include "app/window/frmTarnwick.h"
#include "editor/frame/Document.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "RunBenchmarks.h"
#include "support/ScriptedPrompts.h"
#include "UntilIdle.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <QApplication>
#include <QKeyEvent>
#include <vector>

namespace {

constexpr int megabytes = 10;
constexpr int keys = 400;
constexpr int turns = 7;
// What a mark on a document may add to a key, beside the noise of the machine.
constexpr double mostForAKey = 1.25;
constexpr double mostForTheBytes = 3;

double Seconds() {
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

template <typename Work> double Timed(const Work& work) {
    const double before = Seconds();
    work();
    return Seconds() - before;
}

double Median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// A page of ten megabytes in the program's own frame, with the caret in its middle.
class Page {
  public:
    explicit Page(bool recovers) : frame_(store_, prompts_) {
        store_.WriteFlag(Keys::Recovery, recovers);
        frame_.show();
        frame_.NewDocument();
        const QString line = QStringLiteral("<p align=\"left\">Some words</p> and more\r\n");
        Text().SetText(line.repeated(megabytes * 1'000'000 / line.size()));
        Text().SetSelStart(Text().TextLength() / 2);
        Text().EmptyUndoBuffer();
        RunUntilIdle();
    }
    RichTextBox& Text() { return frame_.ActiveForm()->txtInput(); }
    /// Typed and taken back: the text is the same at each turn. What the key leaves to be done counts too.
    void Type() {
        for (int n = 0; n < keys / 2; ++n)
            for (const int key : {int(Qt::Key_X), int(Qt::Key_Backspace)}) {
                QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier,
                                key == Qt::Key_X ? QStringLiteral("x") : QStringLiteral("\b"));
                QApplication::sendEvent(&Text(), &press);
            }
    }

  private:
    Settings store_;
    ScriptedPrompts prompts_;
    frmTarnwick frame_;
};

/// By turns, so that what else the machine does falls on both alike.
bool KeysCostTheSame() {
    Page with(true), without(false);
    std::vector<double> on, off;
    for (int turn = 0; turn < turns; ++turn) {
        on.push_back(Timed([&] { with.Type(); }));
        off.push_back(Timed([&] { without.Type(); }));
    }
    const double ratio = Median(on) / Median(off);
    std::printf("a key in %d MB: %.1f us with copies, %.1f us without, ratio %.2f\n", megabytes,
                1e6 * Median(on) / keys, 1e6 * Median(off) / keys, ratio);
    return ratio <= mostForAKey;
}

bool BytesAreTakenQuickly() {
    Page page(false);
    std::vector<double> taken, plain;
    for (int turn = 0; turn < turns; ++turn) {
        QByteArray bytes, copy;
        taken.push_back(Timed([&] { bytes = page.Text().Utf8Text(); }));
        plain.push_back(Timed([&] { copy = QByteArray(bytes.constData(), bytes.size()); }));
    }
    const double ratio = Median(taken) / Median(plain);
    std::printf("taking the bytes of %d MB: %.2f ms, a plain copy %.2f ms, ratio %.2f\n", megabytes,
                1e3 * Median(taken), 1e3 * Median(plain), ratio);
    return ratio <= mostForTheBytes;
}

} // namespace

int main(int argc, char** argv) {
    PrepareBenchmarks();
    const QApplication application(argc, argv);
    const bool keysHold = KeysCostTheSame();
    const bool bytesHold = BytesAreTakenQuickly();
    return keysHold && bytesHold ? 0 : 1;
}
