// The names of the open documents, while Ctrl+Tab goes from one to the next.
#pragma once

#include <QListWidget>

class QMdiArea;
class QMdiSubWindow;

/// Stands above the middle of the area and shows itself: not in it, where screen readers are told of nothing
/// but documents. It never takes the focus; a screen reader hears of the chosen row as if it did.
class WindowChooserList final : public QListWidget {
    Q_OBJECT

  public:
    explicit WindowChooserList(QMdiArea& area);

    void Choose(const QMdiSubWindow& window);

    /// "a.htm - /site", or the whole name where it is no path.
    static QString Row(const QString& name);

  private:
    QSize SizeIn(const QMdiArea& area) const;

    QList<const QMdiSubWindow*> windows_;
};
