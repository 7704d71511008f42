// A small page that shows a background colour and a background picture, as a browser would.
#pragma once

#include <QFrame>
#include <QPixmap>

/// The picture repeats over the page. The page is white at first, whatever the desktop's colours.
class PageSample : public QFrame {
    Q_OBJECT

  public:
    explicit PageSample(QWidget* parent = nullptr);

    QColor BackColor() const { return backColor_; }
    void SetBackColor(const QColor& color);
    const QPixmap& Picture() const { return picture_; }
    /// A null picture shows the background colour alone.
    void SetPicture(const QPixmap& picture);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor backColor_ = Qt::white;
    QPixmap picture_;
};
