// Looks into the page that a control shows, and hurts it.
#include "web/PageProbe.h"

#include <csignal>
#include <memory>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineView>

namespace Probe {

namespace {

constexpr int patience = 20000;

QWebEngineView* View(const QWidget& control) {
    return control.findChild<QWebEngineView*>();
}

void KillNow(const QWidget& control) {
    if (QWebEnginePage* page = Page(control))
        ::kill(static_cast<pid_t>(page->renderProcessPid()), SIGKILL);
}

} // namespace

QWebEnginePage* Page(const QWidget& control) {
    return View(control) ? View(control)->page() : nullptr;
}

QVariant Run(const QWidget& control, const QString& script) {
    struct Answer {
        QVariant value;
        bool came = false;
    };
    const auto answer = std::make_shared<Answer>();
    if (!Page(control))
        return {};
    Page(control)->runJavaScript(script, QWebEngineScript::ApplicationWorld, [answer](const QVariant& value) {
        answer->value = value;
        answer->came = true;
    });
    return QTest::qWaitFor([&] { return answer->came; }, patience) ? answer->value : QVariant();
}

bool Until(const QWidget& control, const QString& script) {
    return QTest::qWaitFor([&] { return Run(control, script).toBool(); }, patience);
}

QString Quoted(const QString& text) {
    const QString array = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
    return array.mid(1, array.size() - 2);
}

void Settle(const QWidget& control) {
    // By the page's own clock: its timers stand still where its scripts are off.
    Run(control, QStringLiteral("window.settled = performance.now() + 300; 0"));
    Until(control, QStringLiteral("!(performance.now() < window.settled)"));
}

bool Kill(const QWidget& control) {
    KillNow(control);
    return QTest::qWaitFor([&] { return !Page(control); }, patience);
}

void KillSoon(const QWidget& control) {
    QTimer::singleShot(500, &control, [&control] { KillNow(control); });
}

void Block(const QWidget& control) {
    Page(control)->runJavaScript(QStringLiteral("for (;;) ;"), QWebEngineScript::ApplicationWorld);
}

} // namespace Probe
