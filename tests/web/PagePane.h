// A browser control in a window of its own.
#pragma once

#include "support/FreshUser.h"
#include "web/BrowserPane.h"
#include "web/PageFiles.h"
#include "web/PageProbe.h"

#include <gtest/gtest.h>
#include <QTest>
#include <QWebEnginePage>

class PagePane : public testing::Test {
  protected:
    PagePane() : pane(&window) {
        FreshUser();
        window.resize(600, 400);
        pane.resize(600, 400);
        window.show();
        pane.show();
    }

    bool Shows(const QString& title) {
        return Probe::Until(pane, QStringLiteral("document.title === %1").arg(Probe::Quoted(title)));
    }
    /// Shows a page that has this script.
    bool Open(const QString& name, const QByteArray& script) {
        return pane.Navigate(PageFiles::Write(name, "<title></title><body><script>" + script + "</script>"));
    }
    /// From the outside: a page in a loop answers no script.
    bool HasTitle(const QString& title) {
        return QTest::qWaitFor([&] { return Probe::Page(pane) && Probe::Page(pane)->title() == title; },
                               20000);
    }
    void NextPageShows() {
        EXPECT_TRUE(pane.Navigate(PageFiles::Write(QStringLiteral("next.htm"), "<title>next</title>")));
        EXPECT_TRUE(Shows(QStringLiteral("next")));
    }
    bool ShowsColour(QPoint at, const QColor& colour) {
        return QTest::qWaitFor([&] { return pane.grab().toImage().pixelColor(at) == colour; }, 20000);
    }

    QWidget window;
    BrowserPane pane;
};
