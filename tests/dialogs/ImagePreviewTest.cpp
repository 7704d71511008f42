// How large the preview of a picture is, and the form that shows it.
#include "dialogs/ImagePreview.h"

#include "dialogs/frmImage.h"
#include "support/FreshUser.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QImage>
#include <QLabel>

namespace {

QString Picture(const QString& name, int width, int height, const char* format = "PNG") {
    const QString path = TestFolder() + u'/' + name;
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    EXPECT_TRUE(image.save(path, format));
    return path;
}

struct PreviewForm {
    explicit PreviewForm(TestFrame& frame)
        : form(*frame.LoadedForms().Find<frmImage>()),
          imgSel(*form.findChild<QLabel*>(QStringLiteral("imgSel"))),
          picSel(*form.findChild<QLabel*>(QStringLiteral("picSel"))) {}
    frmImage& form;
    QLabel& imgSel;
    QLabel& picSel;
};

} // namespace

TEST(ImagePreview, NeverLargerThanThePictureNorThan3000Twips) {
    struct Row {
        QSize picture;
        ImagePreview preview;
    };
    const Row rows[] = {
        {{100, 400}, {true, 2000, 3000}},  {{400, 100}, {true, 3000, 2000}}, {{150, 150}, {true, 3000, 3000}},
        {{149, 149}, {false, 2980, 2980}}, {{149, 150}, {true, 2980, 3000}}, {{468, 60}, {true, 3000, 1200}},
        {{1, 1}, {false, 20, 20}},         {{5000, 9}, {true, 3000, 180}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(PreviewOf(row.picture), row.preview)
            << row.picture.width() << " by " << row.picture.height();
}

TEST(ShowImagePreview, LoadsTheFormUnseenAndShowsThePicture) {
    TestFrame frame;
    ShowImagePreview(frame, Picture(QStringLiteral("tall.png"), 100, 400));
    const PreviewForm preview(frame);
    EXPECT_EQ(preview.form.windowTitle(), QStringLiteral("Select Image"));
    EXPECT_FALSE(preview.form.isVisible());
    EXPECT_EQ(preview.form.PictureSize(), QSize(100, 400));
    EXPECT_EQ(preview.picSel.size(), QSize(100, 400));
    EXPECT_TRUE(preview.imgSel.hasScaledContents());
    EXPECT_EQ(preview.imgSel.size(), QSize(100, 150));
    EXPECT_EQ(preview.imgSel.parentWidget(), preview.form.Frame1());
    EXPECT_EQ(preview.form.Frame1()->grab().toImage().pixelColor(50, 140), QColor(Qt::red))
        << "stretched over the whole of the preview";

    ShowImagePreview(frame, Picture(QStringLiteral("small.bmp"), 20, 30, "BMP"));
    EXPECT_EQ(preview.form.PictureSize(), QSize(20, 30));
    EXPECT_FALSE(preview.imgSel.hasScaledContents());
    EXPECT_EQ(preview.imgSel.size(), QSize(20, 30));
}

TEST(ShowImagePreview, TakesAPictureByItsContentWhateverItsName) {
    TestFrame frame;
    ShowImagePreview(frame, Picture(QStringLiteral("named.gif"), 30, 20, "PNG"));
    EXPECT_EQ(PreviewForm(frame).form.PictureSize(), QSize(30, 20));
}

TEST(ShowImagePreview, TurnsAPhotographAsBrowsersDo) {
    TestFrame frame;
    const QString path = Picture(QStringLiteral("turned.jpg"), 30, 20, "JPG");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray bytes = file.readAll();
    // Behind the two bytes that begin a picture: "turn by a quarter" (6) as a camera writes it.
    bytes.insert(2, QByteArray::fromHex("ffe1"
                                        "0022"
                                        "457869660000"
                                        "4d4d002a00000008"
                                        "0001"
                                        "0112"
                                        "0003"
                                        "00000001"
                                        "00060000"
                                        "00000000"));
    file.seek(0);
    file.write(bytes);
    file.close();
    ShowImagePreview(frame, path);
    EXPECT_EQ(PreviewForm(frame).form.PictureSize(), QSize(20, 30));
}

TEST(ShowImagePreview, WhatIsNoPictureLeavesThePreview) {
    TestFrame frame;
    ShowImagePreview(frame, Picture(QStringLiteral("a.png"), 468, 60));
    QFile text(TestFolder() + QStringLiteral("/page.htm"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("<HTML>");
    text.close();
    for (const QString& path :
         {text.fileName(), TestFolder() + QStringLiteral("/none.png"), TestFolder(), QString()}) {
        ShowImagePreview(frame, path);
        EXPECT_EQ(PreviewForm(frame).form.PictureSize(), QSize(468, 60)) << path.toStdString();
        EXPECT_EQ(PreviewForm(frame).imgSel.size(), QSize(150, 60));
    }
}
