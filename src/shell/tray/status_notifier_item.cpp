#include "shell/tray/status_notifier_item.h"

#include "shell/tray/tray_menu.h"

#include <QDBusMetaType>

#include <utility>

namespace orvelle {

StatusNotifierItem::StatusNotifierItem(QObject& owner, QString id, TrayActions actions)
    : QDBusAbstractAdaptor(&owner)
    , m_id(std::move(id))
    , m_actions(std::move(actions)) {
    qDBusRegisterMetaType<TrayPicture>();
    qDBusRegisterMetaType<TrayPictures>();
    qDBusRegisterMetaType<TrayToolTip>();
}

void StatusNotifierItem::show(const TrayContent& content) {
    const TrayContent before = std::exchange(m_content, content);
    if (content.title != before.title)
        Q_EMIT NewTitle();
    if (content.pictures != before.pictures)
        Q_EMIT NewIcon();
    if (content.toolTip != before.toolTip)
        Q_EMIT NewToolTip();
    if (content.label != before.label || content.widestLabel != before.widestLabel)
        Q_EMIT XAyatanaNewLabel(content.label, content.widestLabel);
}

QDBusObjectPath StatusNotifierItem::menu() const {
    return QDBusObjectPath(TrayMenu::path);
}

void StatusNotifierItem::Activate(int x, int y) {
    m_actions.open({x, y});
}

void StatusNotifierItem::SecondaryActivate(int x, int y) {
    m_actions.open({x, y});
}

void StatusNotifierItem::ContextMenu(int x, int y) {
    m_actions.openMenu({x, y});
}

void StatusNotifierItem::Scroll(int /*delta*/, const QString& /*orientation*/) {}

void StatusNotifierItem::ProvideXdgActivationToken(const QString& token) {
    constexpr qsizetype longestToken = 1024;
    // Qt reads the variable when a window asks for the keyboard, and removes it then.
    if (token.size() <= longestToken && !token.contains(QChar::Null))
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

} // namespace orvelle
