// A menu entry that reads more than its text.
#pragma once

#include <QAction>

class QMenu;

/// Its text stays what it is to everyone who asks; a ShownTextMenu draws the other, and screen readers are
/// told it.
class ShownTextEntry final : public QAction {
    Q_OBJECT

  public:
    /// The menu is the one that the entry is added to.
    ShownTextEntry(const QString& text, QString shown, const QMenu& menu, QObject* parent);

    const QString& Shown() const { return shown_; }
    const QMenu& Menu() const { return menu_; }

  private:
    QString shown_;
    const QMenu& menu_;
};
