#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <vector>

namespace orvelle {

class Animation;

/// The time by which everything on the screen moves, and whether it may move at all. One timer serves all
/// parts that move, so that they are repainted together; while none moves there is no timer. Main thread
/// only.
class AnimationClock final : public QObject {
    Q_OBJECT
    /// Whether the user wants no motion: then every change shows at once.
    Q_PROPERTY(bool reduced READ isReduced WRITE setReduced NOTIFY reducedChanged)

public:
    /// Seconds since any fixed moment; never goes back.
    using Clock = std::function<double()>;

    explicit AnimationClock(QObject* parent = nullptr);
    /// For tests: `clock` decides what time it is, and `step` what happens then.
    explicit AnimationClock(Clock clock, QObject* parent = nullptr);

    /// The one that the program's windows move by. It lives as long as the application object.
    [[nodiscard]] static AnimationClock& shared();

    [[nodiscard]] bool isReduced() const { return m_isReduced; }
    void setReduced(bool isReduced);

    /// The present moment, seconds.
    [[nodiscard]] double now() const { return m_clock(); }
    /// Whether anything moves, and so whether the timer runs.
    [[nodiscard]] bool isRunning() const { return m_timer.isActive(); }
    /// Has every part that is due take its step; the timer calls it.
    void step();

Q_SIGNALS:
    void reducedChanged();

private:
    friend class Animation;
    void add(Animation& part);
    void remove(Animation& part);
    /// Sets the timer to the first step that is due.
    void schedule();

    Clock m_clock;
    QTimer m_timer;
    std::vector<Animation*> m_parts; ///< those that move now
    bool m_isReduced = false;
};

/// Something that moves step by step while it is started.
class Animation {
public:
    /// `step` is told how many seconds have passed since the start or the step before. It may stop the part.
    Animation(AnimationClock& clock, std::function<void(double)> step);
    ~Animation();
    Animation(const Animation&) = delete;
    Animation& operator=(const Animation&) = delete;

    /// Takes a step every `interval` from now on. One that moves already goes on, at the new interval.
    void start(std::chrono::milliseconds interval);
    void stop();
    [[nodiscard]] bool isMoving() const { return m_isMoving; }

private:
    friend class AnimationClock;
    /// The moment of the next step.
    [[nodiscard]] double dueTime() const { return m_lastStep + m_interval; }
    void takeStep(double now);

    AnimationClock& m_clock;
    std::function<void(double)> m_step;
    bool m_isMoving = false;
    double m_interval = 0; ///< seconds
    double m_lastStep = 0; ///< when the part was started or took its last step
};

} // namespace orvelle
