#include "charts/motion.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvelle {
namespace {

/// Steps that are due this close together are taken together, so that the screen is repainted once for them.
constexpr double slackSeconds = 0.004;

double secondsOfSteadyClock() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

Motion::Motion(QObject* parent)
    : Motion(secondsOfSteadyClock, parent) {}

Motion::Motion(Clock clock, QObject* parent)
    : QObject(parent)
    , m_clock(std::move(clock)) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout(this, &Motion::step);
}

Motion& Motion::shared() {
    static QPointer<Motion> motion;
    if (motion == nullptr)
        motion = new Motion(QCoreApplication::instance());
    return *motion;
}

void Motion::setReduced(bool isReduced) {
    if (m_isReduced == isReduced)
        return;
    m_isReduced = isReduced;
    Q_EMIT reducedChanged();
}

void Motion::step() {
    const double present = now();
    const std::vector<MovingPart*> parts = m_parts; // a step may start, stop and even destroy parts
    for (MovingPart* part : parts) {
        const bool stillMoves = std::ranges::find(m_parts, part) != m_parts.end();
        if (stillMoves && part->dueTime() <= present + slackSeconds)
            part->takeStep(present);
    }
    schedule();
}

void Motion::add(MovingPart& part) {
    m_parts.push_back(&part);
    schedule();
}

void Motion::remove(MovingPart& part) {
    std::erase(m_parts, &part);
    schedule();
}

void Motion::schedule() {
    if (m_parts.empty()) {
        m_timer.stop();
        return;
    }
    const MovingPart* first = *std::ranges::min_element(m_parts, {}, &MovingPart::dueTime);
    const double milliseconds = std::ceil((first->dueTime() - now()) * 1000);
    m_timer.start(std::max(0, static_cast<int>(milliseconds)));
}

MovingPart::MovingPart(Motion& motion, std::function<void(double)> step)
    : m_motion(motion)
    , m_step(std::move(step)) {}

MovingPart::~MovingPart() {
    stop();
}

void MovingPart::start(std::chrono::milliseconds interval) {
    m_interval = std::chrono::duration<double>(interval).count();
    if (m_isMoving) {
        m_motion.schedule(); // it may be due sooner now
        return;
    }
    m_isMoving = true;
    m_lastStep = m_motion.now();
    m_motion.add(*this);
}

void MovingPart::stop() {
    if (std::exchange(m_isMoving, false))
        m_motion.remove(*this);
}

void MovingPart::takeStep(double now) {
    m_step(now - std::exchange(m_lastStep, now));
}

} // namespace orvelle
