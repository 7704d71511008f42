// The page of the design control: it shows one text, lets the user edit it, and goes nowhere.
#include "web/DesignPage.h"

#include "web/PageSource.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QWebEngineScript>
#include <QWebEngineSettings>

namespace {

constexpr auto ourWorld = QWebEngineScript::ApplicationWorld;

// Takes [text, bodyBegin, bodyEnd, blanksBehindBody]. The text is written into an empty page, and not loaded
// from its file: so its encoding is the one that it will be written back in, and its size has no limit.
// bodyIsOwn tells whether the source around the body, with the engine's own text of the body in it, is the
// very same page.
const QString fillScript = QStringLiteral(R"js(
(function(text, begin, end, blanks) {
    const shell = () => document.head.outerHTML + (document.body ? document.body.cloneNode(false).outerHTML : '')
        + document.documentElement.cloneNode(false).outerHTML;
    document.open();
    document.write(text);
    document.close();
    const whole = document.documentElement.outerHTML;
    let bodyIsOwn = false;
    if (begin >= 0 && document.body) {
        let body = document.body.innerHTML;
        if (blanks && body.endsWith(blanks))
            body = body.slice(0, body.length - blanks.length);
        const again = new DOMParser().parseFromString(text.slice(0, begin) + body + text.slice(end), 'text/html');
        bodyIsOwn = again.documentElement.outerHTML === whole;
    }
    window.tarnwick = { shell, bodyIsOwn, before: whole, shellBefore: shell(), collected: whole };
    document.designMode = 'on';
    document.execCommand('defaultParagraphSeparator', false, 'p');
    return true;
}).apply(null, %1)
)js");

const QString collectScript = QStringLiteral(R"js(
(function(page) {
    const whole = document.documentElement.outerHTML;
    page.collected = whole;
    if (whole === page.before)
        return { changed: false };
    if (page.bodyIsOwn && page.shell() === page.shellBefore)
        return { changed: true, headChanged: false, body: document.body.innerHTML };
    return { changed: true, headChanged: true, document: whole };
})(window.tarnwick)
)js");

const QString savedScript = QStringLiteral("window.tarnwick.before = window.tarnwick.collected;");

QString Json(const QJsonArray& values) {
    return QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact));
}

} // namespace

DesignPage::DesignPage(QWebEngineProfile& profile) : QWebEnginePage(&profile) {
    settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    connect(this, &QWebEnginePage::loadFinished, this, &DesignPage::Fill);
}

void DesignPage::Show(const PageSource& source, const QString& path) {
    fill_ = fillScript.arg(
        Json({source.Text(), source.BodyBegin(), source.BodyEnd(), source.BlanksBehindBody()}));
    opening_ = true;
    setHtml(QStringLiteral("<!DOCTYPE html>"), QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
}

void DesignPage::Fill(bool ok) {
    // Frames inside the page finish later, and once more.
    if (!std::exchange(opening_, false))
        return;
    if (!ok) {
        emit Shown(false);
        return;
    }
    runJavaScript(std::exchange(fill_, QString()), ourWorld,
                  [this](const QVariant& result) { emit Shown(result.toBool()); });
}

void DesignPage::Collect(std::function<void(const std::optional<EditedPage>&)> answer) {
    runJavaScript(collectScript, ourWorld, [answer = std::move(answer)](const QVariant& result) {
        const QVariantMap map = result.toMap();
        if (map.isEmpty())
            return answer(std::nullopt);
        answer(EditedPage{
            map.value(QStringLiteral("changed")).toBool(), map.value(QStringLiteral("headChanged")).toBool(),
            map.value(QStringLiteral("body")).toString(), map.value(QStringLiteral("document")).toString()});
    });
}

void DesignPage::MarkSaved() {
    runJavaScript(savedScript, ourWorld);
}

bool DesignPage::acceptNavigationRequest(const QUrl&, NavigationType, bool isMainFrame) {
    // Frames of the page show their files; the page itself stays.
    return opening_ || !isMainFrame;
}
