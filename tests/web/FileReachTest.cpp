// What a page from the disk can learn of other files, in the real engine: no more than a browser tells it.
#include "support/Text.h"
#include "web/PagePane.h"

#include <QDir>
#include <QFile>

namespace {

const QByteArray picture = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
                           "<rect width='9' height='9' fill='#123456'/><text>secret</text></svg>";

/// The page lies in site/, and all that it wants to read has the word "secret" or the colour #123456.
void WriteSecrets() {
    for (const char* folder : {"site/sub", "other/.hidden", ".hidden"})
        ASSERT_TRUE(QDir(TestFolder()).mkpath(QString::fromLatin1(folder)));
    for (const char* folder : {"", "site/", "site/sub/", "other/"}) {
        const QString in = QString::fromLatin1(folder);
        PageFiles::Write(in + QStringLiteral("s.htm"), "<p>secret</p>");
        PageFiles::Write(in + QStringLiteral("s.json"), "{\"key\": \"secret\"}");
        PageFiles::Write(in + QStringLiteral("s.svg"), picture);
        PageFiles::Write(in + QStringLiteral("s.css"), ".secret { color: rgb(1, 2, 3) }");
        PageFiles::Write(in + QStringLiteral("s.vtt"), "WEBVTT\n\n00:00.000 --> 00:10.000\nsecret\n");
        PageFiles::Write(in + QStringLiteral("s.js"),
                         "export const key = 'secret'; self.postMessage('secret')");
    }
    for (const char* name : {"htm", "json", "svg", "css", "vtt"})
        ASSERT_TRUE(QFile::link(TestFolder() + QStringLiteral("/other/s.") + QLatin1String(name),
                                TestFolder() + QStringLiteral("/site/link.") + QLatin1String(name)));
}

struct Way {
    const char* name;
    const char* tags;  ///< what shows the file $, as the element e
    const char* steps; ///< of a script, once e has come up: gives what it read, or throws
    const char* shown; ///< what is true where the page shows the file all the same
};

const char* const drawn = "const c = document.createElement('canvas').getContext('2d'); c.drawImage(e, 0, 0);"
                          "return c.getImageData(4, 4, 1, 1).data.join() === '18,52,86,255' && 'pixels'";
const char* const drawnAsBitmap =
    "const b = await createImageBitmap(e); const c = document.createElement('canvas').getContext('2d');"
    "c.drawImage(b, 0, 0); return c.getImageData(4, 4, 1, 1).data.join() === '18,52,86,255' && 'pixels'";
const char* const requested =
    "const r = new XMLHttpRequest(); r.open('GET', '$.json', false); r.send(); return r.responseText";
const char* const subtitles = "e.track.mode = 'hidden';"
                              "await new Promise(done => e.onload = e.onerror = done);"
                              "return [...e.track.cues].map(cue => cue.text).join()";
const char* const framed = "return e.contentDocument && e.contentDocument.documentElement.textContent";
const char* const addressed = "const at = e.contentWindow.location.href; return at !== 'about:blank' && at";
const char* const worker =
    "return await new Promise((done, no) => { const w = new Worker('$.js', {type: 'module'});"
    "w.onmessage = e => done(e.data); w.onerror = no })";

const Way ways[] = {
    {"import_of_json", "", "return (await import('$.json', {assert: {type: 'json'}})).default.key", "true"},
    {"import_of_a_script", "", "return (await import('$.js')).key", "true"},
    {"pixels_of_a_picture", "<img class=e src=$.svg>", drawn, "e.naturalWidth === 9"},
    {"pixels_of_a_bitmap", "<img class=e src=$.svg>", drawnAsBitmap, "e.naturalWidth === 9"},
    {"rules_of_a_style_sheet", "<link class=e rel=stylesheet href=$.css><p class=secret>p</p>",
     "return e.sheet.cssRules[0].cssText",
     "getComputedStyle(document.querySelector('p')).color === 'rgb(1, 2, 3)'"},
    {"subtitles", "<video><track class=e src=$.vtt></video>", subtitles, "true"},
    {"text_of_a_frame", "<iframe class=e src=$.htm></iframe>", framed, "true"},
    {"text_of_an_object", "<object class=e data=$.svg></object>", framed, "true"},
    {"text_of_an_embedded_file", "<embed class=e src=$.svg>",
     "return e.getSVGDocument() && e.getSVGDocument().documentElement.textContent", "true"},
    {"address_of_a_frame", "<iframe class=e src=$.htm></iframe>", addressed, "true"},
    {"fetch", "", "return await (await fetch('$.json')).text()", "true"},
    {"request", "", requested, "true"},
    {"worker", "", worker, "true"},
};

/// Tries the way on one file after the other; the title tells the first that it could read, or not show.
const char* const tryAll = R"js(
const attempt = async $ => {
    const box = document.getElementById('box');
    box.innerHTML = `TAGS`;
    const e = box.querySelector('.e');
    if (e && e.localName !== 'track')
        await new Promise(done => e.onload = e.onerror = done);
    const read = await (async () => { STEPS })().catch(refused => '');
    return read ? 'read ' + $ + ': ' + read : SHOWN ? '' : 'not shown: ' + $;
};
onload = async () => {
    for (const file of FILES)
        document.title = await attempt(file) || document.title;
    document.title += ' kept';
};
)js";

