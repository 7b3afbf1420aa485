#pragma once

#include <QAnimationDriver>

namespace orvelle {

/// Controls the time of all QML animations. At most one instance may exist at a time.
class ManualAnimations final : public QAnimationDriver {
public:
    ManualAnimations() { install(); }

    [[nodiscard]] qint64 elapsed() const override { return m_milliseconds; }

    /// Advances the time in one step.
    void pass(qint64 milliseconds) {
        m_milliseconds += milliseconds;
        advance();
    }

protected:
    /// The first animation starts. The time of later animations counts from here too.
    void start() override {
        m_milliseconds = 0;
        QAnimationDriver::start();
    }

private:
    qint64 m_milliseconds = 0;
};

} // namespace orvelle
