#include "core/battery_monitor.h"

#include "core/published.h"

#include <cmath>

namespace orvelle {
namespace {

/// The value where it is above zero, or else nothing.
std::optional<std::int64_t> aboveZero(const std::optional<std::int64_t>& value) {
    return value && *value > 0 ? value : std::nullopt;
}

} // namespace

BatteryMonitor::BatteryMonitor(BatterySource& source, QObject* parent)
    : QObject(parent)
    , m_source(source) {}

template <class Field, class Value>
void BatteryMonitor::assign(Field BatteryInfo::* field, Value value) {
    publish(this, m_battery.*field, Field{std::move(value)}, &BatteryMonitor::batteryChanged);
}

template <class Field, class Value>
void BatteryMonitor::assignIfKnown(Field BatteryInfo::* field, const std::optional<Value>& value) {
    if (value)
        assign(field, *value);
}

void BatteryMonitor::update() {
    const auto sources = m_source.readPowerSources();
    if (!sources || sources->empty()) {
        assign(&BatteryInfo::isPresent, false);
        return;
    }
    for (const std::optional<PowerSourceDescription>& description : *sources) {
        if (description)
            take(*description);
    }
    if (const std::optional<SmartBatteryProperties> properties = m_source.readSmartBattery())
        take(*properties);
    MetricHistory::append(m_chargeHistory, static_cast<double>(m_battery.currentCapacity) / 100.0,
                          maxHistoryCount);
    Q_EMIT chargeHistoryChanged();
}

void BatteryMonitor::take(const PowerSourceDescription& description) {
    assign(&BatteryInfo::isPresent, true);
    assignIfKnown(&BatteryInfo::currentCapacity, description.currentCapacity);
    assignIfKnown(&BatteryInfo::isCharging, description.isCharging);
    if (description.powerSourceState) {
        assign(&BatteryInfo::isPluggedIn,
               *description.powerSourceState == PowerSourceDescription::externalPower);
        assign(&BatteryInfo::powerSource,
               m_battery.isPluggedIn ? QStringLiteral("AC Power") : QStringLiteral("Battery"));
    }
    assignIfKnown(&BatteryInfo::isFullyCharged, description.isCharged);
    assignIfKnown(&BatteryInfo::timeToEmpty, description.timeToEmpty);
    assignIfKnown(&BatteryInfo::timeToFull, description.timeToFullCharge);
}

void BatteryMonitor::take(const SmartBatteryProperties& properties) {
    assignIfKnown(&BatteryInfo::cycleCount, properties.cycleCount);
    takeCapacities(properties);
    if (properties.temperature)
        assign(&BatteryInfo::temperature, static_cast<double>(*properties.temperature) / 100.0);
    if (properties.voltage)
        assign(&BatteryInfo::voltage, static_cast<double>(*properties.voltage) / 1000.0);
    if (!properties.amperage)
        return;
    assign(&BatteryInfo::amperage, static_cast<double>(*properties.amperage));
    assign(&BatteryInfo::wattage, std::abs(m_battery.voltage * m_battery.amperage / 1000.0));
}

void BatteryMonitor::takeCapacities(const SmartBatteryProperties& properties) {
    assignIfKnown(&BatteryInfo::designCapacity, aboveZero(properties.designCapacity));
    const std::optional<std::int64_t> measured = aboveZero(properties.rawMaxCapacity);
    assignIfKnown(&BatteryInfo::maxCapacity,
                  measured ? measured : aboveZero(properties.nominalChargeCapacity));
    if (m_battery.designCapacity >= 1 && m_battery.maxCapacity >= 1)
        assign(&BatteryInfo::health,
               static_cast<double>(m_battery.maxCapacity) / static_cast<double>(m_battery.designCapacity));
}

} // namespace orvelle
