#pragma once

#include "core/published.h"
#include "core/sources/memory_source.h"

#include <QList>
#include <QObject>

namespace orvelle {

/// How physical memory and swap are divided; every field is a count of bytes.
struct MemoryMonitorInfo {
    Q_GADGET
    Q_PROPERTY(quint64 total MEMBER total)
    Q_PROPERTY(quint64 used MEMBER used)
    Q_PROPERTY(quint64 wired MEMBER wired)
    Q_PROPERTY(quint64 compressed MEMBER compressed)
    Q_PROPERTY(quint64 cached MEMBER cached)
    Q_PROPERTY(quint64 free MEMBER free)
    Q_PROPERTY(quint64 active MEMBER active)
    Q_PROPERTY(quint64 inactive MEMBER inactive)
    Q_PROPERTY(quint64 swapUsed MEMBER swapUsed)
    Q_PROPERTY(quint64 swapTotal MEMBER swapTotal)
public:
    quint64 total = 0;
    quint64 used = 0;
    quint64 wired = 0;
    quint64 compressed = 0;
    quint64 cached = 0;
    quint64 free = 0;
    quint64 active = 0;
    quint64 inactive = 0;
    quint64 swapUsed = 0;
    quint64 swapTotal = 0;

    bool operator==(const MemoryMonitorInfo&) const = default;
};

/// The share of memory that is used, 0 to 1; 0 when the total is not known.
[[nodiscard]] double usedFraction(const MemoryMonitorInfo& info);

/// Used memory without the cache, as a share of the total; 0 when the total is not known.
/// A cache larger than used memory stops the process: no source reports one.
[[nodiscard]] double pressureFraction(const MemoryMonitorInfo& info);

/// Samples memory and swap and keeps a history of the pressure. Main thread only.
class MemoryMonitor : public QObject {
    Q_OBJECT
    Q_PROPERTY(orvelle::MemoryMonitorInfo info READ info NOTIFY infoChanged)
    Q_PROPERTY(QList<double> pressureHistory READ pressureHistory NOTIFY pressureHistoryChanged)

public:
    using MemoryInfo = MemoryMonitorInfo;
    static constexpr qsizetype maxHistoryCount = MetricHistory::maxHistoryCount;

    explicit MemoryMonitor(MemorySource& source, QObject* parent = nullptr);

    [[nodiscard]] const MemoryInfo& info() const { return m_info; }
    /// `pressureFraction` of the last samples, oldest first, at most `maxHistoryCount`.
    [[nodiscard]] const QList<double>& pressureHistory() const { return m_pressureHistory; }

    /// Publishes the present state. When the counters cannot be read nothing changes.
    void update();

Q_SIGNALS:
    void infoChanged();
    void pressureHistoryChanged();

private:
    MemorySource& m_source;
    MemoryInfo m_info;
    QList<double> m_pressureHistory;
};

} // namespace orvelle
