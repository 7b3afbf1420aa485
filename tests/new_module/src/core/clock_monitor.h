#pragma once

#include <QObject>

namespace orvelle {

/// Counts its updates.
class ClockMonitor : public QObject {
    Q_OBJECT
    Q_PROPERTY(qint64 ticks READ ticks NOTIFY ticksChanged)

public:
    using QObject::QObject;

    [[nodiscard]] qint64 ticks() const { return m_ticks; }
    void update() {
        ++m_ticks;
        Q_EMIT ticksChanged();
    }

Q_SIGNALS:
    void ticksChanged();

private:
    qint64 m_ticks = 0;
};

} // namespace orvelle
