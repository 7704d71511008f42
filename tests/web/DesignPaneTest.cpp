// The design control in the real engine: what an edit leaves in the file.
#include "web/DesignPane.h"

#include "support/FreshUser.h"
#include "support/Text.h"
#include "web/OnePageServer.h"
#include "web/PageFiles.h"
#include "web/PageProbe.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QWebEngineView>

namespace {

const QString canBeEdited = QStringLiteral("document.designMode === 'on'");

class Design : public testing::Test {
  protected:
    Design() : pane(&window) {
        FreshUser();
        window.resize(600, 400);
        pane.resize(600, 400);
        window.show();
        pane.show();
    }

    void Load(const QByteArray& bytes) {
        path = PageFiles::Write(QStringLiteral("page.htm"), bytes);
        pane.Load(path);
        ASSERT_TRUE(Probe::Until(pane, canBeEdited));
    }
    /// Puts a text before that of the first paragraph.
    void Type(const QString& text) {
        Probe::Run(pane, QStringLiteral("getSelection().collapse(document.querySelector('p').firstChild, 0);"
                                        "document.execCommand('insertText', false, %1)")
                             .arg(Probe::Quoted(text)));
    }
    void Edit(const QByteArray& bytes, const QString& text = QStringLiteral("typed ")) {
        Load(bytes);
        Type(text);
    }
    QByteArray Saved() { return PageFiles::Read(path); }

    QWidget window;
    DesignPane pane;
    QString path;
};

TEST_F(Design, AnEditChangesTheBodyAndNothingElse) {
    const QByteArray before = "<!doctype HTML>\r\n<HTML><HEAD>\r\n<TITLE>t</TITLE>\r\n</HEAD>\r\n"
                              "<BODY BGCOLOR=\"#ffffff\">\r\n";
    const QByteArray after = "\r\n</BODY>\r\n</HTML>\r\n";
    Edit(before + "<p>one</p>\r\n<p>two</p>" + after);
    EXPECT_TRUE(pane.Save(pane.LoadedPath()));
    EXPECT_EQ(Saved(), before + "<p>typed one</p>\r\n<p>two</p>" + after);
}

// Whoever comes by the keys alone has no mouse to put the caret there.
TEST_F(Design, KeysWriteAtTheTopBeforeAnyClick) {
    const auto hasKeys = [&] { return pane.isAncestorOf(QApplication::focusWidget()); };
    Load("<p>before</p>");
    window.activateWindow();
    pane.setFocus();
    ASSERT_TRUE(QTest::qWaitFor(hasKeys));
    Load("<p>one</p>");
    ASSERT_TRUE(QTest::qWaitFor(hasKeys));
    EXPECT_TRUE(pane.Save(path));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("my "));
    EXPECT_TRUE(Probe::Until(pane, QStringLiteral("document.body.textContent.startsWith('my one')")))
        << Probe::Run(pane, QStringLiteral("document.body.innerHTML + '|' + document.hasFocus() + '|' + "
                                           "document.activeElement + '|' + getSelection().rangeCount"))
               .toString()
               .toStdString();
}

struct Around {
    const char* name;
    QByteArray before, after; ///< of the paragraph that is edited
};

class DesignKeeps : public Design, public testing::WithParamInterface<Around> {};

TEST_P(DesignKeeps, WhatStandsAroundTheEdit) {
    const Around& page = GetParam();
    Edit(page.before + "<p>one</p>" + page.after);
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), page.before + "<p>typed one</p>" + page.after);
    // The file that came of it is as good as the first.
    Edit(Saved(), QStringLiteral("again "));
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), page.before + "<p>again typed one</p>" + page.after);
}

const QByteArray start = "<HTML>\r\n<HEAD><TITLE>t</TITLE></HEAD>\r\n<BODY>\r\n";
const QByteArray finish = "\r\n</BODY>\r\n</HTML>\r\n";
const QByteArray script = "<SCRIPT LANGUAGE=\"JavaScript\">\r\n<!--\r\nif (1 < 2 && '<b>' > \"&amp;\")\r\n"
                          "  document.write('<p>x<\\/p>');\r\n//-->\r\n</SCRIPT>\r\n";

