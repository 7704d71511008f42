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
    /// Makes name another name of the command to, which may come later: it is there when that one is.
    void Forward(const QString& name, const QString& to) { forwards_.insert(name, to); }
    bool Has(const QString& name) const { return handlers_.contains(forwards_.value(name, name)); }
    /// Carries a command out; one that has no row does nothing.
    void Run(const QString& name) const {
        const auto found = handlers_.constFind(forwards_.value(name, name));
        if (found != handlers_.cend())
            (*found)();
    }
    /// The names that have a handler of their own.
    QStringList Names() const { return handlers_.keys(); }

  private:
    QHash<QString, Handler> handlers_;
    QHash<QString, QString> forwards_;
};
