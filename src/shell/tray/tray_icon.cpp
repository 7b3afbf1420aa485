#include "shell/tray/tray_icon.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvelle {

TrayIcon::TrayIcon(const QString& id, std::function<std::optional<TrayContent>()> content,
                   TrayActions actions, TrayBus bus, AnimationClock& clock)
    : m_content(std::move(content))
    , m_clock(clock)
    , m_wait(clock, [this](double /*seconds*/) { publish(); })
    , m_item(*new StatusNotifierItem(m_itemObject, id, std::move(actions)))
    , m_menu(*new TrayMenu(m_menuObject)) {
    publish(); // before there is a connection, so that nothing of it is announced as new
    m_connection = std::make_unique<TrayConnection>(m_itemObject, m_menuObject, std::move(bus));
}

void TrayIcon::update() {
    if (std::exchange(m_isUpdateDue, true))
        return;
    using std::chrono::milliseconds;
    const milliseconds passed(std::llround(std::max(0.0, m_clock.now() - m_published) * 1000));
    if (passed < updateInterval)
        m_wait.start(updateInterval - passed);
    else
        QMetaObject::invokeMethod(this, &TrayIcon::publish, Qt::QueuedConnection);
}

void TrayIcon::publish() {
    m_wait.stop();
    m_isUpdateDue = false;
    m_published = m_clock.now();
    if (const std::optional<TrayContent> content = m_content())
        m_item.show(*content);
}

} // namespace orvelle
