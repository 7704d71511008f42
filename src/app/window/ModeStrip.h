// The strip below the documents: Edit, Design and View.
#pragma once

#include <QWidget>

class Frame;
class QTabBar;

class ModeStrip : public QWidget {
    Q_OBJECT

  public:
    explicit ModeStrip(Frame& frame);

    /// Selects a tab by its caption. A tab that the program selects is no click.
    void Select(const QString& caption);

  Q_SIGNALS:
    /// A tab was clicked, or chosen by keys, the selected one included.
    void Click(const QString& caption);

  private:
    QTabBar* tabStrip3_;
};
