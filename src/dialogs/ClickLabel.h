// A label that can be clicked.
#pragma once

#include <QLabel>

/// Emits Click when the left button goes up over it, and DblClick at the second press of a double click.
class ClickLabel : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    /// The colour of its text.
    QColor ForeColor() const { return palette().color(QPalette::WindowText); }
    void SetForeColor(const QColor& color);

  Q_SIGNALS:
    void Click();
    void DblClick();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    bool pressed_ = false;
};
