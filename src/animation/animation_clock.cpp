#include "animation/animation_clock.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvelle {
namespace {

/// Steps due this close together are taken together, so that the screen is repainted once.
constexpr double slackSeconds = 0.004;

double secondsOfSteadyClock() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

AnimationClock::AnimationClock(QObject* parent)
    : AnimationClock(secondsOfSteadyClock, parent) {}

AnimationClock::AnimationClock(Clock clock, QObject* parent)
    : QObject(parent)
    , m_clock(std::move(clock)) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout(this, &AnimationClock::step);
}

AnimationClock& AnimationClock::shared() {
    static QPointer<AnimationClock> clock;
    if (clock == nullptr)
        clock = new AnimationClock(QCoreApplication::instance());
    return *clock;
}

void AnimationClock::setReduced(bool isReduced) {
    if (m_isReduced == isReduced)
        return;
    m_isReduced = isReduced;
    Q_EMIT reducedChanged();
}

void AnimationClock::step() {
    const double present = now();
    const std::vector<Animation*> animations = m_animations; // a step may start, stop or destroy others
    for (Animation* animation : animations) {
        const bool stillRuns = std::ranges::find(m_animations, animation) != m_animations.end();
        if (stillRuns && animation->dueTime() <= present + slackSeconds)
            animation->takeStep(present);
    }
    schedule();
}

void AnimationClock::add(Animation& animation) {
    m_animations.push_back(&animation);
    schedule();
}

void AnimationClock::remove(Animation& animation) {
    std::erase(m_animations, &animation);
    schedule();
}

void AnimationClock::schedule() {
    if (m_animations.empty()) {
        m_timer.stop();
        return;
    }
    const Animation* first = *std::ranges::min_element(m_animations, {}, &Animation::dueTime);
    const double milliseconds = std::ceil((first->dueTime() - now()) * 1000);
    m_timer.start(std::max(0, static_cast<int>(milliseconds)));
}

Animation::Animation(AnimationClock& clock, std::function<void(double)> step)
    : m_clock(clock)
    , m_step(std::move(step)) {}

Animation::~Animation() {
    stop();
}

void Animation::start(std::chrono::milliseconds interval) {
    m_interval = std::chrono::duration<double>(interval).count();
    if (m_isRunning) {
        m_clock.schedule(); // the next step may be due sooner
        return;
    }
    m_isRunning = true;
    m_lastStep = m_clock.now();
    m_clock.add(*this);
}

void Animation::stop() {
    if (std::exchange(m_isRunning, false))
        m_clock.remove(*this);
}

void Animation::takeStep(double now) {
    m_step(now - std::exchange(m_lastStep, now));
}

} // namespace orvelle
