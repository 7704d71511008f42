// What selecting "font-family" in the style sheet builder costs by the number of installed families: it is
// asked for by a key, too. Ends with 1 where a family gets dearer the more there are.
#include "RunBenchmarks.h"
#include "styles/sheet/frmCSS.h"
#include "styles/sheet/ListView.h"
#include "support/TestFrame.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QFontDatabase>
#include <QListWidget>

namespace {

constexpr int fewFamilies = 100;
constexpr int someFamilies = 500;
constexpr int manyFamilies = 1500;

/// The bytes of the smallest font of this computer, and its family's name in them.
struct SmallFont {
    QByteArray bytes;
    QString family;
};

SmallFont FindSmallFont() {
    QString smallest;
    qint64 size = 0;
    for (QDirIterator files(QStringLiteral("/usr/share/fonts"), {QStringLiteral("*.ttf")}, QDir::Files,
                            QDirIterator::Subdirectories);
         files.hasNext();) {
        const QFileInfo file(files.next());
        if (smallest.isEmpty() || file.size() < size) {
            smallest = file.filePath();
            size = file.size();
        }
    }
    QFile file(smallest);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    SmallFont font{file.readAll(), QString()};
    const int loaded = QFontDatabase::addApplicationFontFromData(font.bytes);
    font.family = QFontDatabase::applicationFontFamilies(loaded).value(0);
    QFontDatabase::removeApplicationFont(loaded);
    return font;
}

QByteArray Utf16(const QString& text) {
    QByteArray bytes;
    for (const QChar character : text) {
        bytes += static_cast<char>(character.unicode() >> 8);
        bytes += static_cast<char>(character.unicode() & 0xff);
    }
    return bytes;
}

/// Puts families into the font database until there are so many; each is the small font under another name.
int HaveFamilies(int count) {
    static const SmallFont font = FindSmallFont();
    const auto digits = font.family.size();
    while (QFontDatabase::families().size() < count) {
        const QString name = QString::number(QFontDatabase::families().size()).rightJustified(digits, u'0');
        QByteArray bytes = font.bytes;
        bytes.replace(Utf16(font.family), Utf16(name));
        bytes.replace(font.family.toLatin1(), name.toLatin1());
        if (QFontDatabase::addApplicationFontFromData(bytes) < 0)
            break;
    }
    return static_cast<int>(QFontDatabase::families().size());
}

void SelectFontFamily(benchmark::State& state) {
    const int families = HaveFamilies(static_cast<int>(state.range(0)));
    TestFrame frame;
    auto& form = frame.LoadedForms().Show<frmCSS>(frame);
    auto& properties = *form.findChild<ListView*>(QStringLiteral("lstProperty"));
    auto& fonts = *form.findChild<QListWidget*>(QStringLiteral("lstFont"));
    properties.setCurrentItem(properties.topLevelItem(1));
    for ([[maybe_unused]] auto step : state) {
        Q_EMIT properties.Click();
        // The window shows it, too.
        QCoreApplication::processEvents();
        state.PauseTiming();
        fonts.clear();
        state.ResumeTiming();
    }
    state.counters["families"] = families;
    state.SetComplexityN(families);
}
// Families come and never go: the counts have to grow.
BENCHMARK(SelectFontFamily)
    ->Arg(fewFamilies)
    ->Arg(someFamilies)
    ->Arg(manyFamilies)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oNLogN);

} // namespace
