#include "shell/tray/menu_layout.h"

#include <QDBusMetaType>

namespace orvelle {
namespace {

constexpr int rootId = 0;

/// In a label an underscore marks the next letter as a key, and two of them stand for one.
QString labelOf(const QString& title) {
    return QString(title).replace(QLatin1Char('_'), QLatin1String("__"));
}

QVariantMap allProperties(const std::vector<MenuEntry>& entries, int id) {
    if (id == rootId)
        return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    const MenuEntry& entry = entries.at(static_cast<std::size_t>(id - 1));
    if (entry.title.isEmpty())
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    return {{QStringLiteral("label"), labelOf(entry.title)}};
}

} // namespace

bool isMenuNode(int id, std::size_t entryCount) {
    return id >= rootId && static_cast<std::size_t>(id) <= entryCount;
}

QVariantMap menuProperties(const std::vector<MenuEntry>& entries, int id, const QStringList& names) {
    const QVariantMap all = allProperties(entries, id);
    if (names.isEmpty())
        return all;
    QVariantMap wanted;
    for (auto property = all.begin(); property != all.end(); ++property) {
        if (names.contains(property.key()))
            wanted.insert(property.key(), property.value());
    }
    return wanted;
}

MenuLayoutNode menuLayout(const std::vector<MenuEntry>& entries, int id, int depth,
                          const QStringList& names) {
    MenuLayoutNode node{id, menuProperties(entries, id, names), {}};
    if (id != rootId || depth == 0)
        return node;
    for (int child = 1; child <= static_cast<int>(entries.size()); ++child)
        node.children.append(QDBusVariant(QVariant::fromValue(menuLayout(entries, child, 0, names))));
    return node;
}

void registerMenuTypes() {
    qDBusRegisterMetaType<MenuLayoutNode>();
    qDBusRegisterMetaType<MenuItemProperties>();
    qDBusRegisterMetaType<QList<MenuItemProperties>>();
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
    qDBusRegisterMetaType<QList<int>>();
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuLayoutNode& node) {
    argument.beginStructure();
    argument << node.id << node.properties << node.children;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuLayoutNode& node) {
    argument.beginStructure();
    argument >> node.id >> node.properties >> node.children;
    argument.endStructure();
    return argument; // NOLINT(bugprone-return-const-ref-from-parameter): what QtDBus asks for
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemProperties& item) {
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemProperties& item) {
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument; // NOLINT(bugprone-return-const-ref-from-parameter): what QtDBus asks for
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event) {
    argument.beginStructure();
    argument << event.id << event.event << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event) {
    argument.beginStructure();
    argument >> event.id >> event.event >> event.data >> event.timestamp;
    argument.endStructure();
    return argument; // NOLINT(bugprone-return-const-ref-from-parameter): what QtDBus asks for
}

} // namespace orvelle