INSTANTIATE_TEST_SUITE_P(
    Pages, DesignKeeps,
    testing::Values(
        Around{"no_doctype", start, finish},
        Around{"a_doctype_of_two_lines",
               "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\"\r\n \"http://x/strict.dtd\">\r\n" + start,
               finish},
        Around{"a_comment_before_the_doctype", "<!-- by hand -->\r\n<!DOCTYPE html>\r\n" + start, finish},
        Around{"a_declaration_before_the_doctype", "<?xml version=\"1.0\"?>\r\n<!DOCTYPE html>\r\n" + start,
               finish},
        Around{"a_comment_behind_the_page", start, finish + "<!-- changed by hand -->\r\n"},
        Around{"a_comment_behind_the_body", start, "\r\n</BODY>\r\n<!-- the end -->\r\n</HTML>\r\n"},
        Around{"comments_right_behind_the_body", start, "</BODY><!-- end --></HTML><!-- of it -->\r\n"},
        Around{"an_end_tag_in_a_comment", start, "\r\n</BODY>\r\n<!-- </BODY> --></HTML>\r\n"},
        Around{"no_end_tags", start, "\r\n"},
        Around{"scripts_and_styles_of_the_head",
               "<html><head>\r\n" + script + "<STYLE>\r\np > b { color: red }\r\n</STYLE></head>\r\n<body>",
               finish},
        Around{"a_script_of_the_body", start,
               "\r\n<script language=\"JavaScript\">\r\n<!--\r\nif (1 < 2 && '<b>')\r\n  x();\r\n//-->\r\n"
               "</script>" +
                   finish},
        Around{"noscript",
               "<html><head><NOSCRIPT><LINK REL=stylesheet HREF=a.css></NOSCRIPT></head>\r\n<body>",
               "\r\n<noscript><p>none</p></noscript>" + finish},
        Around{"leading_lines_of_a_pre", start,
               "\r\n<pre>\r\n\r\n  one\r\n</pre>\r\n<textarea>\r\n\r\ntwo</textarea>" + finish},
        Around{"meta_utf8",
               "<!DOCTYPE html>\r\n<html><head>\r\n<META "
               "CHARSET=UTF-8>\r\n<title>\xC3\xA9</title></head>\r\n<body>",
               "\r\n<p>\xE2\x98\x83</p>" + finish},
        Around{"meta_windows1252",
               "<html><head>\r\n<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; "
               "charset=windows-1252\">\r\n"
               "<title>\xE9\x80</title></head>\r\n<body>",
               "\r\n<p>\x80 \xE9 &#9731;</p>" + finish}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Design, NamesInThePageHideNothingOfItFromTheSave) {
    QByteArray named;
    for (const char* name : {"documentElement", "body", "head", "open", "write", "close", "designMode",
                             "execCommand", "querySelectorAll", "importNode", "firstChild", "tarnwick"})
        named += QByteArray("<img name=\"") + name + "\" id=\"" + name + "\"><form name=\"" + name +
                 "\"><input name=\"outerHTML\"><input name=\"nextSibling\"></form>\r\n";
    const QByteArray head = "<HTML><HEAD><TITLE>t</TITLE></HEAD>\r\n<BODY>\r\n";
    const QByteArray rest = "</p>\r\n" + named + "<pre>\r\n\r\nx</pre></BODY>\r\n</HTML>\r\n";
    path = PageFiles::Write(QStringLiteral("page.htm"), head + "<p>one" + rest);
    pane.Load(path);
    // Nothing of the document can be asked for by its name here.
    ASSERT_TRUE(Probe::Until(
        pane, QStringLiteral("Reflect.get(Document.prototype, 'designMode', document) === 'on'")));
    Probe::Run(pane, QStringLiteral("document.getElementsByTagName('p')[0].append(' typed')"));
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), head + "<p>one typed" + rest);
}

TEST_F(Design, AnEditOfAPageWithoutABodyTagKeepsTheCommentBehindIt) {
    for (const char* end : {"</html>\r\n<!-- mine -->\r\n", "</html><!-- mine -->", "<!-- mine -->"}) {
        Edit(QByteArray("<title>t</title>\r\n<p>one</p>") + end);
        EXPECT_TRUE(pane.Save(path));
        EXPECT_TRUE(Saved().contains("<p>typed one</p>")) << Saved().constData();
        EXPECT_EQ(Saved().count("<!-- mine -->"), 1) << Saved().constData();
    }
}

TEST_F(Design, AnUnclosedParagraphAtTheEndTakesTheHeadNothing) {
    const QByteArray head = "<HTML><HEAD><TITLE>t</TITLE></HEAD>\r\n<BODY BGCOLOR=white>\r\n";
    Edit(head + "<P>zero\r\n<P>last\r\n</BODY>\r\n</HTML>\r\n");
    EXPECT_TRUE(pane.Save(path));
    const QByteArray first = Saved();
    EXPECT_TRUE(first.startsWith(head + "<p>typed zero\r\n</p><p>last\r\n")) << first.constData();
    EXPECT_TRUE(first.endsWith("</p></BODY>\r\n</HTML>\r\n")) << first.constData();
    Edit(first, QStringLiteral("again "));
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), QByteArray(first).replace("typed ", "again typed ")) << "nothing grows";
}

