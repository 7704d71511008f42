// The commands of menus, toolbar and buttons by name, and what each does.
#pragma once

#include <functional>
#include <QHash>
#include <QString>
#include <QStringList>

/// A command set (FileCommands, MenuTagCommands, …) fills rows; the menu and the toolbar look them up by the
/// name of their entry ("mnuBold", "tb_bold"). An entry without a row is disabled.
class CommandSet {
  public:
    using Handler = std::function<void()>;

    void Set(const QString& name, Handler handler) { handlers_.insert(name, std::move(handler)); }
    bool Has(const QString& name) const { return handlers_.contains(name); }
    /// Carries a command out; one that has no row does nothing.
    void Run(const QString& name) const {
        if (const auto found = handlers_.constFind(name); found != handlers_.cend())
            (*found)();
    }
    QStringList Names() const { return handlers_.keys(); }

  private:
    QHash<QString, Handler> handlers_;
};