class FileReach : public PagePane, public testing::WithParamInterface<Way> {
  protected:
    static QByteArray Page() {
        const auto filled = [](const char* text) { return QByteArray(text).replace("$.", "${$}."); };
        const auto code = [](const char* text) { return QByteArray(text).replace("'$.", "$ + '."); };
        const Way& way = GetParam();
        const QByteArray files = "['./s', './sub/s', '../s', '../other/s', './link', 'file://" +
                                 TestFolder().toUtf8() + "/other/s']";
        return "<title></title><div id=box></div><script>" +
               QByteArray(tryAll)
                   .replace("TAGS", filled(way.tags))
                   .replace("STEPS", code(way.steps))
                   .replace("SHOWN", way.shown)
                   .replace("FILES", files) +
               "</script>";
    }
};

TEST_P(FileReach, APageShowsWhatItCannotRead) {
    WriteSecrets();
    ASSERT_TRUE(pane.Navigate(PageFiles::Write(QStringLiteral("site/a.htm"), Page())));
    EXPECT_TRUE(Probe::Until(pane, QStringLiteral("document.title.endsWith('kept')")));
    EXPECT_EQ(Probe::Run(pane, QStringLiteral("document.title")).toString(), QStringLiteral("kept"));
}

INSTANTIATE_TEST_SUITE_P(Ways, FileReach, testing::ValuesIn(ways),
                         [](const auto& info) { return std::string(info.param.name); });

class Site : public PagePane {
  protected:
    Site() {
        for (const char* folder : {"site/en/sub", "other"})
            EXPECT_TRUE(QDir(TestFolder()).mkpath(QString::fromLatin1(folder)));
    }
};

TEST_F(Site, PicturesStylesAndScriptsComeFromFoldersBelowAndAbove) {
    PageFiles::Write(QStringLiteral("site/top.svg"), picture);
    PageFiles::Write(QStringLiteral("site/top.js"), "var top1 = 'top'");
    PageFiles::Write(QStringLiteral("site/en/sub/low.svg"), picture);
    PageFiles::Write(QStringLiteral("site/en/sub/low.css"), "i { color: rgb(4, 5, 6) }");
    PageFiles::Write(QStringLiteral("site/en/a.css"),
                     "@import 'sub/low.css'; b { color: rgb(1, 2, 3) } body { background: url(../top.svg) }");
    PageFiles::Write(QStringLiteral("site/en/a.js"), "var beside = 'beside'");
    ASSERT_TRUE(pane.Navigate(
        PageFiles::Write(QStringLiteral("site/en/a.htm"),
                         "<link rel=stylesheet href=a.css><b id=b>b</b><i id=i>i</i><img id=p src=../top.svg>"
                         "<img id=q src=sub/low.svg><script src=a.js></script><script src=../top.js></script>"
                         "<script>document.title = beside + top1</script>")));
    EXPECT_TRUE(Shows(QStringLiteral("besidetop")));
    EXPECT_TRUE(Probe::Until(pane, QStringLiteral("p.naturalWidth === 9 && q.naturalWidth === 9")));
    EXPECT_TRUE(Probe::Until(pane, QStringLiteral("getComputedStyle(b).color === 'rgb(1, 2, 3)' && "
                                                  "getComputedStyle(i).color === 'rgb(4, 5, 6)'")));
    EXPECT_TRUE(ShowsColour({580, 380}, QColor(0x12, 0x34, 0x56))) << "the background is tiled";
}

