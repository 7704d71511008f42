// A small site on the disk for browse buttons to pick from.
#pragma once

#include "support/FreshUser.h"

#include <QDir>
#include <QFile>
#include <QImage>

/// pages/a.htm beside img/banner.png (468 by 60 pixels) and img/low.png (10 by 20), below the test's own
/// folder.
class Site {
  public:
    Site() {
        QDir root(TestFolder());
        root.mkpath(QStringLiteral("site/pages"));
        root.mkpath(QStringLiteral("site/img"));
        Picture(QStringLiteral("img/banner.png"), QSize(468, 60));
        Picture(QStringLiteral("img/low.png"), QSize(10, 20));
        for (const QString& name :
             {QStringLiteral("pages/a.htm"), QStringLiteral("pages/b.htm"), QStringLiteral("x.mid")}) {
            QFile file(Path(name));
            (void)file.open(QFile::WriteOnly);
        }
    }
    QString Path(const QString& name) const { return TestFolder() + QStringLiteral("/site/") + name; }

  private:
    void Picture(const QString& name, QSize size) const {
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor(255, 244, 214));
        image.setPixelColor(1, 1, QColor(200, 150, 80));
        image.save(Path(name));
    }
};
