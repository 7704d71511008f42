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
    /// Ctrl+PageDown is a click on the next tab from now on, Ctrl+PageUp on the one before, around the ends;
    /// only while the strip is shown.
    void AddKeys();
    /// Gives the focus to the selected tab.
    void TakeFocus();

  Q_SIGNALS:
    /// A tab was clicked, or chosen by keys, the selected one included.
    void Click(const QString& caption);

  private:
    void Step(int tabs);

    QTabBar* tabStrip3_;
};
