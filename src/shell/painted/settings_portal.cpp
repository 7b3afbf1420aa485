#include "shell/painted/settings_portal.h"

#include "animation/animation_clock.h"
#include "shell/painted/bus_opening.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <functional>
#include <optional>
#include <utility>

namespace orvelle {
namespace {

constexpr QLatin1StringView portalService("org.freedesktop.portal.Desktop");
constexpr QLatin1StringView portalPath("/org/freedesktop/portal/desktop");
constexpr QLatin1StringView portalInterface("org.freedesktop.portal.Settings");

/// The keys and values of each namespace.
using AllSettings = QMap<QString, QVariantMap>;

AllSettings settingsIn(const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1StringView("a{sa{sv}}"))
        return {};
    return qdbus_cast<AllSettings>(answer.arguments().constFirst());
}

/// Hands what the portal tells to a function.
class PortalFollower final : public QObject {
public:
    PortalFollower(const std::optional<QDBusConnection>& bus, std::function<void(const PortalValues&)> apply)
        : m_apply(std::move(apply)) {
        if (bus)
            follow(*bus);
        else
            openSessionBus();
    }

private:
    void openSessionBus() {
        m_opening.emplace();
        connect(&*m_opening, &BusOpening::opened, this, [this] { follow(QDBusConnection::sessionBus()); });
    }
    void follow(const QDBusConnection& bus) {
        m_portal = std::make_unique<SettingsPortal>(bus);
        connect(m_portal.get(), &SettingsPortal::read, this, [this] { m_apply(m_portal->values()); });
    }

    std::function<void(const PortalValues&)> m_apply;
    std::optional<BusOpening> m_opening;      ///< nothing when the bus was given
    std::unique_ptr<SettingsPortal> m_portal; ///< null while there is no bus
};

} // namespace

SettingsPortal::SettingsPortal(const QDBusConnection& bus)
    : m_bus(bus) {
    // Without the service's name, whose owner Qt would wait for.
    m_bus.connect({}, portalPath, portalInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(takeChange(QDBusMessage)));
    auto* starts =
        new QDBusServiceWatcher(portalService, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(starts, &QDBusServiceWatcher::serviceRegistered, this, &SettingsPortal::ask);
    // It belongs to this object. NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    ask();
}

void SettingsPortal::ask() {
    QDBusMessage question =
        QDBusMessage::createMethodCall(portalService, portalPath, portalInterface, QStringLiteral("ReadAll"));
    question.setArguments({PortalValues::namespaces()});
    question.setAutoStartService(false);
    auto* call = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] { takeAnswer(*call); });
    // It belongs to this object. NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
}

void SettingsPortal::takeAnswer(QDBusPendingCallWatcher& call) {
    const AllSettings all = settingsIn(call.reply());
    for (auto settings = all.begin(); settings != all.end(); ++settings) {
        for (auto value = settings->begin(); value != settings->end(); ++value)
            m_values.take(settings.key(), value.key(), value.value());
    }
    call.deleteLater();
    Q_EMIT read();
}

void SettingsPortal::takeChange(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    if (message.signature() != QLatin1StringView("ssv"))
        return;
    m_values.take(arguments[0].toString(), arguments[1].toString(),
                  arguments[2].value<QDBusVariant>().variant());
    Q_EMIT read();
}

std::unique_ptr<QObject> followPortalMotion(AnimationClock& clock,
                                            const std::optional<QDBusConnection>& bus) {
    return std::make_unique<PortalFollower>(bus, [&clock](const PortalValues& values) {
        if (const std::optional<bool> reduces = values.reducesMotion())
            clock.setReduced(*reduces);
    });
}

std::unique_ptr<QObject> followPortalFonts(const std::optional<QDBusConnection>& bus) {
    return std::make_unique<PortalFollower>(
        bus, [](const PortalValues& values) { setDesktopFontNames(values.fonts()); });
}

} // namespace orvelle
