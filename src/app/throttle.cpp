#include "app/throttle.h"

namespace orvelle {

Throttle::Throttle(std::chrono::milliseconds interval, QObject* parent)
    : QObject(parent)
    , m_interval(interval) {
    m_held.setSingleShot(true);
    // A coarse timer may end early, and two events would pass within one interval.
    m_held.setTimerType(Qt::PreciseTimer);
    m_held.callOnTimeout(this, &Throttle::pass);
}

void Throttle::trigger() {
    if (m_held.isActive())
        return;
    const bool passesAtOnce = !m_sincePassed.isValid() || m_sincePassed.hasExpired(m_interval.count());
    if (passesAtOnce)
        pass();
    else
        m_held.start(m_interval - std::chrono::milliseconds(m_sincePassed.elapsed()));
}

void Throttle::pass() {
    m_sincePassed.start();
    Q_EMIT passed();
}

} // namespace orvelle
