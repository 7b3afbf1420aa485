#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace orvelle {

/// Lets at most one event pass per interval. The first event passes at once. Later events within the interval
/// are merged into one, which passes when the interval ends; its receiver reads the newest values. No timer
/// runs while no event is held. Destroying the throttle drops a held event. Main thread only.
class Throttle : public QObject {
    Q_OBJECT

public:
    explicit Throttle(std::chrono::milliseconds interval, QObject* parent = nullptr);

    /// Reports an event.
    void trigger();

    [[nodiscard]] bool isHolding() const { return m_held.isActive(); }

Q_SIGNALS:
    void passed();

private:
    void pass();

    std::chrono::milliseconds m_interval;
    QElapsedTimer m_sincePassed; ///< not valid before the first event
    QTimer m_held{this};
};

} // namespace orvelle
