// Files from outside, one by one, and behind a modal dialog.
#include "app/documents/Arrivals.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QDialog>

namespace {

using namespace Qt::StringLiterals;

class OpeningFrame final : public TestFrame {
  public:
    void OpenDocumentFile(const QString& path) override {
        opened << path;
        if (onOpen)
            onOpen();
    }

    QStringList opened;
    std::function<void()> onOpen;
};

TEST(Arrivals, WhatComesWhileFilesAreOpenedWaitsItsTurn) {
    OpeningFrame frame;
    Arrivals arrivals(frame);
    frame.onOpen = [&] {
        frame.onOpen = nullptr;
        arrivals.Open({u"c"_s});
        EXPECT_EQ(frame.opened, QStringList({u"a"_s}));
    };
    arrivals.Open({u"a"_s, u"b"_s});
    EXPECT_EQ(frame.opened, QStringList({u"a"_s, u"b"_s, u"c"_s}));
}

TEST(Arrivals, NothingIsOpenedUnderAModalDialogAndNothingIsLost) {
    OpeningFrame frame;
    Arrivals arrivals(frame);
    {
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        arrivals.Open({u"a"_s});
        EXPECT_EQ(frame.opened, QStringList());
    }
    arrivals.Resume();
    EXPECT_EQ(frame.opened, QStringList()) << "not within the event that ends the dialog";
    QCoreApplication::processEvents();
    EXPECT_EQ(frame.opened, QStringList({u"a"_s}));
}

TEST(Arrivals, AFrameThatGoesOpensNothingMore) {
    OpeningFrame frame;
    Arrivals arrivals(frame);
    frame.onOpen = [&] { arrivals.Stop(); };
    arrivals.Open({u"a"_s, u"b"_s});
    EXPECT_EQ(frame.opened, QStringList({u"a"_s}));
}

} // namespace
