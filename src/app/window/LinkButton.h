// A line of text that does something when it is clicked.
#pragma once

#include <QAbstractButton>

/// An underlined title and a note beside it, in the colour of the text around them. The keyboard reaches it
/// by Tab and the arrow keys, and clicks it by Space or Enter. A note too long for the room loses its middle.
class LinkButton final : public QAbstractButton {
    Q_OBJECT

  public:
    explicit LinkButton(QWidget* parent);

    void SetTexts(const QString& title, const QString& note);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QString title_;
    QString note_;
};
