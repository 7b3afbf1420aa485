#pragma once

#include "shell/status_bar.h"

#include <QDBusArgument>
#include <QDBusVariant>
#include <QStringList>
#include <QVariantMap>

/// A menu in the form of the D-Bus interface com.canonical.dbusmenu: a tree of two levels. The root has the
/// number 0, and the entries below it count from 1.
namespace orvelle {

/// A node with those below it, (ia{sv}av) on D-Bus.
struct MenuLayoutNode {
    int id = 0;
    QVariantMap properties;
    QList<QDBusVariant> children; ///< each a `MenuLayoutNode`
};

/// The properties of a node, (ia{sv}) on D-Bus.
struct MenuItemProperties {
    int id = 0;
    QVariantMap properties;
};

/// Something that happened to a node, (isvu) on D-Bus.
struct MenuEvent {
    int id = 0;
    QString event;
    QDBusVariant data;
    uint timestamp = 0;
};

/// Whether a menu of so many entries has a node of this number.
[[nodiscard]] bool isMenuNode(int id, std::size_t entryCount);

/// Those properties of a node of the menu that have these names; all of them when no name is given. A
/// property that has its usual value is left out.
[[nodiscard]] QVariantMap menuProperties(const std::vector<MenuEntry>& entries, int id,
                                         const QStringList& names);

/// A node of the menu with the nodes below it down to `depth` levels, all of them when that is negative.
[[nodiscard]] MenuLayoutNode menuLayout(const std::vector<MenuEntry>& entries, int id, int depth,
                                        const QStringList& names);

/// Tells QtDBus the types above; a second call has no effect.
void registerMenuTypes();

QDBusArgument& operator<<(QDBusArgument& argument, const MenuLayoutNode& node);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuLayoutNode& node);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemProperties& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemProperties& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event);

} // namespace orvelle
