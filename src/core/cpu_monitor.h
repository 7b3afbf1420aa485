#pragma once

#include "core/published.h"
#include "core/sources/clock.h"
#include "core/sources/processor_source.h"

#include <QList>
#include <QObject>

namespace orvelle {

/// How one core spent the time since the previous sample, as fractions from 0 to 1.
/// All three are 0 when the core's counters did not move or were seen for the first time.
struct CPUCoreUsage {
    Q_GADGET
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(double user MEMBER user)
    Q_PROPERTY(double system MEMBER system)
    Q_PROPERTY(double idle MEMBER idle)
public:
    qint64 id = 0;   ///< index of the core, 0-based, in the order the system lists processors
    double user = 0; ///< user and nice time
    double system = 0;
    double idle = 0;

    bool operator==(const CPUCoreUsage&) const = default;
};

/// Samples processor load per core, its mean over all cores, the load averages and the time since boot.
/// Used from the main thread only; `SystemMonitor` calls the updates once per cycle.
class CPUMonitor : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<orvelle::CPUCoreUsage> coreUsages READ coreUsages NOTIFY coreUsagesChanged)
    Q_PROPERTY(double totalUsage READ totalUsage NOTIFY totalUsageChanged)
    Q_PROPERTY(double userUsage READ userUsage NOTIFY userUsageChanged)
    Q_PROPERTY(double systemUsage READ systemUsage NOTIFY systemUsageChanged)
    Q_PROPERTY(double loadAverage1 READ loadAverage1 NOTIFY loadAverage1Changed)
    Q_PROPERTY(double loadAverage5 READ loadAverage5 NOTIFY loadAverage5Changed)
    Q_PROPERTY(double loadAverage15 READ loadAverage15 NOTIFY loadAverage15Changed)
    Q_PROPERTY(double uptime READ uptime NOTIFY uptimeChanged)
    Q_PROPERTY(QList<double> usageHistory READ usageHistory NOTIFY usageHistoryChanged)

public:
    using CoreUsage = CPUCoreUsage;
    static constexpr qsizetype maxHistoryCount = MetricHistory::maxHistoryCount;

    /// Takes a baseline sample at once, so that the first update already measures a difference.
    CPUMonitor(ProcessorSource& source, WallClock now, QObject* parent = nullptr);

    [[nodiscard]] const QList<CoreUsage>& coreUsages() const { return m_coreUsages; }
    /// Mean over the cores of user and system time, fraction 0 to 1.
    [[nodiscard]] double totalUsage() const { return m_totalUsage; }
    [[nodiscard]] double userUsage() const { return m_userUsage; }
    [[nodiscard]] double systemUsage() const { return m_systemUsage; }
    [[nodiscard]] double loadAverage1() const { return m_loadAverage1; }
    [[nodiscard]] double loadAverage5() const { return m_loadAverage5; }
    [[nodiscard]] double loadAverage15() const { return m_loadAverage15; }
    /// Seconds since boot by the wall clock, never negative.
    [[nodiscard]] double uptime() const { return m_uptime; }
    /// `totalUsage` of the last samples, oldest first, at most `maxHistoryCount`.
    [[nodiscard]] const QList<double>& usageHistory() const { return m_usageHistory; }

    /// Publishes the usage since the previous call. When the counters cannot be read nothing changes.
    void updateUsage();
    /// Publishes the load averages, zeros when they cannot be read.
    void updateLoadAverages();
    /// Publishes the time since boot; it keeps its value when the boot time cannot be read.
    void updateUptime();

Q_SIGNALS:
    void coreUsagesChanged();
    void totalUsageChanged();
    void userUsageChanged();
    void systemUsageChanged();
    void loadAverage1Changed();
    void loadAverage5Changed();
    void loadAverage15Changed();
    void uptimeChanged();
    void usageHistoryChanged();

private:
    ProcessorSource& m_source;
    WallClock m_now;
    QList<CoreUsage> m_coreUsages;
    double m_totalUsage = 0;
    double m_userUsage = 0;
    double m_systemUsage = 0;
    double m_loadAverage1 = 0;
    double m_loadAverage5 = 0;
    double m_loadAverage15 = 0;
    double m_uptime = 0;
    QList<double> m_usageHistory;
    std::vector<CoreTicks> m_previousTicks;
};

} // namespace orvelle
