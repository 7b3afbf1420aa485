#pragma once

#include "core/published.h"
#include "core/sources/battery_source.h"

#include <QList>
#include <QObject>
#include <QString>

namespace orvelle {

/// The state of the machine's battery and power supply. A figure that the system never gave has the value
/// that it starts with.
struct BatteryInfo {
    Q_GADGET
    Q_PROPERTY(bool isPresent MEMBER isPresent)
    Q_PROPERTY(qint64 currentCapacity MEMBER currentCapacity)
    Q_PROPERTY(bool isCharging MEMBER isCharging)
    Q_PROPERTY(bool isPluggedIn MEMBER isPluggedIn)
    Q_PROPERTY(bool isFullyCharged MEMBER isFullyCharged)
    Q_PROPERTY(qint64 timeToEmpty MEMBER timeToEmpty)
    Q_PROPERTY(qint64 timeToFull MEMBER timeToFull)
    Q_PROPERTY(qint64 cycleCount MEMBER cycleCount)
    Q_PROPERTY(qint64 designCapacity MEMBER designCapacity)
    Q_PROPERTY(qint64 maxCapacity MEMBER maxCapacity)
    Q_PROPERTY(double health MEMBER health)
    Q_PROPERTY(double temperature MEMBER temperature)
    Q_PROPERTY(double voltage MEMBER voltage)
    Q_PROPERTY(double amperage MEMBER amperage)
    Q_PROPERTY(double wattage MEMBER wattage)
    Q_PROPERTY(QString powerSource MEMBER powerSource)
public:
    bool isPresent = false;
    qint64 currentCapacity = 0; ///< charge in percent
    bool isCharging = false;
    bool isPluggedIn = false; ///< runs on external power
    bool isFullyCharged = false;
    qint64 timeToEmpty = -1; ///< minutes, -1 while unknown
    qint64 timeToFull = -1;  ///< minutes, -1 while unknown
    qint64 cycleCount = 0;
    qint64 designCapacity = 0; ///< mAh
    qint64 maxCapacity = 0;    ///< mAh
    double health = 1.0;       ///< `maxCapacity` as a share of `designCapacity`; may exceed 1
    double temperature = 0;    ///< degrees Celsius
    double voltage = 0;        ///< volts
    double amperage = 0;       ///< milliamperes, negative while discharging
    double wattage = 0;        ///< watts that flow in either direction, never negative
    QString powerSource = QStringLiteral("Unknown"); ///< "AC Power" or "Battery" once known

    bool operator==(const BatteryInfo&) const = default;
};

/// Samples the battery and keeps a history of its charge. Main thread only.
class BatteryMonitor : public QObject {
    Q_OBJECT
    Q_PROPERTY(orvelle::BatteryInfo battery READ battery NOTIFY batteryChanged)
    Q_PROPERTY(QList<double> chargeHistory READ chargeHistory NOTIFY chargeHistoryChanged)

public:
    using BatteryInfo = orvelle::BatteryInfo;
    static constexpr qsizetype maxHistoryCount = MetricHistory::maxHistoryCount;

    explicit BatteryMonitor(BatterySource& source, QObject* parent = nullptr);

    [[nodiscard]] const BatteryInfo& battery() const { return m_battery; }
    /// The charge at the last samples as a fraction, oldest first, at most `maxHistoryCount`.
    [[nodiscard]] const QList<double>& chargeHistory() const { return m_chargeHistory; }

    /// Publishes the present state field by field. What the system does not say keeps its value; without any
    /// power source only `isPresent` changes, to false, and the history does not grow.
    void update();

Q_SIGNALS:
    /// A field of the battery was assigned.
    void batteryChanged();
    void chargeHistoryChanged();

private:
    void take(const PowerSourceDescription& description);
    void take(const SmartBatteryProperties& properties);
    void takeCapacities(const SmartBatteryProperties& properties);

    template <class Field, class Value>
    void assign(Field BatteryInfo::* field, Value value);
    template <class Field, class Value>
    void assignIfKnown(Field BatteryInfo::* field, const std::optional<Value>& value);

    BatterySource& m_source;
    BatteryInfo m_battery;
    QList<double> m_chargeHistory;
};

} // namespace orvelle
