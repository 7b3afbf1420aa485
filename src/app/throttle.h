#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace orvelle {

/// Lets at most one event pass per interval. The first one passes at once. Later ones within the interval are
/// held, and one event passes for them when the interval ends; whoever receives it reads the newest values.
/// While nothing is held no timer runs. Destroying the throttle drops what it holds. Main thread only.
class Throttle : public QObject {
    Q_OBJECT

public:
    explicit Throttle(std::chrono::milliseconds interval, QObject* parent = nullptr);

    /// An event happened.
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
