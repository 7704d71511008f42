#include "web/DesignPage.h"

#include "web/PageSource.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QWebEngineScript>
#include <QWebEngineSettings>

namespace {

constexpr auto ourWorld = QWebEngineScript::ApplicationWorld;

// Takes [text, bodyBegin, bodyEnd]. The text is written into an empty page, and not loaded from its file: so
// its encoding is the one that it will be written back in, and its size has no limit.
// bodyIsOwn tells whether the source around the body, with the engine's own text of the body in it, is the
// very same page, but for blanks at its end. tail is what the source behind the body adds to the body:
// engines count blanks there to it, and some comments. A reader drops the first line end of a pre and its
// like: written() puts one more where there is one. behind() gives the comments after the html tag's end.
// What has a name in the page, <form name=body> say, hides the document's own properties of that name: its
// prototype still gives them.
const QString fillScript = QStringLiteral(R"js(
(function(text, begin, end) {
    const own = (page, name) => Reflect.get(Document.prototype, name, page);
    const root = page => own(page, 'documentElement');
    const bodyOf = page => own(page, 'body');
    const call = (name, ...words) => own(document, name).apply(document, words);
    const parse = source => new DOMParser().parseFromString(source, 'text/html');
    const inert = parse('');
    const loses = element => element.firstChild && element.firstChild.nodeType === Node.TEXT_NODE
        && element.firstChild.data.startsWith('\n');
    const losing = node => [...node.querySelectorAll('pre, textarea, listing')].filter(loses);
    const written = node => {
        if (!losing(node).length)
            return node;
        const copy = inert.importNode(node, true);
        for (const element of losing(copy))
            element.firstChild.data = '\n' + element.firstChild.data;
        return copy;
    };
    const behind = page => {
        let comments = '';
        for (let node = root(page); node; node = node.nextSibling)
            if (node.nodeType === Node.COMMENT_NODE)
                comments += '\n<!--' + node.data + '-->';
        return comments;
    };
    const upToItsEnd = html => {
        for (;;) {
            html = html.trimEnd();
            const tag = html.lastIndexOf('</');
            if (tag < 0 || !/^<\/[a-z0-9]+>$/.test(html.slice(tag)))
                return html;
            html = html.slice(0, tag);
        }
    };
    const shell = () => own(document, 'head').outerHTML
        + (bodyOf(document) ? bodyOf(document).cloneNode(false).outerHTML : '')
        + root(document).cloneNode(false).outerHTML;
    call('open');
    call('write', text);
    call('close');
    const whole = root(document).outerHTML;
    let bodyIsOwn = false;
    let tail = '';
    if (begin >= 0 && bodyOf(document)) {
        const body = written(bodyOf(document)).innerHTML;
        const added = bodyOf(parse('<body>.' + text.slice(end))).innerHTML.slice(1);
        if (body.endsWith(added))
            tail = added;
        const mine = body.slice(0, body.length - tail.length);
        const again = parse(text.slice(0, begin) + mine + text.slice(end));
        bodyIsOwn = upToItsEnd(root(again).outerHTML) === upToItsEnd(whole)
            && behind(again) === behind(document);
    }
    window.tarnwick = {
        shell, bodyIsOwn, tail, before: whole, shellBefore: shell(), collected: whole,
        body: () => written(bodyOf(document)).innerHTML,
        document: () => written(root(document)).outerHTML + behind(document), whole: () => root(document).outerHTML
    };
    Reflect.set(Document.prototype, 'designMode', 'on', document);
    call('execCommand', 'defaultParagraphSeparator', false, 'p');
    return true;
}).apply(null, %1)
)js");

// Where the user's last words stand behind what the tail added, blanks of it may stay; a comment would come
// twice.
const QString collectScript = QStringLiteral(R"js(
(function(page) {
    const whole = page.whole();
    page.collected = whole;
    if (whole === page.before)
        return { changed: false };
    const all = () => ({ changed: true, headChanged: true, document: page.document() });
    if (!page.bodyIsOwn || page.shell() !== page.shellBefore)
        return all();
    let body = page.body();
    if (body.endsWith(page.tail))
        body = body.slice(0, body.length - page.tail.length);
    else if (page.tail.trim())
        return all();
    return { changed: true, headChanged: false, body };
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
    fill_ = fillScript.arg(Json({source.Text(), source.BodyBegin(), source.BodyEnd()}));
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
