// A printer of pictures: it keeps what was asked of it, and can fail.
#pragma once

#include "platform/desktop/PrintDevice.h"

#include <QImage>
#include <QPainter>
#include <QStringList>
#include <vector>

/// What a printer did, kept by the test: the device itself goes with its job.
struct PrintRecord {
    QStringList calls;
    std::vector<QImage> pages;
    QString failsAt; ///< the call that fails, as it is recorded
};

class FakeDevice final : public PrintDevice {
  public:
    explicit FakeDevice(PrintRecord& record) : record_(record) {}
    ~FakeDevice() override { Leave(); }

    QSizeF Paper() const override { return {5760, 4320}; }
    QPointF Offset() const override { return {720, 360}; }
    double PixelsPerTwip() const override { return 96 / 1440.0; }
    QPainter& Painter() override { return painter_; }
    bool Start() override { return Call("start") && Blank(); }
    bool NewPage() override {
        Keep();
        return Call("page") && Blank();
    }
    bool End() override {
        Keep();
        return Call("end");
    }
    bool Close() override { return Call("close"); }
    void Abort() override {
        Leave();
        Call("abort");
    }

  private:
    bool Call(const char* name) {
        record_.calls << QString::fromLatin1(name);
        return record_.failsAt !=
               record_.calls.last() + QString::number(record_.calls.count(QString::fromLatin1(name)));
    }
    bool Blank() {
        page_ = QImage(336, 264, QImage::Format_RGB32);
        page_.setDotsPerMeterX(3780);
        page_.setDotsPerMeterY(3780);
        page_.fill(Qt::white);
        return painter_.begin(&page_);
    }
    void Leave() {
        if (painter_.isActive())
            painter_.end();
    }
    void Keep() {
        Leave();
        record_.pages.push_back(page_);
    }

    PrintRecord& record_;
    QImage page_;
    QPainter painter_;
};
