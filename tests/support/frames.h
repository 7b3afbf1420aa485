#pragma once

#include "support/waiting.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QWindow>

/// When a window is painted, for tests on the off-screen platform.
namespace orvelle {

/// Whether the window has asked for a frame that is not painted yet. The platform lets a timer of the window
/// run from the one to the other, and windows have no other timers.
[[nodiscard]] inline bool isFrameDue(QWindow& window) {
    return !QAbstractEventDispatcher::instance()->registeredTimers(&window).isEmpty();
}

/// Lets everything happen that follows at once from what was done: events come, what is left to be deleted
/// is, and what has changed is laid out and painted. False when there is no end of it.
[[nodiscard]] inline bool settle(QWindow& window) {
    const QDeadlineTimer deadline(patience);
    do {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (isFrameDue(window) && !deadline.hasExpired());
    return !isFrameDue(window);
}

/// Waits for as long as a few frames of any animation take: whatever is repainted again and again is within
/// it. A machine that is slow does not matter, because all that is due by then comes first.
inline void passAMoment() {
    constexpr int milliseconds = 40;
    QTest::qWait(milliseconds);
}

} // namespace orvelle
