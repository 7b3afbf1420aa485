#pragma once

#include "shell/painted/portal_values.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>
#include <optional>

class QDBusMessage;
class QDBusPendingCallWatcher;
class QDBusVariant;

namespace orvelle {

class AnimationClock;

/// Reads the desktop's settings from the portal `org.freedesktop.portal.Settings`, now and whenever one
/// changes or the portal starts. It does not start the portal, and waits for nothing: without a bus, without
/// a portal and after an odd answer the values stay as they are. Main thread only.
class SettingsPortal final : public QObject {
    Q_OBJECT

public:
    explicit SettingsPortal(const QDBusConnection& bus);

    [[nodiscard]] const PortalValues& values() const { return m_values; }

Q_SIGNALS:
    /// The portal has told something, which may be what it told before.
    void read();

private Q_SLOTS:
    void takeChange(const QDBusMessage& message);

private:
    void ask();
    void takeAnswer(QDBusPendingCallWatcher& call);

    QDBusConnection m_bus;
    PortalValues m_values;
};

/// Keeps the clock's motion reduced when the user asks the desktop for that, as long as the result lives.
/// Without a bus it is the session's, which is opened without waiting for it.
[[nodiscard]] std::unique_ptr<QObject>
followPortalMotion(AnimationClock& clock, const std::optional<QDBusConnection>& bus = std::nullopt);

/// Keeps the fonts of theme/fonts.h equal to those that the portal names, as long as the result lives.
/// Without a bus it is the session's, which is opened without waiting for it.
[[nodiscard]] std::unique_ptr<QObject>
followPortalFonts(const std::optional<QDBusConnection>& bus = std::nullopt);

} // namespace orvelle