TEST_F(Site, FramesShowFilesOfFoldersBelowAndAboveAndTheirLinksChangeOneAnother) {
    PageFiles::Write(QStringLiteral("site/menu.htm"),
                     "<body bgcolor=#010203><a id=a href=en/sub/next.htm target=main>next</a>"
                     "<script>onmessage = () => document.getElementById('a').click()</script>");
    PageFiles::Write(QStringLiteral("site/en/sub/next.htm"), "<body bgcolor=#040506>");
    PageFiles::Write(QStringLiteral("site/en/sub/first.htm"), "<body bgcolor=#070809>");
    ASSERT_TRUE(
        pane.Navigate(PageFiles::Write(QStringLiteral("site/en/a.htm"),
                                       "<frameset cols='50%,*' frameborder=0 border=0><frame src=../menu.htm>"
                                       "<frame name=main src=sub/first.htm></frameset>")));
    EXPECT_TRUE(ShowsColour({100, 200}, QColor(1, 2, 3)));
    EXPECT_TRUE(ShowsColour({500, 200}, QColor(7, 8, 9)));
    Probe::Run(pane, QStringLiteral("frames[0].postMessage('go', '*'); 0"));
    EXPECT_TRUE(ShowsColour({500, 200}, QColor(4, 5, 6)));
}

TEST_F(Site, LinksLeadToPagesBelowAndAbove) {
    PageFiles::Write(QStringLiteral("site/top.htm"), "<title>top</title>");
    PageFiles::Write(QStringLiteral("site/en/sub/low.htm"),
                     "<title>low</title><a id=a href='../../top.htm#x'>up</a>");
    ASSERT_TRUE(pane.Navigate(PageFiles::Write(QStringLiteral("site/en/a.htm"),
                                               "<title>first</title><a id=a href=sub/low.htm>down</a>")));
    for (const char* title : {"first", "low", "top"}) {
        EXPECT_TRUE(Shows(QString::fromLatin1(title)));
        Probe::Run(pane, QStringLiteral("if (window.a) a.click(); 0"));
    }
}

TEST_F(Site, AFrameShowsNeitherHiddenFilesNorFoldersNorWhereALinkLeadsOut) {
    const QString secret = PageFiles::Write(QStringLiteral("other/s.htm"), "<body bgcolor=#010203>");
    ASSERT_TRUE(QFile::link(secret, TestFolder() + QStringLiteral("/site/en/link.htm")));
    PageFiles::Write(QStringLiteral("site/en/.s.htm"), "<body bgcolor=#010203>");
    PageFiles::Write(QStringLiteral("site/en/sub/last.htm"), "<body bgcolor=#070809>");
    for (const char* file : {"link.htm", ".s.htm", "sub/"}) {
        ASSERT_TRUE(pane.Navigate(
            PageFiles::Write(QStringLiteral("site/en/a.htm"),
                             QByteArray("<frameset cols='50%,*' frameborder=0 border=0><frame src=") + file +
                                 "><frame src=sub/last.htm></frameset>")));
        EXPECT_TRUE(ShowsColour({500, 200}, QColor(7, 8, 9)));
        EXPECT_TRUE(Probe::Until(pane, QStringLiteral("document.readyState === 'complete'")));
        const QColor shown = pane.grab().toImage().pixelColor(100, 390);
        EXPECT_NE(shown, QColor(1, 2, 3)) << file;
        EXPECT_NE(shown, QColor(Qt::white))
            << file << ": the engine's own sheet for what it may not show is grey";
    }
}

} // namespace