TEST_F(Design, WordsBehindACommentAtTheEndDoNotDoubleIt) {
    Load("<html><body><p>one</p></body>\r\n<!-- mine -->\r\n</html>\r\n");
    Probe::Run(pane, QStringLiteral("document.body.append('last')"));
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved().count("<!-- mine -->"), 1) << Saved().constData();
    EXPECT_TRUE(Saved().contains("last")) << Saved().constData();
}

TEST_F(Design, AFramesetStandsAsItWas) {
    PageFiles::Write(QStringLiteral("left.htm"), "<p>left</p>");
    const QByteArray page =
        "<HTML><FRAMESET COLS=\"50%,*\">\r\n<FRAME SRC=left.htm>\r\n<FRAME SRC=left.htm>\r\n"
        "<NOFRAMES><P>none</NOFRAMES>\r\n</FRAMESET></HTML>\r\n";
    Load(page);
    ASSERT_TRUE(Probe::Until(pane, QStringLiteral("frames.length === 2")));
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), page);
}

TEST_F(Design, AnEditThatWasUndoneIsNone) {
    const QByteArray page = "<html><head></head><body>\r\n<P>one\r\n</body>\r\n</html>\r\n";
    Edit(page);
    Probe::Run(pane, QStringLiteral("document.execCommand('undo')"));
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), page);
}

TEST_F(Design, ASecondSaveAddsNothingAndASecondEditIsSaved) {
    Edit("<html><head></head><body>\r\n<p>one</p>\r\n</body>\r\n</html>\r\n");
    EXPECT_TRUE(pane.Save(path));
    PageFiles::Write(QStringLiteral("page.htm"), "someone else's");
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), QByteArray("someone else's"));
    Type(QStringLiteral("again "));
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(),
              QByteArray("<html><head></head><body>\r\n<p>again typed one</p>\r\n</body>\r\n</html>\r\n"));
}

TEST_F(Design, APageThatNobodyChangedIsNotWritten) {
    const QByteArray odd = "<P>unclosed <B>and <I>crossed</B></I>\n<!-- x -->\r\r\n<br/>";
    path = PageFiles::Write(QStringLiteral("odd.htm"), odd);
    const QDateTime old(QDate(2001, 2, 3), QTime(4, 5));
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    ASSERT_TRUE(file.setFileTime(old, QFileDevice::FileModificationTime));
    file.close();
    pane.Load(path);
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), odd);
    EXPECT_EQ(QFileInfo(path).lastModified(), old);
}

TEST_F(Design, AnUnchangedPageSavedElsewhereIsACopy) {
    path = PageFiles::Write(QStringLiteral("a.htm"), "<P>caf\xE9\n");
    pane.Load(path);
    const QString other = TestFolder() + QStringLiteral("/b.htm");
    EXPECT_TRUE(pane.Save(other));
    EXPECT_EQ(PageFiles::Read(other), QByteArray("<P>caf\xE9\n"));
}

TEST_F(Design, SaveRightAfterLoadWaitsForThePage) {
    const QByteArray page = "<html><body><p>kept</p></body></html>";
    path = PageFiles::Write(QStringLiteral("page.htm"), page);
    pane.Load(path);
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), page);
}

TEST_F(Design, WritesInThePagesOwnEncoding) {
    struct Row {
        const char* name;
        QByteArray head, before, after;
    };
    const Row rows[] = {
        {"none", "", "caf\xE9", "\xE9&#9731;caf\xE9"},
        {"utf-8", "<meta charset=\"utf-8\">", "caf\xC3\xA9",
         "\xC3\xA9\xE2\x98\x83"
         "caf\xC3\xA9"},
        {"koi8-r", "<meta charset=\"koi8-r\">", "\xC1", "&#233;&#9731;\xC1"},
        {"wrong", "<meta charset=\"utf-8\">", "caf\xE9", "\xE9&#9731;caf\xE9"},
    };
    for (const Row& row : rows) {
        const QByteArray start = "<html><head>" + row.head + "</head><body><p>";
        const QByteArray end = "</p></body></html>\r\n";
        Edit(start + row.before + end, QString::fromUtf8("\xC3\xA9\xE2\x98\x83"));
        EXPECT_TRUE(pane.Save(path));
        EXPECT_EQ(Saved(), start + row.after + end) << row.name;
    }
}

