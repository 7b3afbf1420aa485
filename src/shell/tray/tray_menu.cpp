#include "shell/tray/tray_menu.h"

#include <algorithm>
#include <utility>

namespace orvelle {
namespace {

bool readTheSame(const std::vector<MenuEntry>& some, const std::vector<MenuEntry>& others) {
    return std::ranges::equal(some, others, {}, &MenuEntry::title, &MenuEntry::title);
}

} // namespace

TrayMenu::TrayMenu(TrayMenuObject& owner)
    : QDBusAbstractAdaptor(&owner)
    , m_owner(owner) {
    registerMenuTypes();
}

void TrayMenu::setEntries(std::vector<MenuEntry> entries) {
    const bool isNew = !readTheSame(m_entries, entries);
    m_entries = std::move(entries);
    if (isNew)
        Q_EMIT LayoutUpdated(++m_revision, 0);
}

void TrayMenu::refuse(const QString& reason) {
    if (m_owner.calledFromDBus())
        m_owner.sendErrorReply(QDBusError::InvalidArgs, reason);
}

bool TrayMenu::hasNode(int id) {
    if (isMenuNode(id, m_entries.size()))
        return true;
    refuse(QStringLiteral("The menu has no entry %1.").arg(id));
    return false;
}

uint TrayMenu::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                         MenuLayoutNode& layout) {
    if (hasNode(parentId))
        layout = menuLayout(m_entries, parentId, recursionDepth, propertyNames);
    return m_revision;
}

QList<MenuItemProperties> TrayMenu::GetGroupProperties(const QList<int>& ids,
                                                       const QStringList& propertyNames) {
    QList<MenuItemProperties> items;
    const int count = static_cast<int>(m_entries.size());
    for (int id = 0; id <= count; ++id) {
        if (ids.isEmpty() || ids.contains(id))
            items.append({id, menuProperties(m_entries, id, propertyNames)});
    }
    return items;
}

QDBusVariant TrayMenu::GetProperty(int id, const QString& name) {
    if (!hasNode(id))
        return QDBusVariant(QString());
    const QVariant value = menuProperties(m_entries, id, {}).value(name);
    if (!value.isValid()) {
        refuse(QStringLiteral("The entry has no property of this name."));
        return QDBusVariant(QString());
    }
    return QDBusVariant(value);
}

void TrayMenu::handle(int id, const QString& event) {
    if (id <= 0 || event != QLatin1String("clicked"))
        return;
    // Later, so that the tray gets its answer first. A copy, because the action may change the menu.
    if (const auto action = m_entries.at(static_cast<std::size_t>(id - 1)).action)
        QMetaObject::invokeMethod(this, action, Qt::QueuedConnection);
}

void TrayMenu::Event(int id, const QString& eventId, const QDBusVariant& /*data*/, uint /*timestamp*/) {
    if (hasNode(id))
        handle(id, eventId);
}

QList<int> TrayMenu::EventGroup(const QList<MenuEvent>& events) {
    QList<int> unknown;
    for (const MenuEvent& event : events) {
        if (isMenuNode(event.id, m_entries.size()))
            handle(event.id, event.event);
        else
            unknown.append(event.id);
    }
    return unknown;
}

bool TrayMenu::AboutToShow(int id) {
    return !hasNode(id);
}

QList<int> TrayMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) {
    for (const int id : ids) {
        if (!isMenuNode(id, m_entries.size()))
            idErrors.append(id);
    }
    return {};
}

} // namespace orvelle
