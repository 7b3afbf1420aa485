#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <vector>

namespace orvelle {

class Animation;

/// The time of all animations, and the switch that turns them off. One timer drives them together, so that
/// the screen is repainted once for all; it stops when no animation runs. Main thread only.
class AnimationClock final : public QObject {
    Q_OBJECT
    /// Whether the user wants reduced motion: every change then shows at once.
    Q_PROPERTY(bool reduced READ isReduced WRITE setReduced NOTIFY reducedChanged)

public:
    /// Seconds since any fixed moment; never goes back.
    using Clock = std::function<double()>;

    explicit AnimationClock(QObject* parent = nullptr);
    /// For tests: `clock` gives the time and the test calls `step`.
    explicit AnimationClock(Clock clock, QObject* parent = nullptr);

    /// The clock of the program. It lives as long as the application object.
    [[nodiscard]] static AnimationClock& shared();

    [[nodiscard]] bool isReduced() const { return m_isReduced; }
    void setReduced(bool isReduced);

    /// The present moment, seconds.
    [[nodiscard]] double now() const { return m_clock(); }
    /// Whether any animation runs.
    [[nodiscard]] bool isRunning() const { return m_timer.isActive(); }
    /// Steps every animation that is due. The timer calls it.
    void step();

Q_SIGNALS:
    void reducedChanged();

private:
    friend class Animation;
    void add(Animation& animation);
    void remove(Animation& animation);
    /// Sets the timer to the first step that is due.
    void schedule();

    Clock m_clock;
    QTimer m_timer;
    std::vector<Animation*> m_animations; ///< those that run
    bool m_isReduced = false;
};

/// Calls a function step by step while it runs.
class Animation {
public:
    /// `step` receives the seconds since the start or the step before. It may stop this animation and destroy
    /// others.
    Animation(AnimationClock& clock, std::function<void(double)> step);
    ~Animation();
    Animation(const Animation&) = delete;
    Animation& operator=(const Animation&) = delete;

    /// Steps every `interval` from now on. An animation that runs already continues at the new interval.
    void start(std::chrono::milliseconds interval);
    void stop();
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

private:
    friend class AnimationClock;
    /// The moment of the next step.
    [[nodiscard]] double dueTime() const { return m_lastStep + m_interval; }
    void takeStep(double now);

    AnimationClock& m_clock;
    std::function<void(double)> m_step;
    bool m_isRunning = false;
    double m_interval = 0; ///< seconds
    double m_lastStep = 0; ///< the moment of the last step, or of the start
};

} // namespace orvelle