TEST_F(Design, KeepsTheMarksOfUtf8AndUtf16) {
    const auto text = [](const char* typed) {
        return QStringLiteral("<html><head></head><body><p>%1a</p></body></html>").arg(QLatin1String(typed));
    };
    Edit("\xEF\xBB\xBF" + text("").toUtf8());
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), "\xEF\xBB\xBF" + text("typed ").toUtf8());
    const auto utf16 = [](const QString& s) {
        QByteArray bytes("\xFF\xFE");
        for (const QChar c : s)
            bytes += QByteArray(1, static_cast<char>(c.cell())) + static_cast<char>(c.row());
        return bytes;
    };
    Edit(utf16(text("")));
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), utf16(text("typed ")));
}

TEST_F(Design, APageWithoutABodyTagKeepsItsDoctype) {
    const QByteArray doctype = "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 3.2//EN\">\r\n";
    Edit(doctype + "<title>t</title>\r\n<p>one</p>\r\n<p>two</p>\r\n");
    EXPECT_TRUE(pane.Save(path));
    EXPECT_EQ(Saved(), doctype +
                           "<html><head><title>t</title>\r\n</head><body><p>typed one</p>\r\n<p>two</p>\r\n"
                           "</body></html>\r\n");
}

TEST_F(Design, AFileThatCannotBeWrittenStandsAsItWas) {
    const QByteArray page = "<html><head></head><body><p>one</p></body></html>";
    Edit(page);
    EXPECT_FALSE(pane.Save(TestFolder() + QStringLiteral("/no/such/folder/page.htm")));
    EXPECT_FALSE(pane.Save(TestFolder()));
    EXPECT_EQ(Saved(), page);
    EXPECT_TRUE(pane.Save(path));
    EXPECT_TRUE(Saved().contains("typed one"));
}

TEST_F(Design, NothingLoadedSavesNothing) {
    const QString target = TestFolder() + QStringLiteral("/x.htm");
    EXPECT_EQ(pane.LoadedPath(), QString());
    EXPECT_FALSE(pane.Save(target));
    pane.Load(TestFolder() + QStringLiteral("/missing.htm"));
    EXPECT_EQ(pane.LoadedPath(), QString());
    EXPECT_FALSE(pane.Save(target));
    EXPECT_FALSE(QFile::exists(target));
}

TEST_F(Design, LoadedAgainTheChangesAreGone) {
    Edit("<html><body><p>one</p></body></html>");
    pane.Load(path);
    pane.Load(path);
    ASSERT_TRUE(Probe::Until(pane, canBeEdited));
    EXPECT_EQ(Probe::Run(pane, QStringLiteral("document.querySelector('p').textContent")).toString(),
              QStringLiteral("one"));
}

TEST_F(Design, ADeadEngineLeavesAnEmptyViewAndTheFile) {
    const QByteArray page = "<html><body><p>one</p></body></html>";
    Edit(page);
    ASSERT_TRUE(Probe::Kill(pane));
    EXPECT_FALSE(pane.Save(path));
    EXPECT_EQ(Saved(), page);
    Load(page);
}

TEST_F(Design, ADeathWhileSavingIsNoSave) {
    const QByteArray page = "<html><body><p>one</p></body></html>";
    Edit(page);
    Probe::Block(pane);
    Probe::KillSoon(pane);
    EXPECT_FALSE(pane.Save(path));
    EXPECT_EQ(Saved(), page);
    EXPECT_EQ(Probe::Page(pane), nullptr);
}

TEST_F(Design, ScriptsOfThePageDoNotRunAndItGoesNowhere) {
    PageFiles::Write(QStringLiteral("other.htm"), "<title>other</title>");
    const QByteArray script = "<script>document.title = 'ran'; location.href = 'other.htm'</script>";
    Edit("<html><head><meta http-equiv=\"refresh\" content=\"0;url=other.htm\">" + script +
         "</head><body onload=\"document.title='ran'\"><p>one</p><a id=\"a\" href=\"other.htm\">link</a>"
         "</body></html>");
    Probe::Run(pane, QStringLiteral("document.getElementById('a').click(); location.href = 'other.htm'; 0"));
    Probe::Settle(pane);
    EXPECT_EQ(Probe::Run(pane, QStringLiteral("document.title + location.pathname")).toString(), path);
    EXPECT_TRUE(pane.Save(path));
    EXPECT_TRUE(Saved().contains(script));
    EXPECT_TRUE(Saved().contains("typed one"));
}

