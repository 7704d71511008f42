#include "app/events/RandomRounds.h"

#include "app/events/Playground.h"
#include "support/Text.h"

#include <algorithm>
#include <iostream>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Rounds to tell growth from what is kept once it was asked for: the last third against the first.
constexpr int roundsOfAThird = 4;

/// Files that nobody saved: temporary ones, halves of saves, and what the program's folder does not hold.
QStringList Litter() {
    static const QRegularExpression own(
        u"^(tarnwick\\.chm|tabletest\\.html|_css\\.htm|send\\.out|custom\\.vtc|.*\\.tnw)$"_s,
        QRegularExpression::DotMatchesEverythingOption);
    QStringList litter;
    const QString all = QFileInfo(Playground::Root()).absolutePath();
    QDirIterator files(all, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        const bool isOdd = file.path() == all + u"/home"_s && !own.match(file.fileName()).hasMatch();
        if (isOdd || file.path().startsWith(Playground::Temporary()) ||
            file.fileName().contains(u"tarnwick-"_s))
            litter << file.filePath();
    }
    return litter;
}

/// The toolkit keeps one of each, and its gestures for as long as it sees fit.
bool IsKeptByTheToolkit(const QString& kind) {
    static const char* const kept[] = {"QPanGesture",      "QFactoryLoader",      "QCupsPrinterSupportPlugin",
                                       "QDragManager",     "QShapedPixmapWindow", "QPlatformGraphicsBuffer",
                                       "QXcbClipboardMime"};
    return std::ranges::any_of(
        kept, [&](const char* name) { return kind.startsWith(u"object "_s + QString::fromLatin1(name)); });
}

/// What the toolkit loads once, whenever it is first asked for, and keeps.
void LoadWhatIsKept() {
    QPrinter printer;
    QPrintDialog print(&printer);
    QColorDialog color;
    QFileDialog file;
    file.setOption(QFileDialog::DontUseNativeDialog);
    for (QDialog* dialog : std::initializer_list<QDialog*>{&print, &color, &file}) {
        dialog->show();
        QCoreApplication::processEvents();
        dialog->hide();
    }
    QMimeDatabase().mimeTypeForFile(Playground::Root());
}

QStringList Growth(const Census& before, const Census& now) {
    QStringList grown = Grown(before, now);
    grown.removeIf(IsKeptByTheToolkit);
    return grown;
}

int CountOf(const Census& census, const QString& kind) {
    return census.value(kind);
}

int Least(std::span<const Census> rounds, const QString& kind) {
    return CountOf(
        *std::ranges::min_element(rounds, {}, [&](const Census& one) { return CountOf(one, kind); }), kind);
}

int Most(std::span<const Census> rounds, const QString& kind) {
    return CountOf(
        *std::ranges::max_element(rounds, {}, [&](const Census& one) { return CountOf(one, kind); }), kind);
}

} // namespace

void RandomRounds::Play(Length length) {
    if (const int wanted = qEnvironmentVariableIntValue("TARNWICK_EVENTS"); wanted > 0)
        length.events = wanted;
    if (qEnvironmentVariableIsSet("TARNWICK_SEED"))
        length.firstSeed = qEnvironmentVariable("TARNWICK_SEED").toULongLong();
    LoadWhatIsKept();
    Warnings::Take();
    quint64 seed = length.firstSeed;
    while (played_ < length.events)
        Round(seed++, std::min(length.eventsOfARound, length.events - played_));
    // What short runs reach is a matter of luck as well.
    for (int more = 0; more < length.moreRounds && reached.HasMissed(); ++more)
        Round(seed++, length.eventsOfARound);
    const Census before = behind_.last();
    ExpectNoGrowth();
    Round(length.firstSeed, std::min(length.eventsOfARound, length.events));
    EXPECT_EQ(Growth(before, behind_.last()), QStringList());
    std::cout << played_ << " events, " << reached.Commands() << " commands, " << reached.Forms().size()
              << " kinds of widgets, " << asked_.size() << " kinds of questions, the dearest event "
              << dearest_ << " s" << std::endl;
}

void RandomRounds::Round(quint64 seed, int events) {
    QElapsedTimer clock;
    clock.start();
    const auto kind = seed % 2 ? RandomPrompts::Kind::Boxes : RandomPrompts::Kind::Answers;
    {
        RandomUser user(seed, kind, reached, views);
        user.Play(events);
        played_ += events;
        asked_ += user.Asked();
        dearest_ = std::max(dearest_, user.Dearest());
        for (const QString& wrong : user.Wrong())
            ADD_FAILURE() << wrong.toStdString();
    }
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(Litter(), QStringList()) << "seed " << seed;
    const Census now = TakeCensus();
    std::cout << "seed " << seed << ": " << events << " events in " << clock.elapsed() << " ms" << std::endl;
    if (!behind_.isEmpty())
        for (const QString& grown : Grown(behind_.last(), now))
            std::cout << "  more than before: " << grown.toStdString() << std::endl;
    behind_ << now;
}

void RandomRounds::ExpectNoGrowth() const {
    if (behind_.size() < 3 * roundsOfAThird)
        return;
    const std::span<const Census> all(behind_);
    const size_t third = all.size() / 3;
    QStringList grown;
    for (const QString& kind : behind_.last().keys()) {
        const int most = Most(all.first(third), kind);
        if (const int least = Least(all.last(third), kind); least > most)
            grown << u"%1: at most %2, then at least %3"_s.arg(kind).arg(most).arg(least);
    }
    EXPECT_EQ(grown, QStringList());
}
