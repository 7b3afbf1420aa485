#pragma once

#include "shell/tray/menu_layout.h"

#include <QDBusAbstractAdaptor>
#include <QDBusContext>

namespace orvelle {

/// What a connection registers for a menu. It knows the call that is being answered.
class TrayMenuObject final : public QObject, public QDBusContext {
    Q_OBJECT
};

/// The menu of an icon on D-Bus, interface com.canonical.dbusmenu. The tray paints it and tells which entry
/// was chosen. Main thread only.
class TrayMenu final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    static constexpr auto path = QLatin1StringView("/MenuBar");

    explicit TrayMenu(TrayMenuObject& owner);

    /// Offers these entries. The tray is told when they read otherwise than those before.
    void setEntries(std::vector<MenuEntry> entries);

    [[nodiscard]] uint version() const { return 3; } ///< of the interface
    [[nodiscard]] QString textDirection() const { return QStringLiteral("ltr"); }
    [[nodiscard]] QString status() const { return QStringLiteral("normal"); }
    [[nodiscard]] QStringList iconThemePath() const { return {}; }

public Q_SLOTS: // the methods on D-Bus; a node that the menu does not have is answered by an error
    // NOLINTBEGIN(readability-identifier-naming): the names on D-Bus
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                   orvelle::MenuLayoutNode& layout);
    QList<orvelle::MenuItemProperties> GetGroupProperties(const QList<int>& ids,
                                                          const QStringList& propertyNames);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    /// Returns the numbers of the nodes that do not exist.
    QList<int> EventGroup(const QList<orvelle::MenuEvent>& events);
    /// Returns whether the menu has changed, which never waits for this question.
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

Q_SIGNALS: // the signals on D-Bus
    void LayoutUpdated(uint revision, int parent);
    // NOLINTEND(readability-identifier-naming)

private:
    /// Whether there is such a node; answers the call with an error if not.
    [[nodiscard]] bool hasNode(int id);
    /// Answers the call with an error, if there is one.
    void refuse(const QString& reason);
    void handle(int id, const QString& event);

    TrayMenuObject& m_owner;
    std::vector<MenuEntry> m_entries;
    uint m_revision = 1;
};

} // namespace orvelle
