#pragma once

#include "core/published.h"
#include "core/sources/sensor_source.h"

#include <QList>
#include <QObject>
#include <QString>

namespace orvelle {

/// A temperature sensor that read plausibly at the last update.
struct TemperatureSensor {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(double value MEMBER value)
public:
    QString key;      ///< the sensor's identity, the same at every update
    QString name;     ///< for display
    double value = 0; ///< degrees Celsius, above 0 and below 150

    bool operator==(const TemperatureSensor&) const = default;
};

/// A fan that turned at the last update.
struct FanInfo {
    Q_GADGET
    Q_PROPERTY(qint64 index MEMBER index)
    Q_PROPERTY(qint64 speed MEMBER speed)
public:
    qint64 index = 0; ///< position among the fans that turn, 0-based
    qint64 speed = 0; ///< revolutions per minute

    bool operator==(const FanInfo&) const = default;
};

/// Samples temperatures, in degrees Celsius whatever unit is displayed, and fan speeds. Main thread only.
class SensorMonitor : public QObject {
    Q_OBJECT
    Q_PROPERTY(double cpuTemperature READ cpuTemperature NOTIFY cpuTemperatureChanged)
    Q_PROPERTY(double gpuTemperature READ gpuTemperature NOTIFY gpuTemperatureChanged)
    Q_PROPERTY(QList<orvelle::TemperatureSensor> sensors READ sensors NOTIFY sensorsChanged)
    Q_PROPERTY(QList<orvelle::FanInfo> fans READ fans NOTIFY fansChanged)
    Q_PROPERTY(QList<double> cpuTempHistory READ cpuTempHistory NOTIFY cpuTempHistoryChanged)
    Q_PROPERTY(QList<double> gpuTempHistory READ gpuTempHistory NOTIFY gpuTempHistoryChanged)

public:
    using TemperatureSensor = orvelle::TemperatureSensor;
    using FanInfo = orvelle::FanInfo;
    static constexpr qsizetype maxHistoryCount = MetricHistory::maxHistoryCount;

    /// Asks the source nothing before the first update.
    explicit SensorMonitor(SensorSource& source, QObject* parent = nullptr);

    /// The last temperature that the processor's sensors gave, 0 before there was one.
    [[nodiscard]] double cpuTemperature() const { return m_cpuTemperature; }
    /// The last temperature that the graphics processor's sensors gave, 0 before there was one.
    [[nodiscard]] double gpuTemperature() const { return m_gpuTemperature; }
    [[nodiscard]] const QList<TemperatureSensor>& sensors() const { return m_sensors; }
    [[nodiscard]] const QList<FanInfo>& fans() const { return m_fans; }
    /// The temperatures that were read, oldest first, at most `maxHistoryCount`. A sample without one leaves
    /// no mark.
    [[nodiscard]] const QList<double>& cpuTempHistory() const { return m_cpuTempHistory; }
    [[nodiscard]] const QList<double>& gpuTempHistory() const { return m_gpuTempHistory; }

    /// Publishes the present readings. A processor that gives none keeps its last temperature; the lists of
    /// sensors and fans are replaced whole.
    void update();

Q_SIGNALS:
    void cpuTemperatureChanged();
    void gpuTemperatureChanged();
    void sensorsChanged();
    void fansChanged();
    void cpuTempHistoryChanged();
    void gpuTempHistoryChanged();

private:
    SensorSource& m_source;
    double m_cpuTemperature = 0;
    double m_gpuTemperature = 0;
    QList<TemperatureSensor> m_sensors;
    QList<FanInfo> m_fans;
    QList<double> m_cpuTempHistory;
    QList<double> m_gpuTempHistory;
};

} // namespace orvelle
