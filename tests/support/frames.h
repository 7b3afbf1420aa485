#pragma once

#include "support/waiting.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QWindow>

/// Waits for the painting of windows, for tests on the off-screen platform.
namespace orvelle {

/// Whether the window has requested a frame that is not painted yet. The platform runs a timer of the window
/// in the meantime, and windows have no other timers.
[[nodiscard]] inline bool isFrameDue(QWindow& window) {
    return !QAbstractEventDispatcher::instance()->registeredTimers(&window).isEmpty();
}

/// Handles all immediate consequences of the test's actions: events, deferred deletions, layout and painting.
/// False if they never end.
[[nodiscard]] inline bool settle(QWindow& window) {
    const QDeadlineTimer deadline(patience);
    do {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (isFrameDue(window) && !deadline.hasExpired());
    return !isFrameDue(window);
}

/// Waits for a few animation frames, in which every continuous repaint shows. A slow machine does not matter,
/// because everything that is due by then happens first.
inline void passAMoment() {
    constexpr int milliseconds = 40;
    QTest::qWait(milliseconds);
}

} // namespace orvelle
