// A menu in which an entry may read more than its text.
#pragma once

#include <QMenu>

/// Draws what a ShownTextEntry shows; all others as any menu does.
class ShownTextMenu final : public QMenu {
    Q_OBJECT

  public:
    using QMenu::QMenu;

  protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* entry) const override;
};
