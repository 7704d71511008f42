// The way out of long work: Esc, wherever in a window the keys go.
#pragma once

#include <QObject>

class QWidget;

/// Watches while it lives. Esc for a box, a menu or another window on top is theirs.
class EscapeKey final : public QObject {
    Q_OBJECT

  public:
    EscapeKey(QWidget& window, QObject* parent);

  Q_SIGNALS:
    void Pressed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& window_;
};
