// A menu in which an entry may read more than its text.
#pragma once

#include <QMenu>

class ShownTextMenu final : public QMenu {
    Q_OBJECT

  public:
    using QMenu::QMenu;

    /// What is drawn for an entry in place of its text, which stays as it is, for as long as the entry
    /// stands.
    static void SetShownText(QAction& entry, const QString& text);

  protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* entry) const override;
};
