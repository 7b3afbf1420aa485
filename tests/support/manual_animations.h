#pragma once

#include <QAnimationDriver>

namespace orvelle {

/// The animations of QML, whose time passes only when the test says so. There may be one at a time.
class ManualAnimations final : public QAnimationDriver {
public:
    ManualAnimations() { install(); }

    [[nodiscard]] qint64 elapsed() const override { return m_milliseconds; }

    /// Lets time pass in one step.
    void pass(qint64 milliseconds) {
        m_milliseconds += milliseconds;
        advance();
    }

protected:
    /// The first animation begins; the time of each later one counts from here too.
    void start() override {
        m_milliseconds = 0;
        QAnimationDriver::start();
    }

private:
    qint64 m_milliseconds = 0;
};

} // namespace orvelle
