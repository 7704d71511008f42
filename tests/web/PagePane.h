// A browser control in a window of its own.
#pragma once

#include "support/FreshUser.h"
#include "web/BrowserPane.h"
#include "web/PageFiles.h"
#include "web/PageProbe.h"

#include <gtest/gtest.h>
#include <QTest>

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
    bool ShowsColour(QPoint at, const QColor& colour) {
        return QTest::qWaitFor([&] { return pane.grab().toImage().pixelColor(at) == colour; }, 20000);
    }

    QWidget window;
    BrowserPane pane;
};
