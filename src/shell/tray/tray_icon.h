#pragma once

#include "animation/animation_clock.h"
#include "shell/tray/status_notifier_item.h"
#include "shell/tray/tray_connection.h"
#include "shell/tray/tray_menu.h"

#include <memory>
#include <optional>

namespace orvelle {

/// One icon in the tray. What it shows is asked for at most every `updateInterval`, because each update wakes
/// the tray too. Main thread only.
class TrayIcon final : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds updateInterval{2000};

    /// `content` is asked what the icon shows, at once and after changes; nothing leaves it as it is. `clock`
    /// must outlive the object.
    TrayIcon(const QString& id, std::function<std::optional<TrayContent>()> content, TrayActions actions,
             TrayBus bus, AnimationClock& clock);

    /// Something may look different. Several changes in one turn of the event loop are one.
    void update();
    void setMenu(std::vector<MenuEntry> entries) { m_menu.setEntries(std::move(entries)); }

    /// Its name on the bus.
    [[nodiscard]] const QString& serviceName() const { return m_connection->serviceName(); }

private:
    void publish();

    std::function<std::optional<TrayContent>()> m_content;
    AnimationClock& m_clock;
    double m_published = 0;     ///< the moment of the last update, seconds
    bool m_isUpdateDue = false; ///< in this turn, or when `m_wait` ends
    Animation m_wait;           ///< runs until the next update may come
    QObject m_itemObject;
    TrayMenuObject m_menuObject;
    StatusNotifierItem& m_item;                   ///< owned by `m_itemObject`
    TrayMenu& m_menu;                             ///< owned by `m_menuObject`
    std::unique_ptr<TrayConnection> m_connection; ///< always there after construction
};

} // namespace orvelle