TEST_F(Design, NeitherLinksNorFormsNorRefreshesLeadAway) {
    OnePageServer server("<title>away</title>");
    const QByteArray away = server.Address().toLatin1() + "away";
    // To another place of the web the engine itself would let the page go.
    Edit("<html><head><meta http-equiv=refresh content=\"0;url=" + away +
         "\"></head><body><p>one</p><a id=a href=\"" + away + "\">link</a><form id=f action=\"" + away +
         "\"></form></body></html>");
    for (const char* way : {"document.getElementById('a').click()", "document.getElementById('f').submit()",
                            "location.href = document.getElementById('a').href"}) {
        Probe::Run(pane, QLatin1String(way) + QStringLiteral("; 0"));
        Probe::Settle(pane);
    }
    // A picture that is asked for after all of them has come: so would they have.
    Probe::Run(pane, QStringLiteral("new Image().src = '%1picture'; 0").arg(server.Address()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.Asked().contains(QStringLiteral("picture")); }, 20000));
    EXPECT_EQ(server.Asked(), QStringList(QStringLiteral("picture")));
    EXPECT_EQ(Probe::Run(pane, QStringLiteral("location.pathname + document.title")).toString(), path);
    EXPECT_TRUE(pane.Save(path));
    EXPECT_TRUE(Saved().contains("typed one"));
}

TEST_F(Design, TheMenuOffersEditingAndNothingElse) {
    Load("<html><body><p>one</p><a href=\"other.htm\">link</a></body></html>");
    QStringList offered;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &pane, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        for (const QAction* action : menu->actions())
            offered << action->text();
        menu->close();
    });
    watch.start(50);
    emit pane.findChild<QWebEngineView*>()->customContextMenuRequested(QPoint(20, 20));
    EXPECT_EQ(offered, QStringList({"Undo", "Redo", "", "Cut", "Copy", "Paste", "", "Select all"}))
        << offered.join(u'|').toStdString();
}

TEST_F(Design, StylesComeFromThePagesFolder) {
    PageFiles::Write(QStringLiteral("s.css"), "p { color: rgb(1, 2, 3) }");
    Load("<html><head><link rel=stylesheet href=s.css></head><body><p>one</p></body></html>");
    EXPECT_TRUE(Probe::Until(
        pane, QStringLiteral("getComputedStyle(document.querySelector('p')).color === 'rgb(1, 2, 3)'")));
}

TEST_F(Design, FramesShowFilesThatThePageCannotRead) {
    PageFiles::Write(QStringLiteral("frame.htm"), "<body bgcolor=#010203><p>secret</p>");
    PageFiles::Write(QStringLiteral("p.svg"),
                     "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    Load("<html><body><iframe id=f src=frame.htm style='position: fixed; inset: 0'></iframe><img id=i "
         "src=p.svg>"
         "</body></html>");
    EXPECT_TRUE(Probe::Until(pane, QStringLiteral("i.naturalWidth === 9")));
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return pane.grab().toImage().pixelColor(60, 90) == QColor(1, 2, 3); }, 20000));
    EXPECT_EQ(Probe::Run(pane, QStringLiteral("f.contentDocument === null")), QVariant(true));
}

TEST_F(Design, ALargePageComesThroughWhole) {
    QByteArray page = "<html><head></head><body>\r\n";
    for (int i = 0; i < 60000; ++i)
        page += "<p>paragraph " + QByteArray::number(i) + " of many, all alike in length</p>\r\n";
    page += "</body></html>\r\n";
    ASSERT_GT(page.size(), 3'000'000);
    Edit(page);
    EXPECT_TRUE(pane.Save(path));
    EXPECT_TRUE(Saved() == page.replace("<p>paragraph 0 ", "<p>typed paragraph 0 "));
}

TEST_F(Design, PageThatCouldNotBeWrittenCanBeHad) {
    Edit("<html><head></head><body><p>one</p></body></html>");
    const QString folder = QFileInfo(path).absolutePath() + QStringLiteral("/none/page.htm");
    EXPECT_FALSE(pane.Unsaved());
    EXPECT_FALSE(pane.Save(folder));
    EXPECT_EQ(pane.Unsaved(), QByteArray("<html><head></head><body><p>typed one</p></body></html>"));
    EXPECT_TRUE(pane.Save(path));
    EXPECT_FALSE(pane.Unsaved());
}

} // namespace
